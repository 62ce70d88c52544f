// A photo while it arrives: a file that vanishes unless the store takes it over.
#pragma once

#include <QByteArray>
#include <QFile>

namespace standin {

class IncomingPhoto {
public:
    // An empty path keeps no bytes, only their number and beginning.
    explicit IncomingPhoto(const QString &path);
    ~IncomingPhoto();

    IncomingPhoto(const IncomingPhoto &) = delete;
    IncomingPhoto &operator=(const IncomingPhoto &) = delete;

    // Bytes past `limit` are counted and forgotten. False when the disk does not take them.
    bool write(const char *data, qsizetype size, qint64 limit);
    qint64 bytes() const { return _bytes; }
    // "image/jpeg", "image/png", "image/gif" or "image/tiff" by the bytes; empty for all else.
    QByteArray imageType() const;
    // Hexadecimal; empty when the bytes are not kept.
    QByteArray sha256();
    // Moves the file there. The photo is then no longer this object's.
    bool moveTo(const QString &path);

private:
    QFile _file;
    const bool _kept;
    bool _moved = false;
    qint64 _bytes = 0;
    QByteArray _beginning;
};

} // namespace standin
