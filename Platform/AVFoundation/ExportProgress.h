// How far ffmpeg says it is.
#pragma once

#include <QByteArray>

namespace korvane {

// Reads the lines of ffmpeg's option -progress. Thread: one.
class ExportProgress {
public:
    void take(const QByteArray &piece);

    qint64 microseconds() const { return _microseconds; } // of the output, written so far
    // False once something came that such a program does not write.
    bool isUnderstood() const { return _isUnderstood; }

private:
    void _takeLine(const QByteArray &line);

    QByteArray _pending;
    qint64 _microseconds = 0;
    bool _isUnderstood = true;
};

} // namespace korvane
