// How many files a program may have open.
#include "FrontEnd/FileLimit.h"

#include <sys/resource.h>

namespace korvane {

void raiseFileLimit() {
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

} // namespace korvane
