// What the option screens of the Flickr share sheet ask of it and tell it.
#pragma once

#include <QVariant>

#include <memory>

namespace korvane {

class ACAccount;
class ACAccountStore;
class UITableViewController;

class FlickrComposeOptionViewDelegate {
public:
    virtual ~FlickrComposeOptionViewDelegate() = default;
    virtual std::shared_ptr<ACAccountStore> accountStore() const = 0;
    virtual std::shared_ptr<ACAccount> flickrAccount() const = 0; // null if there is none
    // The user has chosen in one of the screens, which stays where it is.
    virtual void flickrComposeOptionViewDidFinishWithSelection(const std::shared_ptr<UITableViewController> &optionView,
                                                               const QVariant &selection) = 0;
};

} // namespace korvane
