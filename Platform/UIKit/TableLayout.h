// Where the rows of a table stand.
#pragma once

#include "Platform/UIKit/NSIndexPath.h"

#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace korvane {

// In points from the table's top.
class TableLayout {
public:
    struct Section {
        std::optional<QString> title;
        double top = 0;              // of its header
        std::vector<double> rowTops; // and, at last, the end of the last row
    };

    // Sections and rows are added from the top.
    void addSection(const std::optional<QString> &title, double headerHeight);
    void addRow(double height);

    const std::vector<Section> &sections() const { return _sections; }
    double height() const { return _height; }
    bool hasRow(NSIndexPath indexPath) const;
    qint64 numberOfRows(qint64 section) const; // 0 for a section that is not there
    // Top and end of a row that is there.
    std::pair<double, double> span(NSIndexPath indexPath) const;
    // The rows of which something stands between top and end.
    std::vector<NSIndexPath> rowsBetween(double top, double end) const;

private:
    std::vector<Section> _sections;
    double _height = 0;
};

} // namespace korvane
