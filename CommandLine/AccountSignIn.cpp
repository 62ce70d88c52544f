// A sign-in that a person makes from the terminal, or a script for them.
#include "CommandLine/AccountSignIn.h"

#include "CommandLine/Browser.h"
#include "CommandLine/Interruption.h"
#include "CommandLine/Output.h"
#include "FrontEnd/ExitStatus.h"
#include "Platform/Accounts/ACError.h"

namespace korvane {
namespace {

constexpr const char *secretVariable = "KORVANE_CONSUMER_SECRET";

// The variable's value; browsers and other programs started from here need not know it.
QString takeSecretFromEnvironment() {
    const QString secret = qEnvironmentVariable(secretVariable);
    qunsetenv(secretVariable);
    return secret;
}

} // namespace

AccountSignIn::AccountSignIn(ACAccountType type, Options options)
    : _type(std::move(type)), _options(std::move(options)), _service(_type.serviceName()) {}

std::optional<SignedInAccount> AccountSignIn::run(int *status) {
    const Interruption interruption([this](int signal) { _interrupted(signal); });
    _findKeys();
    if (!_status) _loop.exec();
    *status = *_status;
    return _account;
}

void AccountSignIn::_findKeys() {
    _keys.consumerSecret = takeSecretFromEnvironment();
    if (_options.consumerKey) {
        _keys.consumerKey = *_options.consumerKey;
        return _askForSecret();
    }
    std::optional<NSError> error;
    if (const auto stored = ApplicationKeys::stored(_type, &error)) {
        _keys = *stored;
        return _start();
    }
    if (error) {
        Output::problem(QStringLiteral("The application's keys cannot be read. ") + error->localizedDescription(),
                        {QStringLiteral("Keys are given anew with --consumer-key KEY.")});
        return _leave(ExitUploadFailed);
    }
    _askForKey();
}

void AccountSignIn::_askForKey() {
    const QString address = ApplicationKeys::registrationAddress(_type);
    if (!_input.isTerminal()) {
        Output::problem(
            QStringLiteral("Signing in at %1 needs an application key of your own. Get one at").arg(_service),
            {address, QStringLiteral("and give it with --consumer-key KEY, its secret in %1 or on standard input.")
                          .arg(QLatin1String(secretVariable))});
        return _leave(ExitUsage);
    }
    Output::note(
        QStringLiteral("Signing in at %1 needs an application key of your own, once. Get one at").arg(_service));
    Output::note(address);
    Output::note(QStringLiteral("and enter what it says there."));
    _input.ask(QStringLiteral("Key: "), LineInput::Echo::Shown, [this](const auto &line) {
        _keys.consumerKey = line.value_or(QString());
        _askForSecret();
    });
}

void AccountSignIn::_askForSecret() {
    _keysAreNew = true;
    if (!_keys.consumerSecret.isEmpty()) return _start();
    _input.ask(QStringLiteral("Secret (is not shown): "), LineInput::Echo::Hidden, [this](const auto &line) {
        _keys.consumerSecret = line.value_or(QString());
        _start();
    });
}

void AccountSignIn::_start() {
    if (const QString problem = _keys.problem(); !problem.isEmpty()) {
        Output::problem(problem);
        return _leave(ExitUsage);
    }
    const SignIn::Handlers handlers{.pageIsReady = [this](const NSURL &page) { _showPage(page.absoluteString()); },
                                    .codeWasWrong =
                                        [this](const NSError &error) {
                                            Output::problem(error.localizedDescription());
                                            _askForCode();
                                        },
                                    .ended =
                                        [this](const auto &account, const auto &error) {
                                            _account = account;
                                            _ended(error);
                                        }};
    _signIn = std::make_shared<SignIn>(_type, _keys, handlers, SignIn::Options{.typesCode = !_options.opensBrowser});
    _signIn->start();
}

// The page's address holds no secret: its token is of use only together with one that stays here.
void AccountSignIn::_showPage(const QString &page) {
    Output::note(QStringLiteral("Allow Korvane to use your %1 account on this page:").arg(_service));
    Output::note(page);
    if (!_options.opensBrowser) return _askForCode();
    Output::note(QStringLiteral("Waiting for that. Ctrl-C gives up."));
    Browser::open(page, [weak = std::weak_ptr(_signIn)] {
        if (weak.expired()) return;
        Output::note(
            QStringLiteral("No browser could be opened. Open the page yourself, in a browser on this computer; "
                           "for one elsewhere, begin again with --no-browser."));
    });
}

void AccountSignIn::_askForCode() {
    _input.ask(QStringLiteral("Code: "), LineInput::Echo::Shown, [this](const std::optional<QString> &line) {
        if (_status) return;
        if (line && line->isEmpty()) return _askForCode();
        if (line) return _signIn->enterCode(*line);
        Output::problem(QStringLiteral("No code was entered."));
        _leave(ExitUploadFailed);
    });
}

void AccountSignIn::_ended(const std::optional<NSError> &error) {
    if (_status) return;
    if (!error) {
        if (_keysAreNew) _storeKeys();
        return _leave(ExitDone);
    }
    QStringList hints;
    if (error->domain() == ACErrorDomain && error->code() == ACErrorApplicationKeyRefused)
        hints = {QStringLiteral("Keys are given anew with --consumer-key KEY. They are to be had at"),
                 ApplicationKeys::registrationAddress(_type)};
    Output::problem(error->localizedDescription(), hints);
    _leave(ExitUploadFailed);
}

// The account carries its own copy: without this only the next sign-in asks again.
void AccountSignIn::_storeKeys() {
    std::optional<NSError> error;
    if (!_keys.store(_type, &error))
        Output::problem(QStringLiteral("The application's keys were not stored. ") + error->localizedDescription());
}

void AccountSignIn::_interrupted(int signal) {
    _leave(128 + signal);
    if (_signIn) _signIn->cancel();
    Output::problem(QStringLiteral("The sign-in was cancelled."));
}

void AccountSignIn::_leave(int status) {
    if (!_status) _status = status;
    _loop.quit();
}

} // namespace korvane
