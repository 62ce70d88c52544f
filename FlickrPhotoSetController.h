// Option screen: the photo set (album) that the photos are added to.
#pragma once

#include "FlickrPhotoSetManager.h"
#include "Platform/UIKit/UITableViewController.h"

namespace korvane {

inline constexpr qint64 FlickrPhotoSetRowNoSet = 0;

// Its rows are the manager's photo sets. It is not told what was chosen in an earlier share: the mark begins at the
// no-set entry.
class FlickrPhotoSetController : public UITableViewController, public FlickrPhotoSetTableDelegate {
public:
    // Has the manager load the photo sets, and hears of them.
    static std::shared_ptr<FlickrPhotoSetController>
    initWithPhotoSetManager(const std::shared_ptr<FlickrPhotoSetManager> &manager);

    std::shared_ptr<FlickrComposeOptionViewDelegate> delegate() const { return _delegate.lock(); }
    // Hears of each choice, with the identifier as a qint64.
    void setDelegate(std::weak_ptr<FlickrComposeOptionViewDelegate> delegate) { _delegate = std::move(delegate); }
    const std::shared_ptr<FlickrPhotoSetManager> &manager() const { return _manager; }
    void setManager(std::shared_ptr<FlickrPhotoSetManager> manager) { _manager = std::move(manager); }
    qint64 photoSetID() const { return _photoSetID; } // of the chosen set; 0 before a choice
    const std::optional<QString> &photoSetTitle() const { return _photoSetTitle; } // null before a choice
    qint64 selectedIndexRow() const { return _selectedIndexRow; }                  // the row with the mark
    void setSelectedIndexRow(qint64 row) { _selectedIndexRow = row; }

    void loadView() override;
    void reloadData() override;
    std::optional<NSError> problem() const override { return _manager->problem(); }
    void tryAgain() override;
    qint64 tableViewNumberOfRowsInSection(UITableView &tableView, qint64 section) override;
    std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView &tableView,
                                                                    NSIndexPath indexPath) override;
    void tableViewDidSelectRowAtIndexPath(UITableView &tableView, NSIndexPath indexPath) override;
    void tableViewWillDisplayCell(UITableView &tableView, const std::shared_ptr<UITableViewCell> &cell,
                                  NSIndexPath indexPath) override;

private:
    bool _initWithPhotoSetManager(const std::shared_ptr<FlickrPhotoSetManager> &manager);

    std::weak_ptr<FlickrComposeOptionViewDelegate> _delegate;
    std::shared_ptr<FlickrPhotoSetManager> _manager;
    qint64 _photoSetID = 0;
    std::optional<QString> _photoSetTitle;
    qint64 _selectedIndexRow = 0;
};

} // namespace korvane
