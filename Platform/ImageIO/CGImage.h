// A picture that has not been decoded yet.
#pragma once

#include "Platform/Foundation/NSData.h"

namespace korvane {

// Stands for the picture in a file, upright and in sRGB, without holding any pixels: they are made when it is encoded.
struct CGImage {
    NSData file;          // the file's own bytes, in any format that can be decoded
    qint64 maxPixels = 0; // limit of the longer edge; 0 for full size
};

} // namespace korvane
