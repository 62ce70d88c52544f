// The head of a PUT to a ticket's endpoint, read strictly: a chunk, or the question how much is stored.
#pragma once

#include "StandIn/Parameters.h"

#include <optional>

namespace standin {

struct PutHead {
    qint64 length = 0; // of the body, bytes
    qint64 start = 0;
    qint64 total = 0; // of the video, bytes; 0 when the head does not say
    std::optional<QByteArray> contentRange = {};

    // Whether it is meant as a question, right or wrong.
    static bool meansVerify(const Parameters &headers);
    // Nothing, and why, when it is neither the one nor the other.
    static std::optional<PutHead> read(const Parameters &headers, QByteArray *problem);
};

} // namespace standin
