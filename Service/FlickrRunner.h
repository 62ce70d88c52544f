// Runs one Flickr upload.
#pragma once

#include "Service/UploadRun.h"

namespace korvane {

namespace FlickrRunner {

// Checks the post, then uploads it. Returns at once. Thread: any; disk and key ring are read
// on a pool thread.
void start(UploadRun run);

} // namespace FlickrRunner

} // namespace korvane
