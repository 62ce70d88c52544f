// What the command line's exit status says.
#pragma once

namespace korvane {

enum ExitStatus : int {
    ExitDone = 0,
    ExitUploadFailed = 1, // an upload failed, or something that has no status of its own
    ExitUsage = 2,        // bad usage, or a file that cannot be used
    ExitNoAccount = 3,
    ExitUnreachable = 4, // the upload service cannot be reached
};

} // namespace korvane
