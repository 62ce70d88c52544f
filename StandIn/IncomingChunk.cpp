#include "StandIn/IncomingChunk.h"

#include "StandIn/VideoStore.h"

#include <algorithm>

namespace standin {

IncomingChunk::IncomingChunk(VideoStore &store, const QByteArray &ticketId, std::shared_ptr<VideoFile> file,
                             quint64 writer, VideoChunk chunk, qint64 storeLimit)
    : _store(store), _ticketId(ticketId), _file(std::move(file)), _writer(writer), _chunk(std::move(chunk)),
      _storeLimit(storeLimit) {}

IncomingChunk::~IncomingChunk() {
    finish();
}

void IncomingChunk::write(const char *data, qsizetype size) {
    _chunk.received += size;
    const qint64 wanted = std::min(qint64(size), _storeLimit - _chunk.stored);
    if (wanted <= 0 || _diskRefused) return;
    const qint64 stored = _file->append(_writer, data, wanted);
    _diskRefused = stored < 0;
    _chunk.stored += std::max(stored, qint64(0));
}

void IncomingChunk::finish() {
    if (_finished) return;
    _finished = true;
    _file->stopWriting(_writer);
    _store.noteChunk(_ticketId, _chunk);
}

} // namespace standin
