// Faults planned for the next requests, one queue for each operation.
#pragma once

#include <QByteArray>

#include <deque>
#include <map>
#include <mutex>

namespace standin {

struct Fault {
    enum class Kind { None, Answer, DropAfterBytes, Hang, Truncate, DropBeforeAnswer };
    Kind kind = Kind::None;
    int status = 0;         // Answer
    QByteArray contentType; // Answer
    QByteArray body;        // Answer
    qint64 bytes = 0;       // DropAfterBytes
};

// What happens to the coming requests of one operation, in order; once all is used up they are served as usual.
// `count` is for how many requests. Every call returns the queue, to plan what follows.
// Thread: any.
class FaultQueue {
public:
    // An HTML error page, as a gateway in front of the service sends it. Nothing is checked or stored.
    FaultQueue &fail(int status, int count = 1);
    // Exactly that answer; nothing is checked or stored. An empty body is sent as such, without content type.
    FaultQueue &answer(int status, const QByteArray &contentType, const QByteArray &body, int count = 1);
    // Closes the connection as soon as `bytes` bytes of the body were read (at its end, if it is shorter). REST
    // operations are known by their body only, so theirs is read to the end in any case.
    FaultQueue &dropAfterBytes(qint64 bytes, int count = 1);
    // Reads the request and does not answer. After StandIn::release() it is served as usual; when the client goes away
    // or the server stops it is forgotten.
    FaultQueue &hang(int count = 1);
    // Serves the request, announces the whole answer, sends half of its body and closes the connection.
    FaultQueue &truncate(int count = 1);
    // Serves the request (the photo is stored) and closes the connection without an answer.
    FaultQueue &dropBeforeAnswer(int count = 1);
    // Serves as usual.
    FaultQueue &thenOk(int count = 1);

    Fault next();
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
    void clear();

private:
    std::mutex _mutex;
    std::map<QByteArray, FaultQueue> _queues;
};

} // namespace standin
