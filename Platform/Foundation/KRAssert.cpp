// The assertion: a programming error stops the process, in every build type.
#include "Platform/Foundation/KRAssert.h"

#include "Platform/Foundation/NSLog.h"

#include <cstdlib>

namespace korvane {

void assertionFailed(const char *expression, const char *function, const char *file, int line) {
    NSLog("Assertion failed: (%s), function %s, file %s, line %d.", expression, function, file, line);
    std::abort();
}

} // namespace korvane
