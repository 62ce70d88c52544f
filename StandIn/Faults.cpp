#include "StandIn/Faults.h"

namespace standin {

Fault Fault::errorPage(int status) {
    const QByteArray number = QByteArray::number(status);
    const QByteArray page = "<html><head><title>Error " + number + "</title></head><body><h1>Error " + number +
                            "</h1><p>The stand-in was told to fail.</p></body></html>\n";
    return {.kind = Kind::Answer, .status = status, .contentType = "text/html", .body = page};
}

FaultQueue &FaultQueue::fail(int status, int count) {
    return _plan(Fault::errorPage(status), count);
}

FaultQueue &FaultQueue::answer(int status, const QByteArray &contentType, const QByteArray &body, int count) {
    return _plan({.kind = Fault::Kind::Answer, .status = status, .contentType = contentType, .body = body}, count);
}

FaultQueue &FaultQueue::dropAfterBytes(qint64 bytes, int count) {
    return _plan({.kind = Fault::Kind::DropAfterBytes, .bytes = bytes}, count);
}

FaultQueue &FaultQueue::hang(int count) {
    return _plan({.kind = Fault::Kind::Hang}, count);
}

FaultQueue &FaultQueue::truncate(int count) {
    return _plan({.kind = Fault::Kind::Truncate}, count);
}

FaultQueue &FaultQueue::dropBeforeAnswer(int count) {
    return _plan({.kind = Fault::Kind::DropBeforeAnswer}, count);
}

FaultQueue &FaultQueue::delay(qint64 milliseconds, int count) {
    return _plan({.delay = milliseconds}, count);
}

FaultQueue &FaultQueue::storeOnly(qint64 bytes, int count) {
    return _plan({.kind = Fault::Kind::StoreOnly, .bytes = bytes}, count);
}

FaultQueue &FaultQueue::reportRange(const std::optional<QByteArray> &range, int count) {
    return _plan({.kind = Fault::Kind::ReportRange, .range = range}, count);
}

FaultQueue &FaultQueue::thenOk(int count) {
    return _plan({}, count);
}

std::optional<Fault> FaultQueue::next() {
    const std::lock_guard lock(_mutex);
    if (_planned.empty()) return std::nullopt;
    const Fault fault = _planned.front();
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

void Faults::setWeather(const Weather &weather) {
    const std::lock_guard lock(_mutex);
    _weather = weather;
    _weathered.clear();
}

void Faults::clear() {
    const std::lock_guard lock(_mutex);
    for (auto &[operation, queue] : _queues)
        queue.clear();
    _weather.reset();
}

Fault Faults::next(const QByteArray &operation, qint64 bodyBytes) {
    if (const auto planned = on(operation).next()) return *planned;
    return _weatherFor(operation, bodyBytes);
}

Fault Faults::_weatherFor(const QByteArray &operation, qint64 bodyBytes) {
    const std::lock_guard lock(_mutex);
    return _weather ? _weather->at(operation, _weathered[operation]++, bodyBytes) : Fault();
}

} // namespace standin
