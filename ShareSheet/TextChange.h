// What a person has changed in a text.
#pragma once

#include "Platform/UIKit/UIGeometry.h"

#include <optional>

namespace korvane {

struct TextChange {
    NSRange range; // of the text before, in UTF-16 units
    QString replacement;

    // The smallest change that makes one text of the other and leaves the cursor, a place in the text after, where it
    // is. Never begins or ends within a character of two units. Null where nothing has changed.
    static std::optional<TextChange> between(const QString &before, const QString &after, qint64 cursor);
};

} // namespace korvane
