// What the programs' exit status says.
#pragma once

#include "Platform/Foundation/NSError.h"

namespace korvane {

enum ExitStatus : int {
    ExitDone = 0,
    ExitUploadFailed = 1, // an upload failed, or something that has no status of its own
    ExitUsage = 2,        // bad usage, a file that cannot be used, or no such upload or account
    ExitNoAccount = 3,    // or one whose credential cannot be used
    // The upload service cannot be reached, runs with other settings, or cannot take anything just now.
    ExitUnreachable = 4,
};

// The exit status that an error of the hand-over or of the status interface leads to.
ExitStatus exitStatusOf(const NSError &error);

} // namespace korvane
