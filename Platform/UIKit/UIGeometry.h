// Sizes and rectangles, in points, and ranges of text.
#pragma once

#include <QRectF>
#include <QSizeF>

namespace korvane {

using CGSize = QSizeF;
using CGRect = QRectF;

// Of a text, in UTF-16 units.
struct NSRange {
    qint64 location = 0;
    qint64 length = 0;
};

} // namespace korvane
