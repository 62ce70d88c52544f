// The share sheet: a text, attachments, option rows, Post and Cancel.
#pragma once

#include "Platform/Social/NSExtensionContext.h"
#include "Platform/Social/SLAttachment.h"
#include "Platform/Social/SLComposeSheetConfigurationItem.h"
#include "Platform/UIKit/UITextView.h"
#include "Platform/UIKit/UIViewController.h"

#include <vector>

namespace korvane {

// Says that something has to be set up elsewhere first.
struct SLSettingsAlert {
    QString title;
    QString message;
    NSURL targetURL; // the settings page
};

// What a front end needs to follow a sheet.
class SLComposeServiceViewControllerObserver {
public:
    virtual ~SLComposeServiceViewControllerObserver() = default;
    virtual void composeTextDidChange() {}                                    // and with it what may be posted
    virtual void composeItemsDidChange() {}                                   // other rows, or other values in them
    virtual void composeDidPush(const std::shared_ptr<UIViewController> &) {} // an option screen is to be shown
    virtual void composeDidPop(const std::shared_ptr<UIViewController> &) {}  // and has gone again
    virtual void composeDidPresentSettingsAlert(const SLSettingsAlert &) {}
    virtual void composeDidDismissSettingsAlert() {}
    // The request has ended, see extensionContext. This is heard in the middle of didSelectPost or didSelectCancel: the
    // sheet is let go from the event loop, and only where isWaitingForAnswers is false.
    virtual void composeDidEnd() {}
};

// A service derives its sheet from this. The front end gives it attachments, makes it appear, does what the user does,
// and shows what the observers hear. Thread: main.
class SLComposeServiceViewController : public UIViewController, public UITextViewDelegate {
public:
    void addObserver(const std::shared_ptr<SLComposeServiceViewControllerObserver> &observer) {
        _observers.add(observer);
    }

    // The sheet comes up, or comes up again after the user has been elsewhere: a service then checks anew whether it
    // has what it needs, such as an account.
    void appear();
    // The front end keeps the sheet as long as this holds, also after the end of the request: the process stops on an
    // answer that finds it gone.
    virtual bool isWaitingForAnswers() const { return false; }

    // Before the sheet appears.
    void setAttachments(std::vector<SLAttachment> attachments) { _attachments = std::move(attachments); }
    const std::vector<SLAttachment> &attachments() const { return _attachments; }

    const std::shared_ptr<UITextView> &textView() const { return _textView; }
    const std::shared_ptr<NSExtensionContext> &extensionContext() const { return _extensionContext; }

    // New rows at each call; a service gives its own.
    virtual std::vector<std::shared_ptr<SLComposeSheetConfigurationItem>> configurationItems() { return {}; }
    void reloadConfigurationItems();
    // The rows that are shown, since the sheet first appeared.
    const std::vector<std::shared_ptr<SLComposeSheetConfigurationItem>> &shownConfigurationItems() const {
        return _items;
    }
    // What of an attached image the service wants at most, in bytes; 0: all of it.
    void setMaxImageAttachmentSize(qint64 size) { _maxImageAttachmentSize = size; }
    qint64 maxImageAttachmentSize() const { return _maxImageAttachmentSize; }

    // Whether the text may be posted; a service has its own rule.
    virtual bool validateText(const QString &text) {
        Q_UNUSED(text)
        return true;
    }

    // Bytes in UTF-8 that the text may still grow by; null where it has no limit.
    virtual std::optional<qint64> bytesRemaining() const { return std::nullopt; }
    // Whether what the option rows lead to depends on what is attached.
    virtual bool configurationItemsNeedAttachments() const { return false; }

    // One option screen at a time is shown over the sheet.
    void pushConfigurationViewController(const std::shared_ptr<UIViewController> &controller);
    void popConfigurationViewController();
    const std::shared_ptr<UIViewController> &configurationViewController() const { return _optionScreen; }

    void presentSettingsAlert(const QString &title, const QString &message, const NSURL &targetURL);
    // Null when none is shown.
    const std::optional<SLSettingsAlert> &settingsAlert() const { return _settingsAlert; }
    void dismissSettingsAlert();

    // What the Post button does, without looking whether the text may be posted; by itself it completes the request.
    virtual void didSelectPost();
    // What the Cancel button does: it cancels the request as the user's own wish.
    virtual void didSelectCancel();
    // The Post button: what is shown over the sheet goes first. Nothing more where the text may not be posted or the
    // request has ended.
    void userTapsPost();

    void viewWillAppear(bool animated) override;
    void textViewDidChange(const std::shared_ptr<UITextView> &textView) override;

protected:
    bool _initWithNibName(const std::optional<QString> &nibName, const std::optional<QString> &bundle) override;

private:
    void _tellOfItems() const { _observers.tell(&SLComposeServiceViewControllerObserver::composeItemsDidChange); }

    ObserverList<SLComposeServiceViewControllerObserver> _observers;
    std::vector<SLAttachment> _attachments;
    std::shared_ptr<UITextView> _textView;
    std::shared_ptr<NSExtensionContext> _extensionContext;
    std::vector<std::shared_ptr<SLComposeSheetConfigurationItem>> _items;
    std::shared_ptr<UIViewController> _optionScreen;
    std::optional<SLSettingsAlert> _settingsAlert;
    qint64 _maxImageAttachmentSize = 0;
    bool _hasAppeared = false;
};

} // namespace korvane
