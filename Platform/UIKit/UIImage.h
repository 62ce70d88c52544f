// A picture, and its encoders.
#pragma once

#include "Platform/ImageIO/CGImage.h"

#include <optional>

namespace korvane {

// Holds no pixels: they are made when it is encoded, in another process.
class UIImage {
public:
    static UIImage imageWithCGImage(CGImage image) { return UIImage(std::move(image)); }

    const CGImage &image() const { return _image; }

private:
    explicit UIImage(CGImage image) : _image(std::move(image)) {}
    CGImage _image;
};

// The encoders give the upright picture in sRGB without any metadata. The bytes are in an unnamed file in the temporary
// folder, so that memory does not grow with the picture. Null, with a line in the log, if the image cannot be encoded.
// They block for as long as the encoding takes. Thread: any.
std::optional<NSData> UIImagePNGRepresentation(const UIImage &image);
// quality is 0 (smallest) to 1 (best); transparent places become white.
std::optional<NSData> UIImageJPEGRepresentation(const UIImage &image, double quality);

} // namespace korvane
