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

// Numbers beyond their limits count as the nearest within.
struct Limits {
    int least;
    int most;
    int usual; // where none is set
};
inline constexpr Limits flickrParallelLimits{1, 16, 3};
inline constexpr Limits vimeoParallelLimits{1, 4, 1};

int flickrParallelUploads(); // "FlickrParallelUploads"
int vimeoParallelUploads();  // "VimeoParallelUploads"
int displayImageMaxPixels(); // "DisplayImageMaxPixels"; 0 is full size
bool uploadsOverCellular();  // "UploadsOverCellular", else true

// Written at once. False, with a log line, where that fails; what was set then holds in this process alone.
bool setFlickrParallelUploads(int count);
bool setVimeoParallelUploads(int count);
bool setDisplayImageMaxPixels(int pixels);
bool setUploadsOverCellular(bool allowed);

QString path(); // of the domain's file

} // namespace KorvaneSettings

} // namespace korvane
