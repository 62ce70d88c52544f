// Reading a file from any place in it.
#include "Platform/Foundation/NSFileHandle.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

namespace korvane {

std::shared_ptr<NSFileHandle> NSFileHandle::fileHandleForReadingFromURL(const NSURL &url,
                                                                        std::optional<NSError> *error) {
    if (!url.isFileURL()) {
        setError(error, NSError::errorWithErrno(EINVAL, url.absoluteString()));
        return nullptr;
    }
    const auto contents = NSData::dataWithContentsOfURL(url, error);
    if (!contents) return nullptr;
    return std::shared_ptr<NSFileHandle>(new NSFileHandle(contents->file(), contents->identity()));
}

void NSFileHandle::seekToFileOffset(quint64 offset) {
    _offset = offset;
}

quint64 NSFileHandle::seekToEndOfFile() {
    return _offset = _fileLength();
}

NSData NSFileHandle::readDataOfLength(quint64 length) {
    const quint64 end = _fileLength();
    if (_offset >= end) return {};
    const auto start = qint64(_offset);
    const auto count = qint64(std::min(length, end - _offset));
    ::posix_fadvise(_file->get(), start, count, POSIX_FADV_WILLNEED);
    _offset += quint64(count);
    return NSData::dataWithFile(_file, start, count, _identity);
}

quint64 NSFileHandle::_fileLength() const {
    struct stat status;
    return ::fstat(_file->get(), &status) == 0 ? quint64(status.st_size) : 0;
}

} // namespace korvane
