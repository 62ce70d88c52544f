// Who gives a table its rows, and who hears what the user does with them.
#pragma once

#include "Platform/UIKit/NSIndexPath.h"

#include <QString>

#include <memory>
#include <optional>

namespace korvane {

class UITableView;
class UITableViewCell;

class UITableViewDataSource {
public:
    virtual ~UITableViewDataSource() = default;
    virtual qint64 numberOfSectionsInTableView(UITableView &) { return 1; }
    virtual qint64 tableViewNumberOfRowsInSection(UITableView &tableView, qint64 section) = 0;
    virtual std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView &tableView,
                                                                            NSIndexPath indexPath) = 0;
    // Null: the section has no header.
    virtual std::optional<QString> tableViewTitleForHeaderInSection(UITableView &, qint64) { return std::nullopt; }
};

class UITableViewDelegate {
public:
    virtual ~UITableViewDelegate() = default;
    virtual double tableViewHeightForRowAtIndexPath(UITableView &tableView, NSIndexPath indexPath); // points
    virtual void tableViewWillDisplayCell(UITableView &, const std::shared_ptr<UITableViewCell> &, NSIndexPath) {}
    virtual void tableViewDidSelectRowAtIndexPath(UITableView &, NSIndexPath) {}
};

} // namespace korvane
