// Runs one Vimeo upload.
#pragma once

#include "Service/UploadRun.h"

namespace korvane {

namespace VimeoRunner {

// Checks the post, then uploads it, going on where the run before got to. Returns at once.
// Thread: any; disk and key ring are read on pool threads.
void start(UploadRun run);

} // namespace VimeoRunner

} // namespace korvane
