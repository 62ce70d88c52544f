#include "StandIn/VideoFile.h"

namespace standin {

VideoFile::VideoFile(const QString &path, qint64 size)
    : _file(path), _kept(!path.isEmpty()), _size(_kept ? _file.size() : size) {}

qint64 VideoFile::size() const {
    const std::lock_guard lock(_mutex);
    return _size;
}

quint64 VideoFile::startWriting(qint64 start) {
    const std::lock_guard lock(_mutex);
    ++_writer;
    if (_kept && !_openAt(start)) return 0;
    _size = start;
    return _writer;
}

qint64 VideoFile::append(quint64 writer, const char *data, qsizetype size) {
    const std::lock_guard lock(_mutex);
    if (writer != _writer) return writer == 0 ? -1 : 0;
    const qint64 written = _kept ? _file.write(data, size) : size;
    _size += std::max(written, qint64(0));
    return written == size ? written : -1;
}

void VideoFile::stopWriting(quint64 writer) {
    const std::lock_guard lock(_mutex);
    if (writer == _writer) _file.close();
}

bool VideoFile::_openAt(qint64 start) {
    const bool open = _file.isOpen() || _file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    return open && (start == _size || _file.resize(start)) && _file.seek(start);
}

} // namespace standin
