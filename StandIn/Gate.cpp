#include "StandIn/Gate.h"

namespace standin {

bool Gate::sleep(std::chrono::milliseconds time) {
    std::unique_lock lock(_mutex);
    return !_changed.wait_for(lock, time, [this] { return _closed; });
}

bool Gate::waitForRelease(const std::function<bool()> &givenUp) {
    std::unique_lock lock(_mutex);
    const unsigned long before = _releases;
    const auto free = [&] { return _closed || _releases != before; };
    while (!_changed.wait_for(lock, std::chrono::milliseconds(20), free)) {
        if (givenUp()) return false;
    }
    return !_closed;
}

void Gate::release() {
    const std::lock_guard lock(_mutex);
    ++_releases;
    _changed.notify_all();
}

void Gate::open() {
    const std::lock_guard lock(_mutex);
    _closed = false;
}

void Gate::close() {
    const std::lock_guard lock(_mutex);
    _closed = true;
    _changed.notify_all();
}

} // namespace standin
