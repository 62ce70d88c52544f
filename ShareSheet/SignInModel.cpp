// A sign-in as a page shows it.
#include "ShareSheet/SignInModel.h"

#include "FrontEnd/UploadText.h"
#include "Platform/Accounts/ACError.h"
#include "ShareSheet/Background.h"

#include <QDesktopServices>

namespace korvane {

SignInModel::SignInModel(ACAccountType type, QObject *parent)
    : QObject(parent), _type(std::move(type)),
      _open([](const QString &address) { return QDesktopServices::openUrl(QUrl(address)); }) {}

SignInModel::~SignInModel() = default;

void SignInModel::start(const ApplicationKeys &keys, bool typesCode) {
    if (_signIn || _step == Step::Storing) return;
    _typesCode = typesCode;
    _pageAddress.clear();
    const SignIn::Handlers handlers{
        .pageIsReady = [this](const NSURL &page) { _pageIsReady(page); },
        .codeWasWrong = [this](const NSError &error) { _set(_step, error.localizedDescription()); },
        .ended = [this](const auto &account, const auto &error) { _ended(account, error); }};
    SignIn::Options options;
    options.typesCode = typesCode;
    _signIn = std::make_shared<SignIn>(_type, keys, handlers, options);
    _set(Step::Asking);
    _signIn->start();
}

void SignInModel::_pageIsReady(const NSURL &page) {
    _pageAddress = page.absoluteString();
    _set(Step::Person);
    openPage();
}

void SignInModel::openPage() {
    if (_pageAddress.isEmpty() || _open(_pageAddress)) return;
    _set(_step, tr("The browser did not open. Open the address below yourself."));
}

void SignInModel::enterCode(const QString &code) {
    if (!_signIn) return;
    _set(_step);
    _signIn->enterCode(code);
}

void SignInModel::cancel() {
    if (const auto signIn = _signIn) signIn->cancel(); // which lets go of it
}

void SignInModel::_ended(const std::optional<SignedInAccount> &account, const std::optional<NSError> &error) {
    _signIn.reset();
    _pageAddress.clear();
    if (!account) {
        const bool isCancelled = error->domain() == ACErrorDomain && error->code() == ACErrorSignInCancelled;
        return _set(Step::None, isCancelled ? QString() : error->localizedDescription());
    }
    _set(Step::Storing);
    inBackground(this, [this, found = *account]() -> std::function<void()> {
        std::optional<NSError> storeError;
        const auto stored = found.save(&storeError);
        return [this, stored, storeError] {
            if (!stored) return _set(Step::None, storeError->localizedDescription());
            _username = UploadText::brief(stored->username());
            _set(Step::Done);
            Q_EMIT accountAdded();
        };
    });
}

void SignInModel::_set(Step step, const QString &problem) {
    _step = step;
    _problem = problem;
    Q_EMIT changed();
}

} // namespace korvane
