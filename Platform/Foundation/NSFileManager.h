// Changes to the file system.
#pragma once

#include "Platform/Foundation/NSError.h"
#include "Platform/Foundation/NSURL.h"

namespace korvane {

// Thread: any.
class NSFileManager {
public:
    static const NSFileManager &defaultManager();

    // Removes a file, a symbolic link itself, or an empty folder. False, with the error placed, if it cannot be removed
    // or the URL is no "file" URL.
    bool removeItemAtURL(const NSURL &url, std::optional<NSError> *error = nullptr) const;
};

} // namespace korvane
