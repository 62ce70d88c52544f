// The bytes of one video while they come in: a file that grows at its end, with one writer at a time.
#pragma once

#include <QFile>

#include <mutex>

namespace standin {

// Thread: any.
class VideoFile {
public:
    // An empty path keeps no bytes, only their number, which then begins with `size`.
    VideoFile(const QString &path, qint64 size);

    qint64 size() const;
    // Forgets the bytes from `start` (at most size()) on, and every writer before. Returns the new writer; 0 when the
    // disk refuses.
    quint64 startWriting(qint64 start);
    // How many bytes were stored: 0 for a forgotten writer, -1 when the disk refuses.
    qint64 append(quint64 writer, const char *data, qsizetype size);
    void stopWriting(quint64 writer);

private:
    bool _openAt(qint64 start);

    mutable std::mutex _mutex;
    QFile _file;
    const bool _kept;
    qint64 _size = 0;
    quint64 _writer = 0;
};

} // namespace standin
