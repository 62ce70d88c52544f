// What becomes of an upload after a run: the one place that tells passing failures from final ones.
#pragma once

#include "Service/RunOutcome.h"
#include "Service/UploadJob.h"

namespace korvane {

struct Verdict {
    UploadState state = UploadState::Done;    // Done, Waiting or Failed
    WaitReason waitReason = WaitReason::None; // with Waiting
    std::optional<NSError> error;             // for people: what happened and what to do
};

namespace FailureClassifier {

// wantsPhotoSet: the post is to be added to a photo set after its upload.
Verdict verdictOnFlickrRun(const RunOutcome &outcome, bool wantsPhotoSet);

} // namespace FailureClassifier

} // namespace korvane
