// Decoding and encoding of pictures in a process of their own, by the program korvane-picture.
#pragma once

#include "Platform/Foundation/NSData.h"

#include <QByteArrayList>

#include <optional>
#include <stop_token>

namespace korvane {

extern const QString PictureErrorDomain;
inline constexpr qint64 PictureErrorUnusable =
    1; // damaged, too large, or no picture at all; the description says which

// A hostile or damaged file can harm or hold up only that process, and its memory goes with it. The calls block.
// Errors are of PictureErrorDomain where the picture is to blame, else of NSPOSIXErrorDomain (program missing, disk
// full). Thread: any.
namespace PictureProgram {

// Null if the whole picture can be decoded.
std::optional<NSError> check(const NSData &picture);

// Runs "convert" with further arguments; the result is an unnamed file in the temporary folder.
std::optional<NSData> convert(const NSData &picture, const QByteArrayList &arguments,
                              std::optional<NSError> *error = nullptr);

// A JPEG that fits into a square of that many pixels, upright, made quickly. A request to stop ends it early.
std::optional<NSData> thumbnail(const NSData &picture, int maxPixels, std::stop_token cancellation = {},
                                std::optional<NSError> *error = nullptr);

} // namespace PictureProgram

} // namespace korvane
