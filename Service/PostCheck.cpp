// What is looked at before an upload is begun.
#include "Service/PostCheck.h"

#include "Platform/AssetsLibrary/AssetLocation.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/MobileCoreServices/UTType.h"

#include <QFile>

#include <sys/statvfs.h>

namespace korvane {

const QString PostCheck::ErrorDomain = QStringLiteral("KorvanePostCheckErrorDomain");

namespace {

constexpr qint64 typeProbe = 4096; // bytes that tell what a file holds
constexpr qint64 smallestRoom = 32 * 1024 * 1024;

enum Reason {
    NothingToUpload = 1,
    FileUnreadable = 2,
    FileEmpty = 3,
    FileChanged = 4,
    DataLost = 5,
    NoPicture = 6,
    NoRoom = 7
};

PostCheck::Objection objectionWithText(Reason code, const QString &text) {
    return {NSError::errorWithDescription(PostCheck::ErrorDomain, code, text), code == NoRoom};
}

std::optional<PostCheck::Objection> objectionToFile(FlickrPost &post, const UploadJob &job) {
    const NSURL url = *post.assetURL;
    const QString name = QFile::decodeName(url.fileSystemRepresentation());
    std::optional<NSError> error;
    const auto data = NSData::dataWithContentsOfURL(url, &error);
    if (!data)
        return objectionWithText(FileUnreadable,
                                 QStringLiteral("The file cannot be read (%1). Bring it back, then retry.")
                                     .arg(error->localizedDescription()));
    if (data->length() == 0) return objectionWithText(FileEmpty, QStringLiteral("The file %1 is empty.").arg(name));
    if (!job.source || FileIdentity::ofDescriptor(data->file()->get()) != job.source)
        return objectionWithText(
            FileChanged, QStringLiteral("The file %1 has changed since it was shared. Share it again.").arg(name));
    post.photoData = data;
    post.assetURL.reset();
    return std::nullopt;
}

// An encoded picture is larger than the compressed one that it is made from; this much is enough for ordinary ones.
bool hasRoomToEncode(qint64 assetSize) {
    const QByteArray folder = QFile::encodeName(NSTemporaryDirectory());
    struct statvfs space;
    const FileDescriptor probe(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!probe || ::faccessat(AT_FDCWD, folder.constData(), W_OK, AT_EACCESS) != 0) return false;
    return ::fstatvfs(probe.get(), &space) != 0 ||
           qint64(space.f_bavail * space.f_frsize) > 8 * assetSize + smallestRoom;
}

// An asset that is gone or unreadable is reported by the library; but what it holds must be a picture.
std::optional<PostCheck::Objection> objectionToAsset(const NSURL &url) {
    const auto location = AssetLocation::ofURL(url);
    auto file = std::make_shared<FileDescriptor>(location ? location->open() : FileDescriptor());
    if (!*file) return std::nullopt;
    if (!hasRoomToEncode(FileIdentity::ofDescriptor(file->get()).value_or(FileIdentity{}).size))
        return objectionWithText(NoRoom, QStringLiteral("There is no room to convert %1 in %2.")
                                             .arg(QFile::decodeName(location->path), NSTemporaryDirectory()));
    if (!UTTypeConformsTo(typeIdentifierForData(NSData::dataWithFile(file, 0, typeProbe)), kUTTypeMovie))
        return std::nullopt;
    return objectionWithText(
        NoPicture, QStringLiteral("%1 is a video. Share it to Vimeo.").arg(QFile::decodeName(location->path)));
}

std::optional<PostCheck::Objection> objectionToData(const NSData &data) {
    if (data.length() == 0) return objectionWithText(FileEmpty, QStringLiteral("The photo is empty."));
    const auto file = data.file() ? FileIdentity::ofDescriptor(data.file()->get()) : std::nullopt;
    if (file && file->size < data.fileOffset() + data.length())
        return objectionWithText(DataLost,
                                 QStringLiteral("The photo's data was damaged on this device. Share it again."));
    return std::nullopt;
}

} // namespace

std::optional<PostCheck::Objection> PostCheck::prepare(FlickrPost &post, const UploadJob &job) {
    const QString scheme = post.assetURL ? post.assetURL->scheme() : QString();
    if (post.photoID != 0) return std::nullopt;
    if (scheme == QLatin1String("assets-library")) return objectionToAsset(*post.assetURL);
    if (scheme == QLatin1String("file")) return objectionToFile(post, job);
    if (post.photoData) return objectionToData(*post.photoData);
    if (!job.spoolFile.isEmpty())
        return objectionWithText(DataLost,
                                 QStringLiteral("The photo's data is gone from this device. Share it again."));
    return objectionWithText(NothingToUpload, QStringLiteral("The post holds no photo. Share the photo again."));
}

} // namespace korvane
