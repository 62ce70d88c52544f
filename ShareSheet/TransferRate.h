// How fast an upload goes, and how long it still takes.
#pragma once

#include <QtGlobal>

#include <optional>

namespace korvane {

// Smoothed over some ten seconds, so that a chunk's pause does not make the numbers jump. Times are milliseconds of any
// clock that does not go back.
class TransferRate {
public:
    // What was sent in all by then. Fewer bytes than before begin anew: the upload did.
    void add(qint64 bytesSent, qint64 time);

    // Null before there is enough to tell by.
    std::optional<double> bytesPerSecond() const;
    // Null where that is unknown or nothing moves.
    std::optional<qint64> secondsLeft(qint64 bytesTotal) const;

private:
    qint64 _firstTime = -1;
    qint64 _lastTime = 0;
    qint64 _bytesSent = 0;
    double _smoothed = 0; // bytes a second
    double _weight = 0;   // of what was seen, towards 1
};

} // namespace korvane
