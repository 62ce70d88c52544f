// Option screen: who sees the photos.
#pragma once

#include "Korvane/FlickrComposeOptionViewDelegate.h"
#include "Platform/UIKit/UITableViewController.h"

namespace korvane {

// Audiences are rows.
enum FlickrAudience : qint32 {
    FlickrAudiencePublic = 0,
    FlickrAudienceFriends = 1,
    FlickrAudienceFamily = 2,
    FlickrAudienceOnlyMe = 3,
};

class FlickrAudienceController : public UITableViewController {
public:
    // For people. An audience without a row stops the process.
    static QString titleForAudience(qint32 audience);

    static std::shared_ptr<FlickrAudienceController> init();

    qint32 audience() const { return _audience; } // the checked row
    void setAudience(qint32 audience) { _audience = audience; }
    std::shared_ptr<FlickrComposeOptionViewDelegate> delegate() const { return _delegate.lock(); }
    // Hears of each choice, with the audience as a quint32.
    void setDelegate(std::weak_ptr<FlickrComposeOptionViewDelegate> delegate) { _delegate = std::move(delegate); }

    void loadView() override;
    CGSize preferredContentSize() override;
    qint64 tableViewNumberOfRowsInSection(UITableView &tableView, qint64 section) override;
    std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView &tableView,
                                                                    NSIndexPath indexPath) override;
    void tableViewDidSelectRowAtIndexPath(UITableView &tableView, NSIndexPath indexPath) override;
    void tableViewWillDisplayCell(UITableView &tableView, const std::shared_ptr<UITableViewCell> &cell,
                                  NSIndexPath indexPath) override;

private:
    qint32 _audience = 0;
    std::weak_ptr<FlickrComposeOptionViewDelegate> _delegate;
};

} // namespace korvane
