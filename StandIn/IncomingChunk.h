// A chunk of a video while it arrives.
#pragma once

#include "StandIn/Video.h"
#include "StandIn/VideoFile.h"

#include <memory>

namespace standin {

class VideoStore;

// Thread: one at a time. The store must outlive it.
class IncomingChunk {
public:
    // Bytes past `storeLimit` are counted and lost.
    IncomingChunk(VideoStore &store, const QByteArray &ticketId, std::shared_ptr<VideoFile> file, quint64 writer,
                  VideoChunk chunk, qint64 storeLimit);
    ~IncomingChunk(); // finishes

    IncomingChunk(const IncomingChunk &) = delete;
    IncomingChunk &operator=(const IncomingChunk &) = delete;

    void write(const char *data, qsizetype size);
    // Nothing more comes; the store then knows the chunk.
    void finish();
    bool diskRefused() const { return _diskRefused; }

private:
    VideoStore &_store;
    const QByteArray _ticketId;
    const std::shared_ptr<VideoFile> _file;
    const quint64 _writer;
    VideoChunk _chunk;
    const qint64 _storeLimit;
    bool _diskRefused = false;
    bool _finished = false;
};

} // namespace standin
