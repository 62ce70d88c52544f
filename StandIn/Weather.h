// Random faults for long runs: the same seed and the same order of requests give the same weather.
#pragma once

#include "StandIn/Fault.h"

#include <QByteArrayList>

namespace standin {

// Probabilities are from 0 to 1. In one request at most one of error, reset and loss happens.
struct Weather {
    quint64 seed = 1;
    double error = 0;    // answers 503 and neither checks nor stores
    double reset = 0;    // "upload", "chunk", "verify": breaks off somewhere in the body or before the answer
    double loseTail = 0; // "chunk": stores only a beginning, which may be empty, and answers as if it were all
    qint64 delay = 0;    // milliseconds that an answer waits at most
    QByteArrayList operations = {}; // that it befalls; none: all

    // What befalls the request that is the `index`-th of its operation, counted from 0, with a body of `bodyBytes`.
    Fault at(const QByteArray &operation, quint64 index, qint64 bodyBytes) const;
};

} // namespace standin
