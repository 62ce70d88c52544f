// What the person attached to a share, as the share sheet and the command line give it.
#pragma once

#include "Platform/Foundation/NSData.h"
#include "Platform/Foundation/NSError.h"
#include "Platform/Foundation/NSURL.h"

#include <optional>
#include <variant>

namespace korvane {

extern const QString SLAttachmentErrorDomain;

// These and those of files have their reason apart from the file's name: FileError::reasonOf().
enum SLAttachmentErrorCode : qint64 {
    SLAttachmentErrorUnusable = 1, // empty, no picture, or one that is damaged
    SLAttachmentErrorChanged = 2,  // not the file any more that the attachment was made of
};

enum SLAttachmentType : qint64 {
    SLAttachmentTypeData = 0,     // the payload is the encoded photo
    SLAttachmentTypeAssetURL = 2, // the payload is the URL of an asset in the photo library
    SLAttachmentTypeVideo = 8,    // the payload is the URL of a video, or its data
};

struct SLAttachment {
    qint64 type = SLAttachmentTypeData;
    std::variant<std::monostate, NSData, NSURL> payload;
    std::optional<NSURL> payloadSourceFileURL; // the file whose own bytes are the payload

    // The photo in a file, given in the file system's own bytes. JPEG, PNG and GIF are their own bytes, left in their
    // file. Other formats: an asset if the file is in the photo library, else converted to JPEG here. Without metadata
    // any picture is a copy made here, upright and in sRGB, a PNG of a PNG and a JPEG of everything else. Converting
    // blocks. Null, with an error placed that names the file. Thread: any; a window calls it on the global queue.
    static std::optional<SLAttachment> photoAttachment(const QByteArray &path, bool withoutMetadata,
                                                       std::optional<NSError> *error = nullptr);

    // What makes the file unusable as a photo, as far as it can be told without decoding it; null if nothing does.
    // NSPOSIXErrorDomain where it cannot be read.
    static std::optional<NSError> photoProblem(const QByteArray &path);

    // Of a file's data that is not what it was when the attachment was made, or that a disk does not give; these name
    // the file.
    static NSError changedError(const NSData &data);
    static NSError unreadableError(const NSData &data, int code);

    // The video in a file: its URL in the photo library if it is there, else the file's. Its streams are looked at,
    // which blocks for about a tenth of a second. Null, with an error placed that names the file, for what is no video
    // that could be played. The sizes of its exports are known after that (see ALAssetsLibrary). Thread: any; a window
    // calls it on the global queue.
    static std::optional<SLAttachment> videoAttachment(const QByteArray &path, std::optional<NSError> *error = nullptr);
};

} // namespace korvane
