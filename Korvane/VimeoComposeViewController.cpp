// The share sheet for a video to Vimeo.
#include "Korvane/VimeoComposeViewController.h"

#include "Korvane/AttachmentData.h"
#include "Korvane/VimeoPost.h"
#include "Korvane/VimeoUploadSession.h"
#include "Platform/AVFoundation/AVAssetExportSession.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/KRAssert.h"
#include "Platform/Foundation/NSBundle.h"
#include "Platform/Foundation/NSByteCountFormatter.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/UIKit/UIKeyboard.h"

namespace korvane {
namespace {

QString localized(const QString &key) {
    return NSBundle::localizedString(key, QString(), QStringLiteral("Vimeo"));
}

quint64 bytesOf(QStringView text) {
    return quint64(text.toUtf8().size());
}

const char *classOfPayload(const SLAttachment &attachment) {
    return std::holds_alternative<NSData>(attachment.payload) ? "NSData" : "(null)";
}

} // namespace

std::shared_ptr<VimeoComposeViewController>
VimeoComposeViewController::initWithNibName(const std::optional<QString> &nibName,
                                            const std::optional<QString> &bundle) {
    const auto controller = std::make_shared<VimeoComposeViewController>();
    return controller->_initWithNibName(nibName, bundle) ? controller : nullptr;
}

bool VimeoComposeViewController::_initWithNibName(const std::optional<QString> &nibName,
                                                  const std::optional<QString> &bundle) {
    if (!SLComposeServiceViewController::_initWithNibName(nibName, bundle)) return false;
    setAccountStore(std::make_shared<ACAccountStore>());
    const auto accounts = _accountStore->accountsWithAccountType(
        _accountStore->accountTypeWithAccountTypeIdentifier(ACAccountTypeIdentifierVimeo));
    setVimeoAccount(accounts.empty() ? nullptr : accounts.back());
    setTitle(localized(QStringLiteral("VIMEO")));
    setVideoSize(VimeoDetailsController::defaultVideoSize());
    return true;
}

std::vector<std::shared_ptr<SLComposeSheetConfigurationItem>> VimeoComposeViewController::configurationItems() {
    _detailsConfigurationItem = SLComposeSheetConfigurationItem::init();
    _detailsConfigurationItem->setTitle(localized(QStringLiteral("DETAILS")));
    _detailsConfigurationItem->setTapHandler([weak = std::weak_ptr(sharedPointer(this))] {
        if (const auto self = weak.lock()) self->_pushDetails();
    });
    return {_detailsConfigurationItem};
}

void VimeoComposeViewController::_pushDetails() {
    if (!_detailsController) {
        const auto details = VimeoDetailsController::initWithStyle(UITableViewStyleGrouped);
        details->videoSizes().append(_estimatedSizes());
        details->setDelegate(sharedPointer(this));
        _detailsController = details;
    }
    pushConfigurationViewController(_detailsController);
}

// Small, medium, large; empty where they are not known by now.
QStringList VimeoComposeViewController::_estimatedSizes() const {
    const auto *url = attachments().empty() ? nullptr : std::get_if<NSURL>(&attachments().back().payload);
    if (!url) return {};
    QStringList sizes;
    for (const QString &preset :
         {AVAssetExportPresetLowQuality, AVAssetExportPresetMediumQuality, AVAssetExportPresetHighestQuality}) {
        const qint64 length = ALAssetsLibrary::_estimatedOutputFileLengthForVideoURL(*url, {}, preset, {});
        if (length == 0) return {};
        sizes.append(NSByteCountFormatter::stringFromByteCount(float(length), NSByteCountFormatterCountStyleFile));
    }
    return sizes;
}

void VimeoComposeViewController::viewDidAppear(bool animated) {
    SLComposeServiceViewController::viewDidAppear(animated);
    if (_vimeoAccount && _vimeoAccount->credential()) return;
    presentSettingsAlert(localized(QStringLiteral("NO_VIMEO_ACCOUNT_TITLE")),
                         localized(QStringLiteral("NO_VIMEO_ACCOUNT_MESSAGE")),
                         *NSURL::URLWithString(QStringLiteral("prefs:root=VIMEO")));
}

bool VimeoComposeViewController::validateText(const QString &text) {
    return !text.isEmpty();
}

std::optional<qint64> VimeoComposeViewController::bytesRemaining() const {
    return qint64(VimeoLongestTitle) - qint64(bytesOf(textView()->text()));
}

bool VimeoComposeViewController::textViewShouldChangeTextInRange(const std::shared_ptr<UITextView> &textView,
                                                                 NSRange range, const QString &replacement) {
    const quint64 current = bytesOf(textView->text());
    const quint64 replaced = bytesOf(QStringView(textView->text()).mid(range.location, range.length));
    return current - replaced + bytesOf(replacement) <= VimeoLongestTitle;
}

void VimeoComposeViewController::vimeoComposeOptionsViewDidFinish(
    const std::shared_ptr<VimeoDetailsController> &options) {
    setPostDescription(options->videoDescription());
    setTags(options->tags());
    setVideoSize(options->videoSize());
    setPrivacySettings(options->privacySetting());
}

void VimeoComposeViewController::didSelectPost() {
    KRAssert(!attachments().empty(), "attachment", "-[VimeoComposeViewController didSelectPost]",
             "Korvane/VimeoComposeViewController", 170);
    const SLAttachment &attachment = attachments().back();
    const auto post = VimeoPost::init();
    if (const auto *url = std::get_if<NSURL>(&attachment.payload)) {
        post->assetURL = *url;
    } else if (attachment.type != SLAttachmentTypeVideo) {
        return NSLog("Cannot upload attachment of type %@", classOfPayload(attachment));
    } else {
        post->assetData = dataOfAttachment(attachment, "video", "vimeo");
    }
    if (const auto keyboard = UIKeyboard::activeKeyboard()) keyboard->acceptAutocorrection();
    post->title = textView()->text();
    post->postDescription = _postDescription;
    post->tags = _tags;
    post->videoSize = _videoSize;
    post->privacySettings = _privacySettings;
    _session = VimeoUploadSession::init();
    std::optional<NSError> error;
    if (_session->uploadPost(post, &error)) return SLComposeServiceViewController::didSelectPost();
    NSLog("uploadPost error %@", error);
    extensionContext()->cancelRequestWithError(error);
}

} // namespace korvane
