// The folder in which the service keeps the data of posts.
#include "Service/Spool.h"

#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/LocalizedText.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <sys/sendfile.h>
#include <sys/stat.h>

#include <cerrno>

namespace korvane {

Spool::Spool(QString folder) : _folder(std::move(folder)) {
    makePrivateFolder(_folder);
}

std::optional<QString> Spool::adopt(int file, std::optional<NSError> *error) const {
    const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QByteArray path = _pathOf(name);
    const FileDescriptor folder(::open(QFile::encodeName(_folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if ((_link(file, path) || _copy(file, path)) && ::fsync(folder.get()) == 0) return name;
    setError(error,
             NSError::errorWithErrno(errno, localizedText("The data to be shared cannot be stored in %1", _folder)));
    ::unlink(path.constData());
    return std::nullopt;
}

bool Spool::_link(int file, const QByteArray &path) const {
    if (::fdatasync(file) != 0) return false;
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(file);
    if (::linkat(AT_FDCWD, self.constData(), AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW) != 0) return false;
    ::fchmod(file, 0400); // from here on nobody has a reason to write to it
    return true;
}

bool Spool::_copy(int file, const QByteArray &path) const {
    struct stat status;
    if (::fstat(file, &status) != 0) return false;
    const FileDescriptor copy(::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0400));
    if (!copy) return false;
    off_t offset = 0;
    while (offset < status.st_size) {
        const ssize_t count = ::sendfile(copy.get(), file, &offset, size_t(status.st_size - offset));
        if (count == 0) errno = ENODATA;
        if (count <= 0) return false;
    }
    return ::fdatasync(copy.get()) == 0;
}

std::shared_ptr<const FileDescriptor> Spool::open(const QString &name) const {
    auto file = std::make_shared<FileDescriptor>(::open(_pathOf(name).constData(), O_RDONLY | O_CLOEXEC));
    return *file ? file : nullptr;
}

NSURL Spool::urlOf(const QString &name) const {
    return NSURL::fileURLWithPath(_pathOf(name));
}

void Spool::remove(const QString &name) const {
    ::unlink(_pathOf(name).constData());
}

void Spool::sweep(const QSet<QString> &known) const {
    const QStringList names = QDir(_folder).entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names)
        if (!known.contains(name)) remove(name);
}

QByteArray Spool::_pathOf(const QString &name) const {
    return QFile::encodeName(_folder + u'/' + name);
}

} // namespace korvane
