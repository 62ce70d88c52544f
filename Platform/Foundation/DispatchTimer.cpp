// A timer on the main queue.
#include "Platform/Foundation/DispatchTimer.h"

#include "Platform/Foundation/Dispatch.h"

#include <QTimer>

#include <mutex>

namespace korvane {

// Kept alive by what is queued for the main thread; the QTimer is touched there alone.
class DispatchTimer::State : public std::enable_shared_from_this<State> {
public:
    State(std::chrono::milliseconds interval, std::chrono::milliseconds leeway, std::function<bool()> handler)
        : _interval(interval), _leeway(leeway), _handler(std::move(handler)) {}

    void start() {
        dispatchMain([self = shared_from_this()] {
            if (self->_isSuspended()) return;
            self->_timer = std::make_unique<QTimer>();
            self->_timer->setTimerType(self->_leeway.count() > 0 ? Qt::CoarseTimer : Qt::PreciseTimer);
            QObject::connect(self->_timer.get(), &QTimer::timeout, [state = self.get()] { state->_fire(); });
            self->_timer->start(self->_interval);
            self->_fire();
        });
    }

    void suspend() {
        {
            const std::lock_guard lock(_mutex);
            _suspended = true;
        }
        dispatchMain([self = shared_from_this()] { self->_timer.reset(); });
    }

private:
    bool _isSuspended() {
        const std::lock_guard lock(_mutex);
        return _suspended;
    }
    void _fire() {
        if (!_isSuspended() && !_handler()) suspend();
    }

    const std::chrono::milliseconds _interval;
    const std::chrono::milliseconds _leeway;
    const std::function<bool()> _handler;
    std::mutex _mutex;
    bool _suspended = false;
    std::unique_ptr<QTimer> _timer;
};

DispatchTimer::DispatchTimer(std::chrono::milliseconds interval, std::chrono::milliseconds leeway,
                             std::function<bool()> handler)
    : _state(std::make_shared<State>(interval, leeway, std::move(handler))) {
    _state->start();
}

DispatchTimer::~DispatchTimer() {
    _state->suspend();
}

} // namespace korvane
