// Takes a request's body as it comes in.
#pragma once

#include "StandIn/RequestLog.h"

namespace standin {

class BodyReader {
public:
    virtual ~BodyReader() = default;

    virtual void feed(const char *data, qsizetype size) = 0;
    // The body has ended, or broke off.
    virtual void finish() = 0;
    // What is wrong with the body; empty when it is well-formed.
    virtual QByteArray error() const { return {}; }
    // Writes down what was read.
    virtual void note(Request &record) const = 0;
    // Of the photo that was read, unless a store has it; empty when there is none.
    virtual QByteArray photoSha256() { return {}; }
};

} // namespace standin
