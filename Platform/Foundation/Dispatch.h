// The queues that work runs on: the main thread's event loop, a pool of threads, and serial queues.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace korvane {

// Runs the work on the main thread's event loop, in the order of the calls. Thread: any. Work that is still queued when
// the application object goes is dropped.
void dispatchMain(std::function<void()> work);

// Runs the work on a pool thread. A thread is added whenever none is idle, since most work here blocks on the network.
// Threads that stay idle for some seconds end. Thread: any.
void dispatchGlobal(std::function<void()> work);

// Runs work one piece after another on one thread of its own.
class SerialQueue {
public:
    SerialQueue();
    // Runs what is queued, then ends the thread. Destroyed on its own thread (by the work that held the last
    // reference), it lets the thread end by itself.
    ~SerialQueue();
    SerialQueue(const SerialQueue &) = delete;
    SerialQueue &operator=(const SerialQueue &) = delete;

    void async(std::function<void()> work);
    // Waits until the work has run. Must not be called from the queue's own work.
    void sync(std::function<void()> work);

private:
    struct State {
        std::mutex mutex;
        std::condition_variable changed;
        std::deque<std::function<void()>> work;
        bool ending = false;
    };
    std::shared_ptr<State> _state;
    std::thread _thread;
};

} // namespace korvane
