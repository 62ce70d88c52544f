// A timer on the main queue.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace korvane {

// Made, suspended and ended from any thread; the handler runs on the main thread.
class DispatchTimer {
public:
    // Fires as soon as the main thread is free and then each interval, up to leeway late.
    DispatchTimer(std::chrono::milliseconds interval, std::chrono::milliseconds leeway, std::function<void()> handler);
    // The handler does not begin after this, except a call on the main thread that is under way.
    ~DispatchTimer();
    DispatchTimer(const DispatchTimer &) = delete;
    DispatchTimer &operator=(const DispatchTimer &) = delete;

    // No more firing. Also from the handler.
    void suspend();

private:
    class State;
    std::shared_ptr<State> _state;
};

} // namespace korvane
