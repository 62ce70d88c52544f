// What the person attached to a share.
#include "Platform/Social/SLAttachment.h"

#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/FileError.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSByteCountFormatter.h"
#include "Platform/ImageIO/CGImageSource.h"
#include "Platform/ImageIO/PictureProgram.h"
#include "Platform/MobileCoreServices/UTType.h"
#include "Platform/Preferences/KorvaneSettings.h"

#include <QFile>

#include <filesystem>

namespace korvane {

const QString SLAttachmentErrorDomain = QStringLiteral("SLAttachmentErrorDomain");

namespace {

constexpr qint64 typeProbe = 4096;                 // bytes that tell what a file holds
constexpr qint64 largestPhoto = 200 * 1024 * 1024; // that Flickr takes

// A file that is a picture by its contents.
struct PhotoFile {
    NSData data;
    QString type;
};

NSError unusable(const QByteArray &path, const QString &problem) {
    return FileError::make(SLAttachmentErrorDomain, SLAttachmentErrorUnusable, QFile::decodeName(path), problem);
}

std::optional<PhotoFile> openPhoto(const QByteArray &path, std::optional<NSError> *error) {
    const auto data = NSData::dataWithContentsOfFile(path, error);
    if (!data) return std::nullopt;
    if (data->length() > largestPhoto) {
        setError(error, unusable(path, localizedText("the file has %1, Flickr takes photos of up to 200 MB",
                                                     NSByteCountFormatter::stringFromByteCount(
                                                         float(data->length()), NSByteCountFormatterCountStyleFile))));
        return std::nullopt;
    }
    const auto source = CGImageSource::createWithData(*data);
    const QString type = source ? source->type() : QString();
    if (!type.isEmpty()) return PhotoFile{*data, type};
    setError(error,
             unusable(path, source ? localizedText("the file is not a picture") : localizedText("the file is empty")));
    return std::nullopt;
}

// The same picture as an asset's display image.
std::optional<NSData> displayCopy(const QByteArray &path, const PhotoFile &photo, bool asPNG,
                                  std::optional<NSError> *error) {
    QByteArrayList arguments =
        asPNG ? QByteArrayList{"--to", "png"} : QByteArrayList{"--to", "jpeg", "--quality", "100"};
    const int maxPixels = KorvaneSettings::displayImageMaxPixels();
    if (maxPixels > 0) arguments += {"--max-pixels", QByteArray::number(maxPixels)};
    std::optional<NSError> reason;
    auto copy = PictureProgram::convert(photo.data, arguments, &reason);
    if (!copy) setError(error, unusable(path, reason->localizedDescription()));
    return copy;
}

NSURL absoluteURL(const QByteArray &path) {
    std::error_code failure; // a current folder that is gone; the bytes are at hand all the same
    return NSURL::fileURLWithPath(
        QByteArray::fromStdString(std::filesystem::absolute(path.toStdString(), failure).string()));
}

// As the kernel knows it: the name may have changed since the file was opened.
QString nameOfFile(const NSData &data) {
    std::error_code failure;
    const std::string descriptor = "/proc/self/fd/" + std::to_string(data.file() ? data.file()->get() : -1);
    QString name = QFile::decodeName(std::filesystem::read_symlink(descriptor, failure).c_str());
    if (const QString mark = QStringLiteral(" (deleted)"); name.endsWith(mark)) name.chop(mark.size());
    return name;
}

bool travelsAsItIs(const QString &type) {
    return UTTypeConformsTo(type, kUTTypeJPEG) || UTTypeConformsTo(type, kUTTypePNG) ||
           UTTypeConformsTo(type, kUTTypeGIF);
}

} // namespace

std::optional<SLAttachment> SLAttachment::photoAttachment(const QByteArray &path, bool withoutMetadata,
                                                          std::optional<NSError> *error) {
    const auto photo = openPhoto(path, error);
    if (!photo) return std::nullopt;
    if (!withoutMetadata && travelsAsItIs(photo->type))
        return SLAttachment{SLAttachmentTypeData, photo->data, absoluteURL(path)};
    if (!withoutMetadata)
        if (const auto asset = ALAssetsLibrary::assetURLForFile(path))
            return SLAttachment{SLAttachmentTypeAssetURL, *asset, std::nullopt};
    const auto copy = displayCopy(path, *photo, UTTypeConformsTo(photo->type, kUTTypePNG), error);
    if (!copy) return std::nullopt;
    return SLAttachment{SLAttachmentTypeData, *copy, std::nullopt};
}

std::optional<SLAttachment> SLAttachment::videoAttachment(const QByteArray &path, std::optional<NSError> *error) {
    const auto data = NSData::dataWithContentsOfFile(path, error);
    if (!data) return std::nullopt;
    std::optional<NSError> reason;
    if (data->length() == 0)
        reason = unusable(path, localizedText("the file is empty"));
    else if (UTTypeConformsTo(typeIdentifierForData(data->subdata(0, typeProbe)), kUTTypeImage))
        reason = unusable(path, localizedText("the file is a picture; share it to Flickr"));
    const auto asset = ALAssetsLibrary::assetURLForFile(path);
    const NSURL url = asset.value_or(absoluteURL(path));
    if (!reason) ALAssetsLibrary::_probeVideoURL(url, path, &reason);
    if (reason) {
        setError(error, reason);
        return std::nullopt;
    }
    return SLAttachment{SLAttachmentTypeVideo, url, asset ? std::nullopt : std::optional(url)};
}

std::optional<NSError> SLAttachment::photoProblem(const QByteArray &path) {
    std::optional<NSError> error;
    return openPhoto(path, &error) ? std::nullopt : error;
}

NSError SLAttachment::changedError(const NSData &data) {
    return FileError::make(
        SLAttachmentErrorDomain, SLAttachmentErrorChanged, nameOfFile(data),
        localizedText("the file has changed since it was chosen. Check that it is complete, then share it again."));
}

NSError SLAttachment::unreadableError(const NSData &data, int code) {
    return NSError::errorWithErrno(code, nameOfFile(data));
}

} // namespace korvane
