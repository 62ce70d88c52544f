// Tells when the machine has a way out to the network again.
#pragma once

#include <functional>
#include <memory>

namespace korvane {

// Follows the desktop's network service, or the kernel's routes where there is none (or it does not know). Thread: the
// main thread alone.
class NetworkWatch {
public:
    enum class Source { Best, KernelRoutes };

    // The handler runs on the main thread, once for each time that the machine gets a way out, after the changes have
    // been quiet for that time. It does not run for the way out that is there from the start.
    explicit NetworkWatch(std::function<void()> regained, int quietMilliseconds = 1000, Source source = Source::Best);
    ~NetworkWatch();
    NetworkWatch(const NetworkWatch &) = delete;
    NetworkWatch &operator=(const NetworkWatch &) = delete;

private:
    class Watcher;
    std::unique_ptr<Watcher> _watcher;
};

} // namespace korvane
