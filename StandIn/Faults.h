// Faults planned for the next requests, one queue for each operation, and the weather for all others.
#pragma once

#include "StandIn/Fault.h"
#include "StandIn/Weather.h"

#include <deque>
#include <map>
#include <mutex>

namespace standin {

// What happens to the coming requests of one operation, in order; once all is used up they are served as usual.
// `count` is for how many requests. Every call returns the queue, to plan what follows.
// Thread: any.
class FaultQueue {
public:
    // An HTML error page, as a gateway in front of the service sends it. Nothing is checked or stored.
    FaultQueue &fail(int status, int count = 1);
    // Exactly that answer; nothing is checked or stored. An empty body is sent as such, without content type.
    FaultQueue &answer(int status, const QByteArray &contentType, const QByteArray &body, int count = 1);
    // Closes the connection as soon as `bytes` bytes of the body were read (at its end, if it is shorter). What came of
    // a chunk is stored. REST operations are known by their body only, so theirs is read to the end in any case.
    FaultQueue &dropAfterBytes(qint64 bytes, int count = 1);
    // Reads the request and does not answer. After StandIn::release() it is served as usual; when the client goes away
    // or the server stops it is forgotten.
    FaultQueue &hang(int count = 1);
    // Serves the request, announces the whole answer, sends half of its body (without one, of its head) and closes the
    // connection.
    FaultQueue &truncate(int count = 1);
    // Serves the request (photo or chunk is stored) and closes the connection without an answer.
    FaultQueue &dropBeforeAnswer(int count = 1);
    // Serves the request and answers `milliseconds` later.
    FaultQueue &delay(qint64 milliseconds, int count = 1);
    // "chunk": stores the first `bytes` bytes only and answers as if it were all.
    FaultQueue &storeOnly(qint64 bytes, int count = 1);
    // "verify": answers with that text as the value of "Range", or without such a header.
    FaultQueue &reportRange(const std::optional<QByteArray> &range, int count = 1);
    // Serves as usual, whatever the weather.
    FaultQueue &thenOk(int count = 1);

    // Nothing when nothing is planned.
    std::optional<Fault> next();
    void clear();

private:
    FaultQueue &_plan(const Fault &fault, int count);

    std::mutex _mutex;
    std::deque<Fault> _planned;
};

// Thread: any. Queues live as long as this does.
class Faults {
public:
    FaultQueue &on(const QByteArray &operation);
    // From the next request on, in place of what there was.
    void setWeather(const Weather &weather);
    // All queues, and the weather.
    void clear();

    // For a request that has just arrived, with a body of `bodyBytes`.
    Fault next(const QByteArray &operation, qint64 bodyBytes);

private:
    Fault _weatherFor(const QByteArray &operation, qint64 bodyBytes);

    std::mutex _mutex;
    std::map<QByteArray, FaultQueue> _queues;
    std::optional<Weather> _weather;
    std::map<QByteArray, quint64> _weathered; // requests of each operation since the weather began
};

} // namespace standin
