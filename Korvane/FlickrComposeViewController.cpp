// The share sheet for photos to Flickr.
#include "Korvane/FlickrComposeViewController.h"

#include "FlickrAudienceController.h"
#include "FlickrPhotoSetController.h"
#include "Korvane/AttachmentData.h"
#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrUploadSession.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Foundation/NSBundle.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Foundation/NSNumber.h"
#include "Platform/Preferences/CFPreferences.h"

#include <algorithm>
#include <utility>

namespace korvane {

const QString FlickrUploadDomain = QStringLiteral("com.zorvex.flickr-upload");
const QString FlickrUploadPhotoSetTitle = QStringLiteral("photosetTitle");
const QString FlickrUploadPhotoSetID = QStringLiteral("photosetID");
const QString FlickrUploadPhotoSetOwner = QStringLiteral("photosetOwner");
const QString FlickrUploadAudience = QStringLiteral("audience");

namespace {

QString localized(const QString &key) {
    return NSBundle::localizedString(key, QString(), QStringLiteral("Flickr"));
}

std::vector<std::shared_ptr<ACAccount>> flickrAccounts(const ACAccountStore &store) {
    return store.accountsWithAccountType(store.accountTypeWithAccountTypeIdentifier(ACAccountTypeIdentifierFlickr));
}

} // namespace

std::shared_ptr<FlickrComposeViewController>
FlickrComposeViewController::initWithNibName(const std::optional<QString> &nibName,
                                             const std::optional<QString> &bundle) {
    const auto controller = std::make_shared<FlickrComposeViewController>();
    return controller->_initWithNibName(nibName, bundle) ? controller : nullptr;
}

void FlickrComposeViewController::forgetUnknownAudience() {
    CFPreferencesAppSynchronize(FlickrUploadDomain);
    const auto audience = qint32(CFPreferencesGetAppIntegerValue(FlickrUploadAudience, FlickrUploadDomain));
    if (audience >= FlickrAudiencePublic && audience <= FlickrAudienceOnlyMe) return;
    NSLog("The remembered audience %i is not known and is forgotten.", audience);
    CFPreferencesSetAppValue(FlickrUploadAudience, QVariant(), FlickrUploadDomain);
    CFPreferencesAppSynchronize(FlickrUploadDomain);
}

void FlickrComposeViewController::forgetPhotoSet() {
    CFPreferencesSetAppValue(FlickrUploadPhotoSetID, QVariant(), FlickrUploadDomain);
    CFPreferencesSetAppValue(FlickrUploadPhotoSetTitle, QVariant(), FlickrUploadDomain);
    CFPreferencesSetAppValue(FlickrUploadPhotoSetOwner, QVariant(), FlickrUploadDomain);
    CFPreferencesAppSynchronize(FlickrUploadDomain);
}

bool FlickrComposeViewController::_initWithNibName(const std::optional<QString> &nibName,
                                                   const std::optional<QString> &bundle) {
    if (!SLComposeServiceViewController::_initWithNibName(nibName, bundle)) return false;
    setMaxImageAttachmentSize(0);
    CFPreferencesAppSynchronize(FlickrUploadDomain);
    _audience = qint32(CFPreferencesGetAppIntegerValue(FlickrUploadAudience, FlickrUploadDomain));
    setAccountStore(std::make_shared<ACAccountStore>());
    const auto accounts = flickrAccounts(*_accountStore);
    setFlickrAccount(accounts.empty() ? nullptr : accounts.back());
    _recallPhotoSet();
    setTitle(localized(QStringLiteral("FLICKR")));
    return true;
}

// The one chosen last, unless it is known to be another user's.
void FlickrComposeViewController::_recallPhotoSet() {
    _photoSetTitle = localized(QStringLiteral("NO_SET"));
    _photoSetID = 0;
    const QVariant owner = CFPreferencesCopyAppValue(FlickrUploadPhotoSetOwner, FlickrUploadDomain);
    if (owner.typeId() == QMetaType::QString && _flickrAccount && owner.toString() != _flickrAccount->username())
        return;
    const QVariant title = CFPreferencesCopyAppValue(FlickrUploadPhotoSetTitle, FlickrUploadDomain);
    if (title.typeId() == QMetaType::QString) _photoSetTitle = title.toString();
    _photoSetID = integerValue(CFPreferencesCopyAppValue(FlickrUploadPhotoSetID, FlickrUploadDomain));
}

void FlickrComposeViewController::changeFlickrAccount(const std::shared_ptr<ACAccount> &account) {
    const auto identifierOf = [](const auto &some) { return some ? some->identifier() : QString(); };
    const auto former = std::exchange(_flickrAccount, account);
    if (identifierOf(former) == identifierOf(account)) return;
    _recallPhotoSet();
    if (_photoSetController) _formerPhotoSetControllers.push_back(std::exchange(_photoSetController, nullptr));
    _manager.reset();
    if (_photoSetConfigurationItem) reloadConfigurationItems();
}

std::vector<std::shared_ptr<SLComposeSheetConfigurationItem>> FlickrComposeViewController::configurationItems() {
    if (!_manager) {
        _manager = FlickrPhotoSetManager::init();
        _manager->setDelegate(sharedPointer(this));
    }
    _photoSetConfigurationItem = _photoSetItem();
    _audienceConfigurationItem = _audienceItem();
    return {_photoSetConfigurationItem, _audienceConfigurationItem};
}

std::shared_ptr<SLComposeSheetConfigurationItem> FlickrComposeViewController::_photoSetItem() {
    const auto item = SLComposeSheetConfigurationItem::init();
    item->setTitle(localized(QStringLiteral("PHOTOSET")));
    // The screen's own title counts once there is a screen, although nothing may have been chosen in it yet.
    item->setValue(_photoSetController ? _photoSetController->photoSetTitle() : _photoSetTitle);
    item->setTapHandler([weak = std::weak_ptr(sharedPointer(this))] {
        if (const auto self = weak.lock()) self->_pushPhotoSets();
    });
    return item;
}

void FlickrComposeViewController::_pushPhotoSets() {
    if (!_photoSetController) {
        _photoSetController = FlickrPhotoSetController::initWithPhotoSetManager(_manager);
        _photoSetController->setDelegate(sharedPointer(this));
    }
    pushConfigurationViewController(_photoSetController);
}

std::shared_ptr<SLComposeSheetConfigurationItem> FlickrComposeViewController::_audienceItem() {
    const auto item = SLComposeSheetConfigurationItem::init();
    item->setTitle(localized(QStringLiteral("AUDIENCE")));
    item->setValue(FlickrAudienceController::titleForAudience(_audience));
    item->setTapHandler([weak = std::weak_ptr(sharedPointer(this))] {
        if (const auto self = weak.lock()) self->_pushAudiences();
    });
    return item;
}

void FlickrComposeViewController::_pushAudiences() {
    if (!_audienceController) {
        _audienceController = FlickrAudienceController::init();
        _audienceController->setDelegate(sharedPointer(this));
    }
    _audienceController->setAudience(_audience);
    pushConfigurationViewController(_audienceController);
}

// The answer is for the screen that shows the photo sets, which goes with the sheet.
bool FlickrComposeViewController::isWaitingForAnswers() const {
    const auto isWaiting = [](const auto &screen) { return screen && !screen->manager()->photoSets(); };
    return isWaiting(_photoSetController) || std::ranges::any_of(_formerPhotoSetControllers, isWaiting);
}

void FlickrComposeViewController::flickrComposeOptionViewDidFinishWithSelection(
    const std::shared_ptr<UITableViewController> &optionView, const QVariant &selection) {
    if (optionView && optionView == _audienceController) {
        _audience = intValue(selection);
        _audienceConfigurationItem->setValue(FlickrAudienceController::titleForAudience(_audience));
        CFPreferencesSetAppValue(FlickrUploadAudience, qint64(quint32(_audience)), FlickrUploadDomain);
    } else if (optionView && optionView == _photoSetController) {
        _photoSetTitle = _photoSetController->photoSetTitle();
        _photoSetID = _photoSetController->photoSetID();
        CFPreferencesSetAppValue(FlickrUploadPhotoSetID, _photoSetID, FlickrUploadDomain);
        CFPreferencesSetAppValue(FlickrUploadPhotoSetTitle, _photoSetTitle ? QVariant(*_photoSetTitle) : QVariant(),
                                 FlickrUploadDomain);
        CFPreferencesSetAppValue(FlickrUploadPhotoSetOwner,
                                 _flickrAccount ? QVariant(_flickrAccount->username()) : QVariant(),
                                 FlickrUploadDomain);
        _photoSetConfigurationItem->setValue(_photoSetController->photoSetTitle());
    }
    CFPreferencesAppSynchronize(FlickrUploadDomain);
}

void FlickrComposeViewController::viewDidAppear(bool animated) {
    SLComposeServiceViewController::viewDidAppear(animated);
    if (!flickrAccounts(*_accountStore).empty()) {
        _hasFlickrAccount = true;
        return;
    }
    presentSettingsAlert(localized(QStringLiteral("NO_FLICKR_ACCOUNT_TITLE")),
                         localized(QStringLiteral("NO_FLICKR_ACCOUNT_MESSAGE")),
                         *NSURL::URLWithString(QStringLiteral("prefs:root=FLICKR")));
}

qint32 FlickrComposeViewController::postVisibility() const {
    switch (_audience) {
    case FlickrAudiencePublic:
        return FlickrVisibilityPublic;
    case FlickrAudienceFriends:
        return FlickrVisibilityFriends;
    case FlickrAudienceFamily:
        return FlickrVisibilityFamily;
    case FlickrAudienceOnlyMe:
        return 0;
    default:
        return _audience;
    }
}

void FlickrComposeViewController::didSelectPost() {
    if (!_hasFlickrAccount) return;
    std::vector<std::shared_ptr<FlickrPost>> posts;
    posts.reserve(attachments().size());
    for (const SLAttachment &attachment : attachments())
        if (const auto post = _postOfAttachment(attachment)) posts.push_back(post);
    _session = FlickrUploadSession::init();
    std::optional<NSError> error;
    if (!_session->uploadPosts(posts, &error)) {
        NSLog("uploadPosts error %@", error);
        return extensionContext()->cancelRequestWithError(error);
    }
    SLComposeServiceViewController::didSelectPost();
}

// Null for an image whose bytes cannot be had.
std::shared_ptr<FlickrPost> FlickrComposeViewController::_postOfAttachment(const SLAttachment &attachment) const {
    const auto post = FlickrPost::init();
    post->title = textView()->text();
    post->visibility = quint32(postVisibility());
    post->photoSetID = _photoSetID;
    switch (attachment.type) {
    case SLAttachmentTypeAssetURL:
        if (const auto *url = std::get_if<NSURL>(&attachment.payload)) post->assetURL = *url;
        return post;
    case SLAttachmentTypeData:
        post->photoData = dataOfAttachment(attachment, "image", "flickr");
        return post->photoData ? post : nullptr;
    default:
        // It goes on without a photo: whether it is of any use is for the upload service to say.
        NSLog("Don't know what to do with attachment type %@", QString::number(attachment.type));
        return post;
    }
}

} // namespace korvane
