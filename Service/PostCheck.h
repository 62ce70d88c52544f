// What is looked at before an upload is begun, since the upload code takes a usable post for granted.
#pragma once

#include "Korvane/FlickrPost.h"
#include "Service/UploadJob.h"

#include <optional>

namespace korvane {

namespace PostCheck {

extern const QString ErrorDomain;

// Why the post cannot be uploaded, and what to do; null if it can. May block on a slow disk.
std::optional<NSError> objection(const FlickrPost &post, const UploadJob &job);

} // namespace PostCheck

} // namespace korvane
