// The queues that work runs on: the main thread's event loop, a pool of threads, and serial queues.
#include "Platform/Foundation/Dispatch.h"

#include <QCoreApplication>
#include <QEvent>

#include <chrono>
#include <semaphore>

namespace korvane {
namespace {

// The work waits in a queue of our own; Qt's event only wakes the main thread, so that one mutex orders every
// hand-over.
class MainQueue : public QObject {
public:
    static MainQueue &instance() {
        static MainQueue *queue = new MainQueue; // lives as long as the process: late work may still arrive
        return *queue;
    }

    void async(std::function<void()> work) {
        const std::lock_guard lock(_mutex);
        _work.push_back(std::move(work));
        if (_work.size() == 1) QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }

    bool event(QEvent *event) override {
        if (event->type() != QEvent::User) return QObject::event(event);
        std::deque<std::function<void()>> due;
        {
            const std::lock_guard lock(_mutex);
            due.swap(_work);
        }
        for (auto &work : due) {
            work();
            work = nullptr;
        }
        return true;
    }

private:
    MainQueue() { moveToThread(QCoreApplication::instance()->thread()); }
    std::mutex _mutex;
    std::deque<std::function<void()>> _work;
};

class GlobalQueue {
public:
    static GlobalQueue &instance() {
        static GlobalQueue *queue = new GlobalQueue; // never destroyed: its threads may outlive static destruction
        return *queue;
    }

    void async(std::function<void()> work) {
        const std::lock_guard lock(_mutex);
        _work.push_back(std::move(work));
        if (_idle >= _work.size())
            _changed.notify_one();
        else
            std::thread([this] { _run(); }).detach();
    }

private:
    void _run() {
        std::unique_lock lock(_mutex);
        for (;;) {
            ++_idle;
            const bool found = _changed.wait_for(lock, std::chrono::seconds(10), [this] { return !_work.empty(); });
            --_idle;
            if (!found) return;
            auto work = std::move(_work.front());
            _work.pop_front();
            lock.unlock();
            work();
            work = nullptr;
            lock.lock();
        }
    }

    std::mutex _mutex;
    std::condition_variable _changed;
    std::deque<std::function<void()>> _work;
    size_t _idle = 0;
};

} // namespace

void dispatchMain(std::function<void()> work) {
    MainQueue::instance().async(std::move(work));
}

void dispatchGlobal(std::function<void()> work) {
    GlobalQueue::instance().async(std::move(work));
}

SerialQueue::SerialQueue() : _state(std::make_shared<State>()) {
    _thread = std::thread([state = _state] {
        std::unique_lock lock(state->mutex);
        for (;;) {
            state->changed.wait(lock, [&] { return state->ending || !state->work.empty(); });
            if (state->work.empty()) return;
            auto work = std::move(state->work.front());
            state->work.pop_front();
            lock.unlock();
            work();
            work = nullptr;
            lock.lock();
        }
    });
}

SerialQueue::~SerialQueue() {
    {
        const std::lock_guard lock(_state->mutex);
        _state->ending = true;
    }
    _state->changed.notify_one();
    if (_thread.get_id() == std::this_thread::get_id())
        _thread.detach();
    else
        _thread.join();
}

void SerialQueue::async(std::function<void()> work) {
    {
        const std::lock_guard lock(_state->mutex);
        _state->work.push_back(std::move(work));
    }
    _state->changed.notify_one();
}

void SerialQueue::sync(std::function<void()> work) {
    std::binary_semaphore done(0);
    async([&] {
        work();
        done.release();
    });
    done.acquire();
}

} // namespace korvane
