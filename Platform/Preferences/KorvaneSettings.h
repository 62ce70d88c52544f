// Korvane's own settings, from the environment and the preference domain "com.zorvex.korvane".
#pragma once

#include "Platform/Foundation/NSURL.h"

#include <QString>

#include <optional>

namespace korvane {

// Environment and file are looked at on each call, so that a change counts at once. What is unusable is logged once and
// ignored. Thread: any.
namespace KorvaneSettings {

// One base URL, without slash at the end, for all endpoints of a service: KORVANE_FLICKR_URL or KORVANE_VIMEO_URL of
// the environment, else of the domain; null where neither is set. Plain http is taken for loopback hosts only.
std::optional<NSURL> flickrURL();
std::optional<NSURL> vimeoURL();

// Scheme and host (with any path of the override above) that the endpoints' paths are appended to; no slash at the end.
QString flickrUploadHost();
QString flickrRESTHost();
QString flickrSignInHost();
QString vimeoRESTHost();
QString vimeoSignInHost();

int flickrParallelUploads(); // "FlickrParallelUploads", 1 to 16, else 3
int vimeoParallelUploads();  // "VimeoParallelUploads", 1 to 4, else 1
int displayImageMaxPixels(); // "DisplayImageMaxPixels"; 0 is full size
bool uploadsOverCellular();  // "UploadsOverCellular", else true

} // namespace KorvaneSettings

} // namespace korvane
