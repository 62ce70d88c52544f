// The user's photo library: what is in the Pictures and Videos folders.
#pragma once

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

    // The two folders, as absolute paths under "pictures" and "videos"; KORVANE_PHOTO_LIBRARY=DIR overrides the user's
    // own with DIR/Pictures and DIR/Videos, or with DIR for one that is not there.
    static QVariantMap photoRoots();
};

} // namespace korvane
