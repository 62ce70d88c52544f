// The assertion: a programming error stops the process, in every build type.
#pragma once

namespace korvane {

// Prints expression, function, file and line and aborts the process.
[[noreturn]] void assertionFailed(const char *expression, const char *function, const char *file, int line);

// The texts and the line are those that the report shows; they are part of the contract, not of this source file.
inline void KRAssert(bool condition, const char *expression, const char *function, const char *file, int line) {
    if (!condition) [[unlikely]]
        assertionFailed(expression, function, file, line);
}

} // namespace korvane
