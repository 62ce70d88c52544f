#include "StandIn/IncomingPhoto.h"

#include "StandIn/FileHash.h"

#include <algorithm>

namespace standin {

IncomingPhoto::IncomingPhoto(const QString &path) : _file(path), _kept(!path.isEmpty()) {
    if (_kept) _file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
}

IncomingPhoto::~IncomingPhoto() {
    if (_kept && !_moved) _file.remove();
}

bool IncomingPhoto::write(const char *data, qsizetype size, qint64 limit) {
    if (_beginning.size() < 16) _beginning.append(data, std::min(size, 16 - _beginning.size()));
    _bytes += size;
    if (!_kept || _bytes > limit) return true;
    return _file.write(data, size) == size;
}

QByteArray IncomingPhoto::imageType() const {
    if (_beginning.startsWith("\xff\xd8\xff")) return "image/jpeg";
    if (_beginning.startsWith("\x89PNG\r\n\x1a\n")) return "image/png";
    if (_beginning.startsWith("GIF87a") || _beginning.startsWith("GIF89a")) return "image/gif";
    const bool tiff = _beginning.startsWith(QByteArray("II*\0", 4)) || _beginning.startsWith(QByteArray("MM\0*", 4));
    return tiff ? "image/tiff" : QByteArray();
}

QByteArray IncomingPhoto::sha256() {
    return _kept ? sha256OfFile(_file.fileName()) : QByteArray();
}

bool IncomingPhoto::moveTo(const QString &path) {
    if (!_kept) return true;
    _file.close();
    _moved = _file.rename(path);
    return _moved;
}

} // namespace standin
