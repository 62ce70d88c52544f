// What becomes of an upload after a run: the one place that tells passing failures from final ones.
#pragma once

#include "Service/Verdict.h"

namespace korvane {

class VimeoPost;

namespace FailureClassifier {

// wantsPhotoSet: the post is to be added to a photo set after its upload.
Verdict verdictOnFlickrRun(const RunOutcome &outcome, bool wantsPhotoSet);

Verdict verdictOnVimeoRun(const RunOutcome &outcome);

// Of a video whose commit was answered, so that it is on Vimeo. post: as the run left it.
Verdict verdictAfterCommit(const RunOutcome &outcome, const VimeoPost &post);

// A ticket that leads nowhere while Vimeo itself answers is of no use; the next run gets a new one.
Verdict verdictOnDeadEndpoint(const NSError &error);

// What is known of a commit that did not end with a video id.
enum class CommitFate {
    NotDone, // it did not reach Vimeo, or Vimeo could not look at it just now
    Refused, // Vimeo has said no
    Unknown  // the video may be there
};
CommitFate fateOfCommit(const UploadContext::Snapshot &request);
// A commit that nobody knows the answer of is not sent again without a person having looked.
Verdict verdictOnUnansweredCommit();
// A commit is not sent before it is on the disk that it will be.
Verdict verdictOnUnrecordedCommit();

} // namespace FailureClassifier

} // namespace korvane
