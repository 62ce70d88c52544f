#include "StandIn/Faults.h"

namespace standin {

FaultQueue &FaultQueue::fail(int status, int count) {
    const QByteArray number = QByteArray::number(status);
    const QByteArray page = "<html><head><title>Error " + number + "</title></head><body><h1>Error " + number +
                            "</h1><p>The stand-in was told to fail.</p></body></html>\n";
    return answer(status, "text/html", page, count);
}

FaultQueue &FaultQueue::answer(int status, const QByteArray &contentType, const QByteArray &body, int count) {
    return _plan({Fault::Kind::Answer, status, contentType, body, 0}, count);
}

FaultQueue &FaultQueue::dropAfterBytes(qint64 bytes, int count) {
    return _plan({Fault::Kind::DropAfterBytes, 0, {}, {}, bytes}, count);
}

FaultQueue &FaultQueue::hang(int count) {
    return _plan({Fault::Kind::Hang, 0, {}, {}, 0}, count);
}

FaultQueue &FaultQueue::truncate(int count) {
    return _plan({Fault::Kind::Truncate, 0, {}, {}, 0}, count);
}

FaultQueue &FaultQueue::dropBeforeAnswer(int count) {
    return _plan({Fault::Kind::DropBeforeAnswer, 0, {}, {}, 0}, count);
}

FaultQueue &FaultQueue::thenOk(int count) {
    return _plan({}, count);
}

Fault FaultQueue::next() {
    const std::lock_guard lock(_mutex);
    if (_planned.empty()) return {};
    Fault fault = _planned.front();
    _planned.pop_front();
    return fault;
}

void FaultQueue::clear() {
    const std::lock_guard lock(_mutex);
    _planned.clear();
}

FaultQueue &FaultQueue::_plan(const Fault &fault, int count) {
    const std::lock_guard lock(_mutex);
    for (int i = 0; i < count; ++i)
        _planned.push_back(fault);
    return *this;
}

FaultQueue &Faults::on(const QByteArray &operation) {
    const std::lock_guard lock(_mutex);
    return _queues[operation];
}

void Faults::clear() {
    const std::lock_guard lock(_mutex);
    for (auto &[operation, queue] : _queues)
        queue.clear();
}

} // namespace standin
