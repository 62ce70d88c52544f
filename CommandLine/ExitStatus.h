// What the command line's exit status says.
#pragma once

namespace korvane {

enum ExitStatus : int {
    ExitDone = 0,
    ExitUploadFailed = 1, // an upload failed, or something that has no status of its own
    ExitUsage = 2,        // bad usage, a file that cannot be used, or no such upload or account
    ExitNoAccount = 3,    // or one whose credential cannot be used
    // The upload service cannot be reached, runs with other settings, or cannot take anything just now.
    ExitUnreachable = 4,
};

} // namespace korvane
