// The user's photo library: what is in the Pictures and Videos folders.
#pragma once

#include "Platform/AVFoundation/AVAssetExportSession.h"
#include "Platform/AssetsLibrary/ALAsset.h"
#include "Platform/Foundation/NSError.h"
#include "Platform/Foundation/NSURL.h"

#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>

namespace korvane {

class ALAssetsLibrary {
public:
    // Null where there is no such asset: no such file, a path that leads out of the library, or not an asset URL at
    // all.
    using ResultBlock = std::function<void(const std::shared_ptr<ALAsset> &asset)>;
    // NSPOSIXErrorDomain where the file cannot be read, PictureErrorDomain where it is no picture that can be decoded.
    using FailureBlock = std::function<void(const NSError &error)>;

    // Looks the asset up and decodes it to the end, so that encoding it later does not fail (videos are not looked
    // into). Exactly one of the blocks runs, once, on a pool thread. The library object need not live until then.
    void assetForURL(const NSURL &url, ResultBlock resultBlock, FailureBlock failureBlock) const;

    // The asset URL of a regular file; null if it is not inside the library once symbolic links are resolved. The path
    // is given in the file system's own bytes.
    static std::optional<NSURL> assetURLForFile(const QByteArray &path);

    // Videos of the library ("assets-library" URLs) or of any place ("file" URLs); fallbackFilePath, in the file
    // system's own bytes, is taken where the URL leads nowhere. exportPreset as in AVAssetExportSession.

    // Never null: a session for a video that is not there fails with an error when it is started. The file is opened
    // here.
    static std::shared_ptr<AVAssetExportSession>
    _exportSessionForVideoURL(const NSURL &url, const std::optional<QByteArray> &fallbackFilePath,
                              const std::optional<QString> &exportPreset);
    // Looks into the video, for the estimates below; blocks for about a tenth of a second, and for 20 seconds at most.
    // False, with the error placed, for what is no video that could be played.
    static bool _probeVideoURL(const NSURL &url, const std::optional<QByteArray> &fallbackFilePath,
                               std::optional<NSError> *error = nullptr);
    // Bytes of the MP4 file that such a session would make, as far as can be told without making it; 0 if unknown, and
    // for a file that was not the last one looked into. exportProperties are not looked at. Does not block.
    static qint64 _estimatedOutputFileLengthForVideoURL(const NSURL &url,
                                                        const std::optional<QByteArray> &fallbackFilePath,
                                                        const std::optional<QString> &exportPreset,
                                                        const std::optional<QVariantMap> &exportProperties);

    // The two folders, as absolute paths under "pictures" and "videos"; KORVANE_PHOTO_LIBRARY=DIR overrides the user's
    // own with DIR/Pictures and DIR/Videos, or with DIR for one that is not there.
    static QVariantMap photoRoots();
};

} // namespace korvane
