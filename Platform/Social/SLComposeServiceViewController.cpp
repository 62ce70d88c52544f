// The share sheet: a text, attachments, option rows, Post and Cancel.
#include "Platform/Social/SLComposeServiceViewController.h"

#include <utility>

namespace korvane {
namespace {

using Observer = SLComposeServiceViewControllerObserver;

constexpr qint64 userCancelled = 3072; // of NSCocoaErrorDomain

} // namespace

bool SLComposeServiceViewController::_initWithNibName(const std::optional<QString> &nibName,
                                                      const std::optional<QString> &bundle) {
    if (!UIViewController::_initWithNibName(nibName, bundle)) return false;
    const auto self = sharedPointer(this);
    _textView = UITextView::initWithFrame({});
    _textView->setDelegate(self);
    _extensionContext = std::make_shared<NSExtensionContext>();
    _extensionContext->ended = [weak = std::weak_ptr(self)] {
        if (const auto sheet = weak.lock()) sheet->_observers.tell(&Observer::composeDidEnd);
    };
    return true;
}

void SLComposeServiceViewController::appear() {
    view();
    viewWillAppear(false);
    viewDidAppear(false);
}

void SLComposeServiceViewController::viewWillAppear(bool animated) {
    UIViewController::viewWillAppear(animated);
    if (!std::exchange(_hasAppeared, true)) reloadConfigurationItems();
}

void SLComposeServiceViewController::reloadConfigurationItems() {
    for (const auto &item : _items)
        item->changed = nullptr;
    _items = configurationItems();
    for (const auto &item : _items)
        item->changed = [weak = std::weak_ptr(sharedPointer(this))] {
            if (const auto sheet = weak.lock()) sheet->_tellOfItems();
        };
    _tellOfItems();
}

void SLComposeServiceViewController::pushConfigurationViewController(
    const std::shared_ptr<UIViewController> &controller) {
    popConfigurationViewController();
    controller->view();
    controller->viewWillAppear(true);
    _optionScreen = controller;
    _observers.tell(&Observer::composeDidPush, controller);
    controller->viewDidAppear(true);
}

void SLComposeServiceViewController::popConfigurationViewController() {
    const auto screen = std::exchange(_optionScreen, nullptr);
    if (!screen) return;
    screen->viewWillDisappear(true);
    if (const auto editing = screen->view()->firstResponderWithin()) editing->resignFirstResponder();
    _observers.tell(&Observer::composeDidPop, screen);
    screen->viewDidDisappear(true);
}

void SLComposeServiceViewController::presentSettingsAlert(const QString &title, const QString &message,
                                                          const NSURL &targetURL) {
    _settingsAlert = SLSettingsAlert{title, message, targetURL};
    _observers.tell(&Observer::composeDidPresentSettingsAlert, *_settingsAlert);
}

void SLComposeServiceViewController::dismissSettingsAlert() {
    if (std::exchange(_settingsAlert, std::nullopt)) _observers.tell(&Observer::composeDidDismissSettingsAlert);
}

void SLComposeServiceViewController::didSelectPost() {
    _extensionContext->completeRequest();
}

void SLComposeServiceViewController::didSelectCancel() {
    _extensionContext->cancelRequestWithError(NSError(NSCocoaErrorDomain, userCancelled));
}

void SLComposeServiceViewController::userTapsPost() {
    popConfigurationViewController();
    if (_extensionContext->state() != NSExtensionContext::State::Open || !validateText(_textView->text())) return;
    didSelectPost();
}

void SLComposeServiceViewController::textViewDidChange(const std::shared_ptr<UITextView> &) {
    _observers.tell(&Observer::composeTextDidChange);
}

} // namespace korvane
