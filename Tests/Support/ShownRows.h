// What the rows of a table show.
#pragma once

#include "Platform/UIKit/UITableView.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace korvane::test {

// The row's cell, after scrolling to it.
inline std::shared_ptr<UITableViewCell> cellAt(UITableView &table, NSIndexPath path) {
    table.scrollToRowAtIndexPath(path, UITableViewScrollPositionNone, false);
    return table.cellForRowAtIndexPath(path);
}

// "Public|Friends*": the labels of a section, with a star at what is chosen. The background must show through.
inline QString shownRows(UITableView &table, qint64 section = 0) {
    QStringList rows;
    for (qint64 row = 0; row < table.numberOfRowsInSection(section); ++row) {
        const auto cell = cellAt(table, {row, section});
        const bool isChosen = cell->accessoryType() == UITableViewCellAccessoryCheckmark;
        rows.append(cell->textLabel()->text().value_or(QStringLiteral("(null)")) + QLatin1String(isChosen ? "*" : ""));
        EXPECT_FALSE(cell->isOpaque());
        EXPECT_EQ(cell->backgroundColor(), UIColor::Clear);
    }
    return rows.join(u'|');
}

} // namespace korvane::test
