// What is looked at before an upload is begun.
#include "Service/PostCheck.h"

#include "Platform/AssetsLibrary/AssetLocation.h"
#include "Platform/MobileCoreServices/UTType.h"

#include <QFile>

namespace korvane {

const QString PostCheck::ErrorDomain = QStringLiteral("KorvanePostCheckErrorDomain");

namespace {

constexpr qint64 typeProbe = 4096; // bytes that tell what a file holds

enum Objection { NothingToUpload = 1, FileUnreadable = 2, FileEmpty = 3, FileChanged = 4, DataLost = 5, NoPicture = 6 };

NSError objectionWithText(Objection code, const QString &text) {
    return NSError::errorWithDescription(PostCheck::ErrorDomain, code, text);
}

std::optional<NSError> objectionToFile(const NSURL &url, const UploadJob &job) {
    const QString name = QFile::decodeName(url.fileSystemRepresentation());
    std::optional<NSError> error;
    const auto data = NSData::dataWithContentsOfURL(url, &error);
    if (!data)
        return objectionWithText(FileUnreadable,
                                 QStringLiteral("The file cannot be read (%1). Bring it back, then retry.").arg(error->localizedDescription()));
    if (data->length() == 0) return objectionWithText(FileEmpty, QStringLiteral("The file %1 is empty.").arg(name));
    if (job.source && FileIdentity::ofDescriptor(data->file()->get()) != job.source)
        return objectionWithText(FileChanged, QStringLiteral("The file %1 has changed since it was shared. Share it again.").arg(name));
    return std::nullopt;
}

// An asset that is gone or unreadable is reported by the library; but what it holds must be a picture.
std::optional<NSError> objectionToAsset(const NSURL &url) {
    const auto location = AssetLocation::ofURL(url);
    auto file = std::make_shared<FileDescriptor>(location ? location->open() : FileDescriptor());
    if (!*file || !UTTypeConformsTo(typeIdentifierForData(NSData::dataWithFile(file, 0, typeProbe)), kUTTypeMovie))
        return std::nullopt;
    return objectionWithText(NoPicture, QStringLiteral("%1 is a video. Share it to Vimeo.").arg(QFile::decodeName(location->path)));
}

std::optional<NSError> objectionToData(const NSData &data) {
    if (data.length() == 0) return objectionWithText(FileEmpty, QStringLiteral("The photo is empty."));
    const auto file = data.file() ? FileIdentity::ofDescriptor(data.file()->get()) : std::nullopt;
    if (file && file->size < data.fileOffset() + data.length())
        return objectionWithText(DataLost, QStringLiteral("The photo's data was damaged on this device. Share it again."));
    return std::nullopt;
}

} // namespace

std::optional<NSError> PostCheck::objection(const FlickrPost &post, const UploadJob &job) {
    const QString scheme = post.assetURL ? post.assetURL->scheme() : QString();
    if (post.photoID != 0) return std::nullopt;
    if (scheme == QLatin1String("assets-library")) return objectionToAsset(*post.assetURL);
    if (scheme == QLatin1String("file")) return objectionToFile(*post.assetURL, job);
    if (post.photoData) return objectionToData(*post.photoData);
    if (!job.spoolFile.isEmpty())
        return objectionWithText(DataLost, QStringLiteral("The photo's data is gone from this device. Share it again."));
    return objectionWithText(NothingToUpload, QStringLiteral("The post holds no photo. Share the photo again."));
}

} // namespace korvane
