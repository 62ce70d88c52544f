// Bounds on what one picture may cost.
#include "Picture/ResourceLimits.h"

#include "Picture/Options.h"

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <string_view>

namespace korvane {
namespace {

constexpr rlim_t mostProcessorSeconds = 180;
constexpr unsigned mostSeconds = 600;

void outOfTime(int) {
    constexpr std::string_view text = "korvane-picture: the picture takes too long to decode\n";
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, text.data(), text.size());
    ::_exit(ExitPictureUnusable);
}

void lower(__rlimit_resource resource, rlim_t soft, rlim_t hard) {
    rlimit limit{};
    if (::getrlimit(resource, &limit) != 0) return;
    limit.rlim_max = limit.rlim_max < hard ? limit.rlim_max : hard;
    limit.rlim_cur = soft < limit.rlim_max ? soft : limit.rlim_max;
    ::setrlimit(resource, &limit);
}

} // namespace

void limitResources() {
    std::signal(SIGXCPU, outOfTime);
    std::signal(SIGALRM, outOfTime);
    lower(RLIMIT_CPU, mostProcessorSeconds, mostProcessorSeconds + 5);
    lower(RLIMIT_CORE, 0, 0);
    ::alarm(mostSeconds);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    // The sanitizers reserve terabytes of address space for themselves.
    if constexpr (sizeof(rlim_t) == 8) {
        constexpr rlim_t mostMemory = rlim_t(6) << 30;
        lower(RLIMIT_AS, mostMemory, mostMemory);
    }
#endif
}

} // namespace korvane
