// What is looked at before an upload is begun.
#include "Service/PostCheck.h"

#include "Platform/AssetsLibrary/AssetLocation.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/MobileCoreServices/UTType.h"
#include "Service/JobError.h"

#include <QFile>

#include <sys/statvfs.h>

namespace korvane {
namespace {

constexpr qint64 typeProbe = 4096; // bytes that tell what a file holds
constexpr qint64 smallestRoom = 32 * 1024 * 1024;

PostCheck::Objection objectionWithText(JobErrorCode code, const QString &text) {
    return {jobError(code, text), code == JobErrorNoRoom};
}

// Devices have other numbers after a restart, so what was noted in an earlier life is compared without them.
bool isSameFile(const std::optional<FileIdentity> &now, const std::optional<FileIdentity> &noted) {
    return now && noted && now->inode == noted->inode && now->size == noted->size &&
           now->modifiedNanoseconds == noted->modifiedNanoseconds;
}

NSError changedError(const QString &name) {
    return jobError(JobErrorFileChanged,
                    localizedText("The file %1 has changed since it was shared. Share it again.", name));
}

// data: the file, opened.
std::optional<PostCheck::Objection> objectionToFile(const NSURL &url, const UploadJob &job,
                                                    std::optional<NSData> *data = nullptr) {
    const QString name = QFile::decodeName(url.fileSystemRepresentation());
    std::optional<NSError> error;
    const auto contents = NSData::dataWithContentsOfURL(url, &error);
    if (!contents)
        return objectionWithText(
            JobErrorFileUnreadable,
            localizedText("The file cannot be read (%1). Bring it back, then retry.", error->localizedDescription()));
    if (contents->length() == 0)
        return objectionWithText(JobErrorFileEmpty, localizedText("The file %1 is empty.", name));
    if (!isSameFile(contents->identity(), job.source)) return PostCheck::Objection{changedError(name)};
    if (data) *data = contents;
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
        return objectionWithText(JobErrorNoRoom,
                                 localizedText("There is no room to convert %1 in %2.",
                                               QFile::decodeName(location->path), NSTemporaryDirectory()));
    if (!UTTypeConformsTo(typeIdentifierForData(NSData::dataWithFile(file, 0, typeProbe)), kUTTypeMovie))
        return std::nullopt;
    return objectionWithText(JobErrorNoPicture,
                             localizedText("%1 is a video. Share it to Vimeo.", QFile::decodeName(location->path)));
}

// what: "photo" or "video", in the user's language.
std::optional<PostCheck::Objection> objectionToData(const std::optional<NSData> &data, const UploadJob &job,
                                                    const QString &what) {
    if (!data && job.spoolFile.isEmpty())
        return objectionWithText(JobErrorNothingToUpload,
                                 localizedText("The post holds no %1. Share the %1 again.", what));
    if (!data)
        return objectionWithText(JobErrorDataLost,
                                 localizedText("The %1's data is gone from this device. Share it again.", what));
    if (data->length() == 0) return objectionWithText(JobErrorFileEmpty, localizedText("The %1 is empty.", what));
    const auto file = data->file() ? FileIdentity::ofDescriptor(data->file()->get()) : std::nullopt;
    if (file && file->size < data->fileOffset() + data->length())
        return objectionWithText(JobErrorDataLost,
                                 localizedText("The %1's data was damaged on this device. Share it again.", what));
    return std::nullopt;
}

} // namespace

RunOutcome PostCheck::outcomeOfObjection(const Objection &objection) {
    return {objection.mayPass ? RunOutcome::Hindered : RunOutcome::Unusable, objection.error};
}

std::optional<PostCheck::Objection> PostCheck::prepare(FlickrPost &post, const UploadJob &job) {
    const QString scheme = post.assetURL ? post.assetURL->scheme() : QString();
    if (post.photoID != 0) return std::nullopt;
    if (scheme == QLatin1String("assets-library")) return objectionToAsset(*post.assetURL);
    if (scheme != QLatin1String("file")) return objectionToData(post.photoData, job, localizedText("photo"));
    if (const auto objection = objectionToFile(*post.assetURL, job, &post.photoData)) return objection;
    post.assetURL.reset();
    return std::nullopt;
}

std::optional<PostCheck::Objection> PostCheck::prepare(const VimeoPost &post, const UploadJob &job) {
    const QString scheme = post.assetURL ? post.assetURL->scheme() : QString();
    if (!post.title || post.title->isEmpty())
        return objectionWithText(JobErrorNoTitle,
                                 localizedText("A video on Vimeo needs a title. Share it again with one."));
    if (job.video && job.video->videoID.isValid()) return std::nullopt; // its bytes are there
    if (scheme == QLatin1String("assets-library")) return std::nullopt; // the export says what is wrong with it
    if (scheme == QLatin1String("file")) return objectionToFile(*post.assetURL, job);
    return objectionToData(post.assetData, job, localizedText("video"));
}

std::optional<NSError> PostCheck::objectionToChange(const VimeoPost &post, const UploadJob &job) {
    if (!job.source || !post.dataReader) return std::nullopt;
    if (isSameFile(FileIdentity::ofDescriptor(post.dataReader->readHandle->file()->get()), job.source))
        return std::nullopt;
    return changedError(QFile::decodeName(post.assetURL->fileSystemRepresentation()));
}

} // namespace korvane
