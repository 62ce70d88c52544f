// What is looked at before an upload is begun, since the upload code takes a usable post for granted.
#pragma once

#include "Korvane/FlickrPost.h"
#include "Korvane/VimeoPost.h"
#include "Service/RunOutcome.h"
#include "Service/UploadJob.h"

#include <optional>

namespace korvane {

namespace PostCheck {

struct Objection {
    NSError error;        // why the post cannot be uploaded, and what to do
    bool mayPass = false; // it may be possible later without anybody doing anything
};
// How a run ends that is not begun because of it.
RunOutcome outcomeOfObjection(const Objection &objection);

// Makes the post ready: a file is opened here, compared with the one that was shared, and stays the one that is sent,
// whatever happens to its name. Null if the post can be uploaded. May block on a slow disk.
std::optional<Objection> prepare(FlickrPost &post, const UploadJob &job);

// Looks whether the video can be uploaded; its file is opened by the upload itself.
std::optional<Objection> prepare(const VimeoPost &post, const UploadJob &job);
// Whether the file that a video is being read from is still the one that was shared. Null where nothing has changed.
std::optional<NSError> objectionToChange(const VimeoPost &post, const UploadJob &job);

} // namespace PostCheck

} // namespace korvane
