// A picture, and its encoders.
#include "Platform/UIKit/UIImage.h"

#include "Platform/Foundation/NSLog.h"
#include "Platform/ImageIO/PictureProgram.h"

#include <algorithm>
#include <cmath>

namespace korvane {
namespace {

constexpr qint64 largestLimit = 1'000'000; // that the program takes

std::optional<NSData> encode(const UIImage &image, QByteArrayList arguments) {
    const qint64 limit = std::min(image.image().maxPixels, largestLimit);
    if (limit > 0) arguments += {"--max-pixels", QByteArray::number(limit)};
    std::optional<NSError> error;
    auto data = PictureProgram::convert(image.image().file, arguments, &error);
    if (!data) NSLog("Failed to encode an image: %@", error);
    return data;
}

} // namespace

std::optional<NSData> UIImagePNGRepresentation(const UIImage &image) {
    return encode(image, {"--to", "png"});
}

std::optional<NSData> UIImageJPEGRepresentation(const UIImage &image, double quality) {
    const int percent = std::clamp(int(std::lround(quality * 100)), 1, 100);
    return encode(image, {"--to", "jpeg", "--quality", QByteArray::number(percent)});
}

} // namespace korvane
