// Where an asset is: which file below which of the two folders of the photo library.
#include "Platform/AssetsLibrary/AssetLocation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <cerrno>
#include <climits>
#include <cstdlib>

namespace korvane {
namespace {

const QString pictures = QStringLiteral("pictures");
const QString videos = QStringLiteral("videos");

// Asked again when a rename of a folder on the way makes the kernel unsure.
constexpr int mostTries = 100;

FileDescriptor openBeneath(int folder, const QByteArray &path) {
    struct open_how how {};
    how.flags = O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_MAGICLINKS;
    FileDescriptor file;
    for (int tries = 0; !file && tries < mostTries; ++tries) {
        file = FileDescriptor(int(::syscall(SYS_openat2, folder, path.constData(), &how, sizeof how)));
        if (!file && errno != EAGAIN && errno != EINTR) break;
    }
    return file;
}

QByteArray resolved(const QByteArray &path) {
    char buffer[PATH_MAX];
    return ::realpath(path.constData(), buffer) ? QByteArray(buffer) : QByteArray();
}

// The extension in capitals; empty where the name has none.
QByteArray extensionOf(const QByteArray &path) {
    const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
    const qsizetype dot = name.lastIndexOf('.');
    return dot > 0 ? name.mid(dot + 1).toUpper() : QByteArray();
}

QByteArray queryValue(const NSURL &url, const QByteArray &name) {
    const QByteArrayList items = url.query().toLatin1().split('&');
    for (const QByteArray &item : items) {
        if (item.startsWith(name + '=')) return QByteArray::fromPercentEncoding(item.mid(name.size() + 1));
    }
    return {};
}

} // namespace

std::optional<AssetLocation> AssetLocation::ofURL(const NSURL &url) {
    if (url.scheme() != QLatin1String("assets-library")) return std::nullopt;
    const QByteArray id = queryValue(url, "id");
    const qsizetype slash = id.indexOf('/');
    const QString folder = QString::fromLatin1(id.left(slash));
    if (slash < 0 || slash == id.size() - 1 || (folder != pictures && folder != videos)) return std::nullopt;
    if (id.contains('\0')) return std::nullopt; // the kernel would see another name
    return AssetLocation{folder, id.mid(slash + 1)};
}

std::optional<AssetLocation> AssetLocation::ofFile(const QByteArray &path) {
    const QByteArray file = resolved(path);
    struct stat status;
    if (file.isEmpty() || ::stat(file.constData(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    std::optional<AssetLocation> location;
    for (const QString &folder : {pictures, videos}) {
        const QByteArray root = resolved(QFile::encodeName(photoRoot(folder)));
        if (root.isEmpty() || root == "/" || !file.startsWith(root + '/')) continue;
        const QByteArray below = file.mid(root.size() + 1);
        // Where one folder is inside the other the inner one is meant.
        if (!location || below.size() < location->path.size()) location = AssetLocation{folder, below};
    }
    return location;
}

NSURL AssetLocation::url() const {
    const QByteArray extension = extensionOf(path).toPercentEncoding();
    const QByteArray id = (folder.toLatin1() + '/' + path).toPercentEncoding();
    const QByteArray name = extension.isEmpty() ? QByteArray("asset") : "asset." + extension;
    return *NSURL::URLWithString(
        QString::fromLatin1("assets-library://asset/" + name + "?id=" + id + "&ext=" + extension));
}

FileDescriptor AssetLocation::open() const {
    const QByteArray root = QFile::encodeName(photoRoot(folder));
    const FileDescriptor base(::open(root.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    FileDescriptor file = base ? openBeneath(base.get(), path) : FileDescriptor();
    struct stat status;
    const bool isRegular = file && ::fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode);
    if (isRegular) return file;
    const bool leadsNowhere =
        file || errno == EXDEV || errno == ELOOP || errno == ENOTDIR || errno == ENAMETOOLONG || errno == ENXIO;
    file.reset();
    if (leadsNowhere) errno = ENOENT;
    return file;
}

QString photoRoot(const QString &folder) {
    const bool isPictures = folder == pictures;
    const QString library = QFile::decodeName(qgetenv("KORVANE_PHOTO_LIBRARY"));
    if (library.isEmpty())
        return QStandardPaths::writableLocation(isPictures ? QStandardPaths::PicturesLocation
                                                           : QStandardPaths::MoviesLocation);
    const QString inner =
        QDir(library).absoluteFilePath(isPictures ? QStringLiteral("Pictures") : QStringLiteral("Videos"));
    return QFileInfo(inner).isDir() ? inner : QDir(library).absolutePath();
}

} // namespace korvane
