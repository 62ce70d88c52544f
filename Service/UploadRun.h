// One run of an upload: what a runner is given, and what it reports.
#pragma once

#include "Platform/Foundation/UploadContext.h"
#include "Service/Verdict.h"

#include <QVariantMap>

#include <functional>
#include <memory>

namespace korvane {

class ACAccountStore;
class Spool;

struct UploadRun {
    UploadJob job;
    QVariantMap record;
    std::shared_ptr<UploadContext> context;
    std::shared_ptr<ACAccountStore> accounts;
    const Spool *spool = nullptr; // lives longer than the run
    // Something was reached that a later run goes on from; the job carries it. durably: the step that follows must not
    // be taken twice, so this has to outlive a power cut too. recorded (may be empty) hears whether it is on the disk,
    // on a thread of the queue's. Thread: any, one call at a time.
    std::function<void(const UploadJob &job, bool durably, const std::function<void(bool isRecorded)> &recorded)>
        reached = {};
    // Exactly once; the job carries what was reached and the size, if it became known. Thread: any.
    std::function<void(const Verdict &verdict, const UploadJob &job)> ended = {};
};

} // namespace korvane
