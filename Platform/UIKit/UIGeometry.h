// Sizes and rectangles, in points, and ranges of text.
#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>

#include <algorithm>

namespace korvane {

using CGSize = QSizeF;
using CGRect = QRectF;

// Of a text, in UTF-16 units.
struct NSRange {
    qint64 location = 0;
    qint64 length = 0;

    // As much of it as lies within a text of that length.
    NSRange cutTo(qint64 textLength) const {
        const qint64 first = std::clamp<qint64>(location, 0, textLength);
        return {first, std::clamp<qint64>(length, 0, textLength - first)};
    }
};

inline QString stringByReplacingCharactersInRange(const QString &text, NSRange range, const QString &replacement) {
    return QString(text).replace(range.location, range.length, replacement);
}

} // namespace korvane
