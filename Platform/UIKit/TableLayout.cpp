// Where the rows of a table stand.
#include "Platform/UIKit/TableLayout.h"

#include <algorithm>

namespace korvane {

void TableLayout::addSection(const std::optional<QString> &title, double headerHeight) {
    const double top = _height;
    _height += headerHeight;
    _sections.push_back({title, top, {_height}});
}

void TableLayout::addRow(double height) {
    _height += height;
    _sections.back().rowTops.push_back(_height);
}

qint64 TableLayout::numberOfRows(qint64 section) const {
    if (section < 0 || section >= qint64(_sections.size())) return 0;
    return qint64(_sections[size_t(section)].rowTops.size()) - 1;
}

bool TableLayout::hasRow(NSIndexPath indexPath) const {
    return indexPath.row >= 0 && indexPath.row < numberOfRows(indexPath.section);
}

std::pair<double, double> TableLayout::span(NSIndexPath indexPath) const {
    const auto &tops = _sections[size_t(indexPath.section)].rowTops;
    return {tops[size_t(indexPath.row)], tops[size_t(indexPath.row) + 1]};
}

std::vector<NSIndexPath> TableLayout::rowsBetween(double top, double end) const {
    std::vector<NSIndexPath> rows;
    for (size_t section = 0; section < _sections.size(); ++section) {
        const auto &tops = _sections[section].rowTops;
        const auto first = std::ranges::upper_bound(tops, top);
        for (qint64 row = std::max<qint64>(0, first - tops.begin() - 1);
             row + 1 < qint64(tops.size()) && tops[size_t(row)] < end; ++row)
            rows.push_back({row, qint64(section)});
    }
    return rows;
}

} // namespace korvane
