// A screen with a table, which it fills itself.
#pragma once

#include "Platform/UIKit/UITableView.h"
#include "Platform/UIKit/UIViewController.h"

namespace korvane {

class UITableViewController : public UIViewController, public UITableViewDataSource, public UITableViewDelegate {
public:
    // The view. Null before it is loaded.
    const std::shared_ptr<UITableView> &tableView() const { return _tableView; }

    void loadView() override;
    // The rows are loaded anew the first time.
    void viewWillAppear(bool animated) override;

protected:
    virtual bool _initWithStyle(UITableViewStyle style);

private:
    UITableViewStyle _style = UITableViewStylePlain;
    std::shared_ptr<UITableView> _tableView;
    bool _hasAppeared = false;
};

} // namespace korvane
