// Where requests wait on purpose: for a delay, or until they are let go.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace standin {

// Thread: any.
class Gate {
public:
    // False when the server stopped meanwhile.
    bool sleep(std::chrono::milliseconds time);
    // Waits for the next release(); false when the server stopped or `givenUp` (asked every 20 ms) said so.
    bool waitForRelease(const std::function<bool()> &givenUp);

    void release();
    void open();  // before the server starts
    void close(); // lets everybody go and nobody wait again

private:
    std::mutex _mutex;
    std::condition_variable _changed;
    unsigned long _releases = 0;
    bool _closed = false;
};

} // namespace standin
