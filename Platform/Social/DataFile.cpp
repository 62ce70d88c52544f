// The unnamed file in which the data of one hand-over travels.
#include "Platform/Social/DataFile.h"

#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Social/SLAttachment.h"

#include <QFile>

#include <cerrno>
#include <cstdlib>
#include <vector>

namespace korvane {
namespace {

constexpr qint64 pageSize = 4096;
constexpr qint64 copyBuffer = 1024 * 1024;

FileDescriptor unnamedFile(const QByteArray &folder) {
    FileDescriptor file(::open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
    if (file || (errno != EOPNOTSUPP && errno != EISDIR && errno != ENOENT)) return file;
    QByteArray name = folder + "/handover.XXXXXX";
    file = FileDescriptor(::mkostemp(name.data(), O_CLOEXEC));
    if (file) ::unlink(name.constData());
    return file;
}

bool writeAll(int descriptor, const char *bytes, qint64 length, qint64 offset) {
    while (length > 0) {
        const ssize_t count = ::pwrite(descriptor, bytes, length, offset);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        bytes += count;
        length -= count;
        offset += count;
    }
    return true;
}

// The kernel's own copy, as far as it goes. Returns the number of bytes copied.
qint64 copyRange(const NSData &data, int target, qint64 offset) {
    if (!data.file()) return 0;
    loff_t from = data.fileOffset();
    loff_t to = offset;
    qint64 done = 0;
    while (done < data.length()) {
        const ssize_t count = ::copy_file_range(data.file()->get(), &from, target, &to, data.length() - done, 0);
        if (count <= 0) break;
        done += count;
    }
    return done;
}

std::optional<NSError> copyByHand(const NSData &data, qint64 done, int target, qint64 offset) {
    std::vector<char> buffer(copyBuffer);
    while (done < data.length()) {
        const qint64 count = data.getBytes(buffer.data(), done, copyBuffer);
        if (count < 0) return SLAttachment::unreadableError(data, errno);
        if (count == 0) return SLAttachment::changedError(data);
        if (!writeAll(target, buffer.data(), count, offset + done))
            return NSError::errorWithErrno(errno, localizedText("Cannot copy the data to be shared"));
        done += count;
    }
    return std::nullopt;
}

} // namespace

std::optional<DataFile> DataFile::create(const QString &folder, std::optional<NSError> *error) {
    makePrivateFolder(folder);
    FileDescriptor file = unnamedFile(QFile::encodeName(folder));
    if (file) return DataFile(std::move(file));
    setError(error, NSError::errorWithErrno(errno, localizedText("Cannot write to %1", folder)));
    return std::nullopt;
}

std::optional<qint64> DataFile::append(const NSData &data, std::optional<NSError> *error) {
    const qint64 offset = (_size + pageSize - 1) / pageSize * pageSize;
    auto failure = copyByHand(data, copyRange(data, _file.get(), offset), _file.get(), offset);
    if (!failure && !data.isIntact()) failure = SLAttachment::changedError(data);
    if (failure) {
        setError(error, failure);
        return std::nullopt;
    }
    _size = offset + data.length();
    // The service waits until all is on disk; the disk may as well begin now.
    ::sync_file_range(_file.get(), offset, data.length(), SYNC_FILE_RANGE_WRITE);
    return offset;
}

FileDescriptor DataFile::finish(std::optional<NSError> *error) {
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(_file.get());
    FileDescriptor readable(::open(self.constData(), O_RDONLY | O_CLOEXEC));
    if (!readable) setError(error, NSError::errorWithErrno(errno, localizedText("Cannot open the data to be shared")));
    _file.reset();
    return readable;
}

} // namespace korvane
