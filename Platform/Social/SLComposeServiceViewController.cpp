// The share sheet: a text, attachments, option rows, Post and Cancel.
#include "Platform/Social/SLComposeServiceViewController.h"

#include <utility>

namespace korvane {
namespace {

constexpr qint64 userCancelled = 3072; // of NSCocoaErrorDomain

}

bool SLComposeServiceViewController::_initWithNibName(const std::optional<QString> &nibName,
                                                      const std::optional<QString> &bundle) {
    if (!UIViewController::_initWithNibName(nibName, bundle)) return false;
    const auto self = std::static_pointer_cast<SLComposeServiceViewController>(shared_from_this());
    _textView = UITextView::initWithFrame({});
    _textView->setDelegate(self);
    _extensionContext = std::make_shared<NSExtensionContext>();
    _extensionContext->ended = [weak = std::weak_ptr(self)] {
        if (const auto sheet = weak.lock())
            sheet->_observers.tell([](SLComposeServiceViewControllerObserver &observer) { observer.composeDidEnd(); });
    };
    return true;
}

void SLComposeServiceViewController::viewWillAppear(bool animated) {
    UIViewController::viewWillAppear(animated);
    if (!std::exchange(_hasAppeared, true)) reloadConfigurationItems();
}

void SLComposeServiceViewController::reloadConfigurationItems() {
    const auto tell = [this] {
        _observers.tell([](SLComposeServiceViewControllerObserver &observer) { observer.composeItemsDidChange(); });
    };
    _items = configurationItems();
    for (const auto &item : _items)
        item->changed = [weak = weak_from_this(), tell] {
            if (weak.lock()) tell();
        };
    tell();
}

void SLComposeServiceViewController::pushConfigurationViewController(
    const std::shared_ptr<UIViewController> &controller) {
    if (_optionScreen) popConfigurationViewController();
    controller->view();
    controller->viewWillAppear(true);
    _optionScreen = controller;
    _observers.tell([&](SLComposeServiceViewControllerObserver &observer) { observer.composeDidPush(controller); });
    controller->viewDidAppear(true);
}

void SLComposeServiceViewController::popConfigurationViewController() {
    if (!_optionScreen) return;
    const auto screen = _optionScreen;
    screen->viewWillDisappear(true);
    const auto editing = std::dynamic_pointer_cast<UIView>(UIResponder::firstResponder());
    if (editing && editing->isDescendantOfView(*screen->view())) editing->resignFirstResponder();
    _optionScreen.reset();
    _observers.tell([&](SLComposeServiceViewControllerObserver &observer) { observer.composeDidPop(screen); });
    screen->viewDidDisappear(true);
}

void SLComposeServiceViewController::presentSettingsAlert(const QString &title, const QString &message,
                                                          const NSURL &targetURL) {
    _settingsAlert = SLSettingsAlert{title, message, targetURL};
    _observers.tell([alert = *_settingsAlert](SLComposeServiceViewControllerObserver &observer) {
        observer.composeDidPresentSettingsAlert(alert);
    });
}

void SLComposeServiceViewController::didSelectPost() {
    _extensionContext->completeRequest();
}

void SLComposeServiceViewController::didSelectCancel() {
    _extensionContext->cancelRequestWithError(NSError(NSCocoaErrorDomain, userCancelled));
}

void SLComposeServiceViewController::userTapsPost() {
    if (_extensionContext->state() != NSExtensionContext::State::Open || !validateText(_textView->text())) return;
    didSelectPost();
}

void SLComposeServiceViewController::textViewDidChange(const std::shared_ptr<UITextView> &) {
    _observers.tell([](SLComposeServiceViewControllerObserver &observer) { observer.composeTextDidChange(); });
}

} // namespace korvane
