// One run of an upload: what a runner is given, and what it reports.
#pragma once

#include "Platform/Foundation/UploadContext.h"
#include "Service/FailureClassifier.h"
#include "Service/UploadJob.h"

#include <QVariantMap>

#include <functional>
#include <memory>

namespace korvane {

class ACAccountStore;

struct UploadRun {
    UploadJob job;
    QVariantMap record;
    std::shared_ptr<UploadContext> context;
    std::shared_ptr<ACAccountStore> accounts;
    // The web service has answered with something that a later run goes on from; the job carries it. durably: the step
    // that follows must not be taken twice, so this has to outlive a power cut too. Main thread.
    std::function<void(const UploadJob &job, bool durably)> reached;
    // Exactly once; the job carries what was reached and the size, if it became known. Main thread.
    std::function<void(const Verdict &verdict, const UploadJob &job)> ended;
};

} // namespace korvane
