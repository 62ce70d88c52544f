// The place of a row in a table.
#pragma once

#include <QtGlobal>

#include <compare>

namespace korvane {

struct NSIndexPath {
    qint64 row = 0;
    qint64 section = 0;

    // By section, then by row.
    friend constexpr std::strong_ordering operator<=>(const NSIndexPath &a, const NSIndexPath &b) {
        return a.section != b.section ? a.section <=> b.section : a.row <=> b.row;
    }
    friend constexpr bool operator==(const NSIndexPath &, const NSIndexPath &) = default;
};

} // namespace korvane
