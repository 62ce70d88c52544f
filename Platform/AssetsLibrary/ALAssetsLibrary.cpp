// The user's photo library: what is in the Pictures and Videos folders.
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"

#include "Platform/AVFoundation/AVError.h"
#include "Platform/AVFoundation/ExportPlan.h"
#include "Platform/AVFoundation/MediaInfo.h"
#include "Platform/AssetsLibrary/AssetLocation.h"
#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/ImageIO/PictureProgram.h"
#include "Platform/MobileCoreServices/UTType.h"

#include <QFile>

#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <mutex>

namespace korvane {
namespace {

constexpr std::chrono::seconds longestProbe(60); // on a busy machine; it takes a tenth of one else

QString nameOf(const QByteArray &path) {
    return QFile::decodeName(path.mid(path.lastIndexOf('/') + 1));
}

QString nameOf(const AssetLocation &location) {
    return nameOf(location.path);
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

NSError noVideo(const QString &what, const QString &reason) {
    return avError(AVErrorContentIsUnavailable,
                   localizedText("The video “%1” cannot be opened (%2). Choose it again.", what, reason));
}

AVAsset videoInLibrary(const NSURL &url) {
    const auto location = AssetLocation::ofURL(url);
    if (!location) return {url.absoluteString(), {}, noVideo(url.absoluteString(), localizedText("no such asset"))};
    auto file = std::make_shared<FileDescriptor>(location->open());
    struct stat status;
    if (!*file || ::fstat(file->get(), &status) != 0)
        return {nameOf(*location), {}, noVideo(nameOf(*location), qt_error_string(errno))};
    return {nameOf(*location), NSData::dataWithFile(std::move(file), 0, status.st_size), {}};
}

AVAsset videoInFile(const QByteArray &path) {
    std::optional<NSError> error;
    auto data = NSData::dataWithContentsOfFile(path, &error);
    if (error) error = noVideo(nameOf(path), error->localizedDescription());
    return {nameOf(path), std::move(data), std::move(error)};
}

AVAsset videoAt(const NSURL &url, const std::optional<QByteArray> &fallbackFilePath) {
    AVAsset asset = url.isFileURL() ? videoInFile(url.fileSystemRepresentation()) : videoInLibrary(url);
    if (asset.file || !fallbackFilePath) return asset;
    AVAsset other = videoInFile(*fallbackFilePath);
    return other.file ? other : asset;
}

// The video that was looked into last: a sheet has one, and asks about it several times.
struct LastVideo {
    std::mutex mutex;
    std::optional<FileIdentity> file;
    std::optional<MediaInfo> info;
};

LastVideo &lastVideo() {
    static LastVideo video;
    return video;
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

std::shared_ptr<AVAssetExportSession>
ALAssetsLibrary::_exportSessionForVideoURL(const NSURL &url, const std::optional<QByteArray> &fallbackFilePath,
                                           const std::optional<QString> &exportPreset) {
    return AVAssetExportSession::exportSessionWithAsset(videoAt(url, fallbackFilePath), exportPreset);
}

bool ALAssetsLibrary::_probeVideoURL(const NSURL &url, const std::optional<QByteArray> &fallbackFilePath,
                                     std::optional<NSError> *error) {
    const AVAsset asset = videoAt(url, fallbackFilePath);
    if (!asset.file) {
        setError(error, asset.error);
        return false;
    }
    const auto info = MediaInfo::ofAsset(asset, longestProbe, {}, error);
    LastVideo &last = lastVideo();
    const std::lock_guard lock(last.mutex);
    last.file = FileIdentity::ofDescriptor(asset.file->file()->get());
    last.info = info;
    return info.has_value();
}

qint64 ALAssetsLibrary::_estimatedOutputFileLengthForVideoURL(const NSURL &url,
                                                              const std::optional<QByteArray> &fallbackFilePath,
                                                              const std::optional<QString> &exportPreset,
                                                              const std::optional<QVariantMap> &) {
    const AVAsset asset = videoAt(url, fallbackFilePath);
    if (!asset.file) return 0;
    LastVideo &last = lastVideo();
    const std::lock_guard lock(last.mutex);
    const bool isKnown = last.info && last.file == FileIdentity::ofDescriptor(asset.file->file()->get());
    return isKnown ? ExportPlan(*last.info, exportPreset).estimatedLength() : 0;
}

QVariantMap ALAssetsLibrary::photoRoots() {
    QVariantMap roots;
    for (const QString &folder : {QStringLiteral("pictures"), QStringLiteral("videos")})
        roots.insert(folder, photoRoot(folder));
    return roots;
}

} // namespace korvane
