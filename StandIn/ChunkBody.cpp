#include "StandIn/ChunkBody.h"

namespace standin {

void ChunkBody::storeIn(std::unique_ptr<IncomingChunk> chunk) {
    _chunk = std::move(chunk);
    _chunk->write(_held.constData(), _held.size());
    _held.clear();
    if (_ended) _chunk->finish();
}

void ChunkBody::feed(const char *data, qsizetype size) {
    if (_chunk)
        _chunk->write(data, size);
    else
        _held.append(data, std::min(size, LargestChunk - _held.size()));
}

void ChunkBody::finish() {
    _ended = true;
    if (_chunk) _chunk->finish();
}

} // namespace standin
