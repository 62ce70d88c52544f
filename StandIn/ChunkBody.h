// The body of a chunk request: goes straight to the video's file once it is clear where to.
#pragma once

#include "StandIn/BodyReader.h"
#include "StandIn/IncomingChunk.h"

namespace standin {

// Thread: one at a time.
class ChunkBody final : public BodyReader {
public:
    static constexpr qint64 LargestChunk = 2'097'152; // bytes

    // What was read before goes there, too; of that, no more than a chunk may hold is remembered.
    void storeIn(std::unique_ptr<IncomingChunk> chunk);
    bool diskRefused() const { return _chunk && _chunk->diskRefused(); }

    void feed(const char *data, qsizetype size) override;
    void finish() override;
    void note(Request &) const override {}

private:
    std::unique_ptr<IncomingChunk> _chunk;
    QByteArray _held;
    bool _ended = false;
};

} // namespace standin
