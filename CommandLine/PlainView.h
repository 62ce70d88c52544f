// Progress as plain lines, one a change of state, for files, pipes and simple terminals.
#pragma once

#include "CommandLine/ProgressView.h"

#include <cstdio>

namespace korvane {

class PlainView : public ProgressView {
public:
    explicit PlainView(FILE *stream) : _stream(stream) {}
    void stateChanged(const Upload &upload, const QString &label) override;
    void removed(const QString &id, const QString &label) override;
    void note(const QString &text) override;

    // The line about a state, without the line break.
    static QString lineOf(const Upload &upload, const QString &label);

private:
    FILE *_stream;
};

} // namespace korvane
