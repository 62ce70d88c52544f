// How a fuzz target says that an answer is wrong.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace korvane::test {

inline void expect(bool holds, const char *what) {
    if (holds) return;
    std::fprintf(stderr, "Wrong: %s\n", what);
    std::abort();
}

} // namespace korvane::test
