// Type identifiers: what kind of contents a file holds, and which kinds are special cases of others.
#pragma once

#include "Platform/Foundation/NSData.h"

#include <QString>

namespace korvane {

extern const QString kUTTypeItem;
extern const QString kUTTypeImage;
extern const QString kUTTypeJPEG;
extern const QString kUTTypePNG;
extern const QString kUTTypeGIF;
extern const QString kUTTypeTIFF;
extern const QString kUTTypeBMP;
extern const QString kUTTypeHEIC;
extern const QString kUTTypeAVIF;
extern const QString kUTTypeWebP;
extern const QString kUTTypeJPEGXL;
extern const QString kUTTypeMovie;
extern const QString kUTTypeMPEG4;

// Whether type is conformingTo or a special case of it. False for empty and unknown types, which conform only to
// themselves.
bool UTTypeConformsTo(const QString &type, const QString &conformingTo);

// Any picture has at least kUTTypeImage, any video at least kUTTypeMovie; empty for everything else.
QString typeIdentifierForMimeType(const QString &mimeType);

// The type of the contents, told by their first bytes alone; empty for neither picture nor video.
QString typeIdentifierForData(const NSData &data);

} // namespace korvane
