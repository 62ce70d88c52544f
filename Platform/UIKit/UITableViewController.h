// A screen with a table, which it fills itself.
#pragma once

#include "Platform/Foundation/NSError.h"
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

    // For a front end: why the rows could not be loaded; null where they could, are still being loaded, or need not be.
    virtual std::optional<NSError> problem() const { return std::nullopt; }
    // Loads them once more. The table is reloaded at once, and again when they are there.
    virtual void tryAgain() {}

protected:
    virtual bool _initWithStyle(UITableViewStyle style);

private:
    UITableViewStyle _style = UITableViewStylePlain;
    std::shared_ptr<UITableView> _tableView;
    bool _hasAppeared = false;
};

} // namespace korvane
