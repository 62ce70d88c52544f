// The user's photo library: what is in the Pictures and Videos folders.
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"

#include "Platform/AssetsLibrary/AssetLocation.h"
#include "Platform/Foundation/Dispatch.h"
#include "Platform/ImageIO/PictureProgram.h"
#include "Platform/MobileCoreServices/UTType.h"

#include <QFile>

#include <sys/stat.h>

#include <cerrno>

namespace korvane {
namespace {

QString nameOf(const AssetLocation &location) {
    return QFile::decodeName(location.path.mid(location.path.lastIndexOf('/') + 1));
}

// Null without an error where there is no such asset.
std::shared_ptr<ALAsset> findAsset(const NSURL &url, std::optional<NSError> &error) {
    const auto location = AssetLocation::ofURL(url);
    if (!location) return nullptr;
    auto file = std::make_shared<FileDescriptor>(location->open());
    struct stat status;
    if (!*file || ::fstat(file->get(), &status) != 0) {
        if (errno != ENOENT) error = NSError::errorWithErrno(errno, nameOf(*location));
        return nullptr;
    }
    const NSData data = NSData::dataWithFile(std::move(file), 0, status.st_size);
    auto representation = std::make_shared<ALAssetRepresentation>(nameOf(*location), data);
    if (!UTTypeConformsTo(representation->UTI(), kUTTypeMovie)) {
        if (const auto reason = PictureProgram::check(data)) {
            error = NSError::errorWithDescription(
                reason->domain(), reason->code(),
                QStringLiteral("%1: %2").arg(nameOf(*location), reason->localizedDescription()));
            return nullptr;
        }
    }
    return std::make_shared<ALAsset>(url, std::move(representation));
}

} // namespace

void ALAssetsLibrary::assetForURL(const NSURL &url, ResultBlock resultBlock, FailureBlock failureBlock) const {
    dispatchGlobal([url, resultBlock = std::move(resultBlock), failureBlock = std::move(failureBlock)] {
        std::optional<NSError> error;
        const auto asset = findAsset(url, error);
        if (error)
            failureBlock(*error);
        else
            resultBlock(asset);
    });
}

std::optional<NSURL> ALAssetsLibrary::assetURLForFile(const QByteArray &path) {
    const auto location = AssetLocation::ofFile(path);
    if (!location) return std::nullopt;
    return location->url();
}

QVariantMap ALAssetsLibrary::photoRoots() {
    QVariantMap roots;
    for (const QString &folder : {QStringLiteral("pictures"), QStringLiteral("videos")})
        roots.insert(folder, photoRoot(folder));
    return roots;
}

} // namespace korvane
