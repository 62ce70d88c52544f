// Hears SIGINT, SIGTERM and SIGHUP in the event loop while it lives.
#pragma once

#include <functional>
#include <memory>

namespace korvane {

// One at a time. Thread: the main one. Afterwards the signals do again what they did before.
class Interruption {
public:
    explicit Interruption(std::function<void(int signal)> heard);
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

private:
    struct Private;
    std::unique_ptr<Private> _private;
};

} // namespace korvane
