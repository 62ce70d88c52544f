// Immutable bytes, in memory or as part of a file.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"
#include "Platform/Foundation/NSError.h"
#include "Platform/Foundation/NSURL.h"

#include <QByteArray>
#include <QMetaType>

#include <memory>
#include <optional>

namespace korvane {

// What identifies the contents of a file as it was when it was looked at: another file, size or time means other
// contents.
struct FileIdentity {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modifiedNanoseconds = 0; // since 1970

    static std::optional<FileIdentity> ofDescriptor(int descriptor);
    static std::optional<FileIdentity> ofPath(const QByteArray &path);
    friend bool operator==(const FileIdentity &, const FileIdentity &) = default;
};

// Copies share the bytes or the open file. A file's part is read with pread when it is needed and never mapped, so that
// a file that shrinks gives fewer bytes instead of a signal. Thread: any; nothing changes after construction.
class NSData {
public:
    NSData() = default; // empty
    explicit NSData(QByteArray bytes) : _bytes(std::move(bytes)), _length(_bytes.size()) {}

    // Stands for the whole file: it is opened here and read later. Null, with the error placed, if it cannot be opened
    // for reading or is not a regular file.
    static std::optional<NSData> dataWithContentsOfFile(const QByteArray &path,
                                                        std::optional<NSError> *error = nullptr);
    static std::optional<NSData> dataWithContentsOfURL(const NSURL &url, std::optional<NSError> *error = nullptr);
    // Stands for length bytes of an open regular file from offset on. identity: of the file as it is meant to be; as it
    // is now without one.
    static NSData dataWithFile(std::shared_ptr<const FileDescriptor> file, qint64 offset, qint64 length,
                               const std::optional<FileIdentity> &identity = std::nullopt);

    qint64 length() const { return _length; }
    // The bytes in [location, location + length), cut at the end of this data.
    NSData subdata(qint64 location, qint64 length) const;
    // Reads up to length bytes; fewer at the end of the data or of the file. -1 with errno on a read error.
    qint64 getBytes(char *buffer, qint64 location, qint64 length) const;
    // All bytes in memory. Shorter than length() if the file has become shorter. For data that is known to be small.
    QByteArray bytes() const;

    // False once the file behind this data is no longer what it was meant to be.
    bool isIntact() const;
    // The open file behind this data, else null; its part starts at fileOffset().
    const std::shared_ptr<const FileDescriptor> &file() const { return _file; }
    const FileIdentity &identity() const { return _identity; } // of that file
    qint64 fileOffset() const { return _offset; }

    friend bool operator==(const NSData &a, const NSData &b);

private:
    QByteArray _bytes;
    std::shared_ptr<const FileDescriptor> _file;
    FileIdentity _identity;
    qint64 _offset = 0;
    qint64 _length = 0;
};

} // namespace korvane

Q_DECLARE_METATYPE(korvane::NSData)
