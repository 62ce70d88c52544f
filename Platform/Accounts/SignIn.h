// A person's sign-in at a web service: OAuth 1.0a (RFC 5849 section 2).
#pragma once

#include "Platform/Accounts/ApplicationKeys.h"
#include "Platform/Accounts/SignedInAccount.h"
#include "Platform/Foundation/NSURLRequest.h"
#include "Platform/Social/OAuthSigner.h"

#include <chrono>
#include <functional>
#include <memory>

class QTimer;

namespace korvane {

class CallbackListener;
class SignInAnswer;
enum class SignInStep;
struct SignInService;

// Asks for a request token, lets the person say yes on the service's page, and gets the access token and the user name
// for that. The page is told to come back to a loopback address, or to show a code that the person types in. Any number
// of sign-ins may run at once, also at one service. Thread: the main one; the requests run elsewhere.
class SignIn : public std::enable_shared_from_this<SignIn> {
public:
    // All run on the main queue, never inside start().
    struct Handlers {
        // Once: the page that the person has to open, in a browser on this machine unless a code is typed.
        std::function<void(const NSURL &page)> pageIsReady;
        // A typed code was not right; there may be another try.
        std::function<void(const NSError &error)> codeWasWrong;
        // Exactly once and last, with one of both, unless the object went before. The error is of ACErrorDomain or
        // NSURLErrorDomain; its text says what to do.
        std::function<void(const std::optional<SignedInAccount> &account, const std::optional<NSError> &error)> ended;
    };
    struct Options {
        bool typesCode = false;                       // the service shows a code, which goes to enterCode()
        std::chrono::milliseconds timeLimit{600'000}; // for all of it
        std::function<qint64()> clock = {};           // seconds since 1970; empty: this computer's
    };
    static constexpr int mostCodes = 3;

    SignIn(ACAccountType type, ApplicationKeys keys, Handlers handlers, Options options);
    ~SignIn(); // ends it without a word
    SignIn(const SignIn &) = delete;
    SignIn &operator=(const SignIn &) = delete;

    void start(); // once
    // The code that the page shows, with or without spaces around it. Counts only while one is awaited.
    void enterCode(const QString &code);
    // Gives up; `ended` runs before this returns, with ACErrorSignInCancelled, unless it has run.
    void cancel();

private:
    void _listen();
    void _askForRequestToken();
    void _requestTokenArrived(const SignInAnswer &answer);
    void _sendPersonToPage();
    bool _takeCallback(const OAuthParameters &query, bool &isRefused);
    void _askForAccessToken(const QString &verifier);
    void _accessTokenArrived(const SignInAnswer &answer);
    void _codeWasWrong(const NSError &error);
    void _askForUserName();
    void _userNameArrived(const SignInAnswer &answer);
    void _succeed(const QString &username);
    void _timeIsUp();
    void _fail(const NSError &error);
    void _fail(qint64 code, const QString &text);
    void _end(const std::optional<SignedInAccount> &account, const std::optional<NSError> &error);

    void _send(SignInStep step, const NSURL &url, const OAuthParameters &form, const OAuthParameters &protocol,
               void (SignIn::*arrived)(const SignInAnswer &));
    void _later(std::function<void()> step);

    const ACAccountType _type;
    const Handlers _handlers;
    const Options _options;
    std::unique_ptr<const SignInService> _service; // null: no web service of ours
    ACAccountCredential _credential;               // the application's keys, and the token reached so far
    QString _callback = QStringLiteral("oob");
    std::unique_ptr<CallbackListener> _listener;
    std::unique_ptr<QTimer> _timer;
    std::shared_ptr<UploadContext> _request; // that runs, or ran last
    bool _awaitsPerson = false;
    int _codesTried = 0;
    bool _hasEnded = false;
};

} // namespace korvane
