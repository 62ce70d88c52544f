// Texts that stand in one line.
#pragma once

#include <QString>

#include <algorithm>

namespace korvane {

// Not empty and without control characters, as names and secrets have to be.
inline bool isPlainLine(const QString &text) {
    return !text.isEmpty() &&
           std::none_of(text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Control; });
}

} // namespace korvane
