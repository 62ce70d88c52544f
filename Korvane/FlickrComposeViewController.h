// The share sheet for photos to Flickr.
#pragma once

#include "Korvane/FlickrComposeOptionViewDelegate.h"
#include "Platform/Social/SLComposeServiceViewController.h"

namespace korvane {

class FlickrAudienceController;
class FlickrPhotoSetController;
class FlickrPhotoSetManager;
class FlickrUploadSession;
class FlickrPost;

// The preference domain in which the choices are remembered, and its keys.
extern const QString FlickrUploadDomain;
extern const QString FlickrUploadPhotoSetTitle; // text
extern const QString FlickrUploadPhotoSetID;    // integer
extern const QString FlickrUploadPhotoSetOwner; // text: the user whose photo set it is; may be missing
extern const QString FlickrUploadAudience;      // integer: the row of the audience

// Where the sheet's option rows stand.
enum FlickrComposeItem : size_t { FlickrComposeItemPhotoSet = 0, FlickrComposeItemAudience = 1 };

// Remembers what is chosen in its option screens at once, posted or not.
class FlickrComposeViewController : public SLComposeServiceViewController, public FlickrComposeOptionViewDelegate {
public:
    static std::shared_ptr<FlickrComposeViewController> initWithNibName(const std::optional<QString> &nibName = {},
                                                                        const std::optional<QString> &bundle = {});
    // For a program that must not stop on it: forgets a remembered audience for which there is no row. Before the sheet
    // is made.
    static void forgetUnknownAudience();
    // Later sheets begin with no photo set.
    static void forgetPhotoSet();

    std::shared_ptr<ACAccountStore> accountStore() const override { return _accountStore; }
    void setAccountStore(std::shared_ptr<ACAccountStore> store) { _accountStore = std::move(store); }
    std::shared_ptr<ACAccount> flickrAccount() const override { return _flickrAccount; }
    void setFlickrAccount(std::shared_ptr<ACAccount> account) { _flickrAccount = std::move(account); }
    // For a front end, while no option screen is shown: the account in use may be another by now. A photo set of the
    // former one is chosen no more, and the next tap on the row loads those of the new one.
    void changeFlickrAccount(const std::shared_ptr<ACAccount> &account);
    // The client of the last post; null before it.
    const std::shared_ptr<FlickrUploadSession> &session() const { return _session; }

    // While the photo sets are being loaded, from the first tap on their row.
    bool isWaitingForAnswers() const override;
    // As FlickrComposeItem.
    std::vector<std::shared_ptr<SLComposeSheetConfigurationItem>> configurationItems() override;
    void flickrComposeOptionViewDidFinishWithSelection(const std::shared_ptr<UITableViewController> &optionView,
                                                       const QVariant &selection) override;
    // Presents the settings alert where there is no account.
    void viewDidAppear(bool animated) override;
    // FlickrVisibility bits of the chosen audience.
    qint32 postVisibility() const;
    // Hands one post for each attachment over, which blocks; nothing without an account.
    void didSelectPost() override;

protected:
    bool _initWithNibName(const std::optional<QString> &nibName, const std::optional<QString> &bundle) override;

private:
    void _recallPhotoSet();
    std::shared_ptr<SLComposeSheetConfigurationItem> _photoSetItem();
    std::shared_ptr<SLComposeSheetConfigurationItem> _audienceItem();
    void _pushPhotoSets();
    void _pushAudiences();
    std::shared_ptr<FlickrPost> _postOfAttachment(const SLAttachment &attachment) const;

    std::shared_ptr<FlickrUploadSession> _session;
    bool _hasFlickrAccount = false;
    std::shared_ptr<SLComposeSheetConfigurationItem> _photoSetConfigurationItem;
    std::shared_ptr<FlickrPhotoSetController> _photoSetController;
    std::vector<std::shared_ptr<FlickrPhotoSetController>> _formerPhotoSetControllers; // which hear of late answers
    std::optional<QString> _photoSetTitle;
    qint64 _photoSetID = 0;
    std::shared_ptr<FlickrPhotoSetManager> _manager;
    std::shared_ptr<SLComposeSheetConfigurationItem> _audienceConfigurationItem;
    std::shared_ptr<FlickrAudienceController> _audienceController;
    qint32 _audience = 0; // row
    std::shared_ptr<ACAccountStore> _accountStore;
    std::shared_ptr<ACAccount> _flickrAccount;
};

} // namespace korvane
