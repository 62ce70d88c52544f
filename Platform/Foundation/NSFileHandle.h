// Reading a file from any place in it.
#pragma once

#include "Platform/Foundation/NSData.h"

#include <memory>
#include <optional>

namespace korvane {

// Closed when this and all data read through it are gone. Thread: one at a time.
class NSFileHandle {
public:
    // Null, with the error placed, if there is no such file, it cannot be opened for reading, is no regular file, or
    // the URL is no "file" URL.
    static std::shared_ptr<NSFileHandle> fileHandleForReadingFromURL(const NSURL &url,
                                                                     std::optional<NSError> *error = nullptr);

    void seekToFileOffset(quint64 offset); // bytes from the start; may lie past the end
    // Returns the new offset, which is the file's length as it is now.
    quint64 seekToEndOfFile();
    quint64 offsetInFile() const { return _offset; }

    // What the file was when it was opened.
    const FileIdentity &identity() const { return _identity; }
    const std::shared_ptr<const FileDescriptor> &file() const { return _file; }

    // Up to length bytes from the offset on, fewer at the end of the file, and moves behind them. The data stands for
    // the file's bytes: they are read when they are used, and the kernel is asked to have them ready. It is intact as
    // long as the file is what it was when it was opened.
    NSData readDataOfLength(quint64 length);

private:
    NSFileHandle(std::shared_ptr<const FileDescriptor> file, const FileIdentity &identity)
        : _file(std::move(file)), _identity(identity) {}
    quint64 _fileLength() const;

    std::shared_ptr<const FileDescriptor> _file;
    const FileIdentity _identity; // of the file as it was opened
    quint64 _offset = 0;
};

} // namespace korvane
