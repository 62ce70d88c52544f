// A media file, opened for reading.
#pragma once

#include "Platform/Foundation/NSData.h"
#include "Platform/Foundation/NSError.h"

#include <QString>

#include <optional>

namespace korvane {

struct AVAsset {
    QString name;                 // the file's, for texts
    std::optional<NSData> file;   // the whole of a regular file
    std::optional<NSError> error; // where there is no file: why
};

} // namespace korvane
