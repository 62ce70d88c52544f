// A timer on the main queue.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace korvane {

// Made and ended from any thread; the handler runs on the main thread.
class DispatchTimer {
public:
    // Fires as soon as the main thread is free and then each interval, up to leeway late, until the handler says false.
    DispatchTimer(std::chrono::milliseconds interval, std::chrono::milliseconds leeway, std::function<bool()> handler);
    // The handler does not begin after this, except a call on the main thread that is under way.
    ~DispatchTimer();
    DispatchTimer(const DispatchTimer &) = delete;
    DispatchTimer &operator=(const DispatchTimer &) = delete;

private:
    class State;
    std::shared_ptr<State> _state;
};

} // namespace korvane
