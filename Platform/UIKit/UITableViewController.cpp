// A screen with a table, which it fills itself.
#include "Platform/UIKit/UITableViewController.h"

#include <utility>

namespace korvane {

bool UITableViewController::_initWithStyle(UITableViewStyle style) {
    _style = style;
    return _initWithNibName(std::nullopt, std::nullopt);
}

void UITableViewController::loadView() {
    const auto self = sharedPointer(this);
    _tableView = UITableView::initWithStyle(_style);
    _tableView->setDataSource(self);
    _tableView->setDelegate(self);
    setView(_tableView);
}

void UITableViewController::viewWillAppear(bool animated) {
    UIViewController::viewWillAppear(animated);
    view();
    if (!std::exchange(_hasAppeared, true)) _tableView->reloadData();
}

} // namespace korvane
