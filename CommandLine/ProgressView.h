// Shows how uploads go on.
#pragma once

#include "FrontEnd/Upload.h"

#include <cstdio>
#include <memory>
#include <vector>

namespace korvane {

// What is shown of all watched uploads together.
struct ProgressTally {
    struct Running {
        QString label;
        qint64 bytesSent = 0;
        qint64 bytesTotal = 0;
    };
    std::vector<Running> running;
    qint64 queued = 0;
    qint64 waiting = 0;
    qint64 done = 0;
    qint64 failed = 0;
    qint64 bytesSent = 0;
    qint64 bytesTotal = 0; // 0: not known
    QString waitingReason; // of the last upload that began to wait
};

class ProgressView {
public:
    virtual ~ProgressView() = default;
    // Bars on a terminal; elsewhere plain lines or nothing.
    static std::unique_ptr<ProgressView> onStream(FILE *stream, bool plainLines);

    // An upload is in another state. label: what people know it by.
    virtual void stateChanged(const Upload &upload, const QString &label) = 0;
    virtual void removed(const QString &id, const QString &label) = 0;
    virtual void note(const QString &text) = 0;
    // Called a few times a second while something moves.
    virtual void progress(const ProgressTally &) {}
    // Leaves the output as other programs expect it.
    virtual void finish() {}
};

} // namespace korvane
