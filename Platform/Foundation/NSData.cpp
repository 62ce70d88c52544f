// Immutable bytes, in memory or as part of a file.
#include "Platform/Foundation/NSData.h"

#include "Platform/Foundation/FileError.h"
#include "Platform/Foundation/LocalizedText.h"

#include <QFile>

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

namespace korvane {
namespace {

FileIdentity identityOf(const struct stat &status) {
    return {status.st_dev, status.st_ino, status.st_size,
            status.st_mtim.tv_sec * Q_INT64_C(1000000000) + status.st_mtim.tv_nsec};
}

} // namespace

std::optional<FileIdentity> FileIdentity::ofDescriptor(int descriptor) {
    struct stat status;
    if (::fstat(descriptor, &status) != 0) return std::nullopt;
    return identityOf(status);
}

std::optional<FileIdentity> FileIdentity::ofPath(const QByteArray &path) {
    struct stat status;
    if (::stat(path.constData(), &status) != 0) return std::nullopt;
    return identityOf(status);
}

std::optional<NSData> NSData::dataWithContentsOfFile(const QByteArray &path, std::optional<NSError> *error) {
    const auto fail = [&](int code) {
        setError(error, NSError::errorWithErrno(code, QFile::decodeName(path)));
        return std::nullopt;
    };
    if (path.contains('\0')) return fail(ENOENT);
    // O_NONBLOCK keeps a FIFO from blocking here; it means nothing to regular files.
    FileDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file) return fail(errno);
    struct stat status;
    if (::fstat(file.get(), &status) != 0) return fail(errno);
    if (S_ISDIR(status.st_mode)) return fail(EISDIR);
    if (!S_ISREG(status.st_mode)) {
        setError(error, FileError::make(NSPOSIXErrorDomain, EINVAL, QFile::decodeName(path),
                                        localizedText("not a regular file")));
        return std::nullopt;
    }
    return dataWithFile(std::make_shared<FileDescriptor>(std::move(file)), 0, status.st_size);
}

std::optional<NSData> NSData::dataWithContentsOfURL(const NSURL &url, std::optional<NSError> *error) {
    return dataWithContentsOfFile(url.fileSystemRepresentation(), error);
}

NSData NSData::dataWithFile(std::shared_ptr<const FileDescriptor> file, qint64 offset, qint64 length,
                            const std::optional<FileIdentity> &identity) {
    NSData data;
    data._identity = identity ? *identity : FileIdentity::ofDescriptor(file->get()).value_or(FileIdentity{});
    data._file = std::move(file);
    data._offset = offset;
    data._length = length;
    return data;
}

NSData NSData::subdata(qint64 location, qint64 length) const {
    location = std::clamp<qint64>(location, 0, _length);
    length = std::clamp<qint64>(length, 0, _length - location);
    NSData part = *this;
    part._length = length;
    if (_file)
        part._offset += location;
    else
        part._bytes = _bytes.mid(location, length);
    return part;
}

qint64 NSData::getBytes(char *buffer, qint64 location, qint64 length) const {
    if (location < 0 || location >= _length) return 0;
    length = std::min(length, _length - location);
    if (!_file) {
        std::copy_n(_bytes.constData() + location, length, buffer);
        return length;
    }
    qint64 done = 0;
    while (done < length) {
        const ssize_t count = ::pread(_file->get(), buffer + done, length - done, _offset + location + done);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return -1;
        if (count == 0) break;
        done += count;
    }
    return done;
}

QByteArray NSData::bytes() const {
    if (!_file) return _bytes;
    QByteArray all(_length, Qt::Uninitialized);
    all.resize(std::max<qint64>(0, getBytes(all.data(), 0, _length)));
    return all;
}

bool NSData::isIntact() const {
    return !_file || FileIdentity::ofDescriptor(_file->get()) == _identity;
}

bool operator==(const NSData &a, const NSData &b) {
    return a._length == b._length && a.bytes() == b.bytes();
}

} // namespace korvane
