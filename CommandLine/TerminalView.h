// Progress as bars at the bottom of a terminal, redrawn in place.
#pragma once

#include "CommandLine/ProgressView.h"

#include <cstdio>
#include <vector>

namespace korvane {

// One line a running upload and one for all together. What people must not miss (failures, waits) stays above the bars.
class TerminalView : public ProgressView {
public:
    // Colours are used unless the environment's NO_COLOR says otherwise.
    explicit TerminalView(FILE *stream);
    ~TerminalView() override { finish(); }

    void stateChanged(const Upload &upload, const QString &label) override;
    void removed(const QString &id, const QString &label) override;
    void note(const QString &text) override;
    void progress(const ProgressTally &tally) override;
    void finish() override;

    struct Line {
        QString text;
        qsizetype filledStart = 0; // where the filled part of a bar begins
        qsizetype filledLength = 0;
    };
    // The lines for a terminal of that size; none is wider than columns - 1, there are at most rows - 1.
    static std::vector<Line> lines(const ProgressTally &tally, int columns, int rows);
    // "[####------]"
    static QString bar(qint64 sent, qint64 total, int columns);

private:
    QByteArray _eraseDrawn();
    QByteArray _coloured(const Line &line) const;
    void _write(const QByteArray &bytes);
    void _permanent(const QString &text, const char *colour);

    FILE *_stream;
    const bool _hasColours;
    std::vector<Line> _drawn; // the lines on the screen now
};

} // namespace korvane
