// A person's sign-in at a web service.
#include "Platform/Accounts/SignIn.h"

#include "Platform/Accounts/ACError.h"
#include "Platform/Accounts/CallbackListener.h"
#include "Platform/Accounts/SignInAnswer.h"
#include "Platform/Accounts/SignInService.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSURLConnection.h"
#include "Platform/Social/RequestBody.h"

#include <QDateTime>
#include <QTimer>
#include <QUuid>

#include <algorithm>

namespace korvane {
namespace {

const QString tokenKey = QStringLiteral("oauth_token");
const QString tokenSecretKey = QStringLiteral("oauth_token_secret");
const QString verifierKey = QStringLiteral("oauth_verifier");

qint64 thisComputersTime() {
    return QDateTime::currentSecsSinceEpoch();
}

} // namespace

SignIn::SignIn(ACAccountType type, ApplicationKeys keys, Handlers handlers, Options options)
    : _type(std::move(type)), _handlers(std::move(handlers)),
      _options(std::move(options)), _credential{std::move(keys.consumerKey), std::move(keys.consumerSecret), {}, {}} {
    if (auto service = SignInService::serviceOf(_type))
        _service = std::make_unique<const SignInService>(*std::move(service));
}

SignIn::~SignIn() {
    if (_request) _request->cancel();
}

void SignIn::start() {
    _timer = std::make_unique<QTimer>();
    _timer->setSingleShot(true);
    QObject::connect(_timer.get(), &QTimer::timeout, _timer.get(), [this] { _later([this] { _timeIsUp(); }); });
    _timer->start(_options.timeLimit);
    _later([this] { _listen(); });
}

void SignIn::_listen() {
    const QString problem = ApplicationKeys{_credential.consumerKey, _credential.consumerSecret}.problem();
    if (!_service) return _fail(ACErrorAccountTypeInvalid, localizedText("There is no such web service."));
    if (!problem.isEmpty()) return _fail(ACErrorApplicationKeyRefused, problem);
    if (_options.typesCode) return _askForRequestToken();
    _listener = std::make_unique<CallbackListener>([this](const OAuthParameters &query) {
        bool isRefused = false;
        if (!_takeCallback(query, isRefused)) return CallbackListener::Reception::Foreign;
        return isRefused ? CallbackListener::Reception::Refused : CallbackListener::Reception::Done;
    });
    if (!_listener->problem().isEmpty())
        return _fail(ACErrorSignInNotPossible,
                     localizedText("Korvane cannot wait for the browser here (%1). Sign in with a typed code instead.",
                                   _listener->problem()));
    _callback = _listener->address();
    _askForRequestToken();
}

void SignIn::_askForRequestToken() {
    _send(SignInStep::RequestToken, _service->requestTokenURL, {}, {{QStringLiteral("oauth_callback"), _callback}},
          &SignIn::_requestTokenArrived);
}

void SignIn::_requestTokenArrived(const SignInAnswer &answer) {
    const QString confirmation = QStringLiteral("oauth_callback_confirmed");
    std::optional<NSError> error;
    const auto values = answer.values({tokenKey, tokenSecretKey, confirmation}, &error);
    if (!values) return _fail(*error);
    // Without it the call-back could be somebody else's (OAuth 1.0 before its revision A).
    if (values->value(confirmation) != QLatin1String("true"))
        return _fail(ACErrorSignInNotUnderstood,
                     localizedText("%1 does not confirm the way back to Korvane. Try again later.", _service->name));
    _credential.token = values->value(tokenKey);
    _credential.tokenSecret = values->value(tokenSecretKey);
    _sendPersonToPage();
}

void SignIn::_sendPersonToPage() {
    _awaitsPerson = true;
    _handlers.pageIsReady(_service->authorizationURL(_credential.token));
}

// False if it is not the way back of this sign-in. The listener is in use until this has returned.
bool SignIn::_takeCallback(const OAuthParameters &query, bool &isRefused) {
    const auto valuesOf = [&query](const QString &name) {
        QStringList values;
        for (const auto &[key, value] : query)
            if (key == name) values.append(value);
        return values;
    };
    const QStringList tokens = valuesOf(tokenKey) + valuesOf(QStringLiteral("denied"));
    const QStringList verifiers = valuesOf(verifierKey);
    const bool isProblem = !valuesOf(QStringLiteral("oauth_problem")).isEmpty();
    if (!_awaitsPerson || tokens.size() + int(isProblem) == 0 || tokens.count(_credential.token) < tokens.size() ||
        verifiers.size() > 1)
        return false;
    _awaitsPerson = false;
    isRefused =
        isProblem || verifiers.value(0).isEmpty() || query.contains({QStringLiteral("denied"), _credential.token});
    if (isRefused)
        _later([this] {
            _fail(ACErrorSignInRefused,
                  localizedText("Korvane was not allowed to use the %1 account.", _service->name));
        });
    else
        _later([this, verifier = verifiers[0]] { _askForAccessToken(verifier); });
    return true;
}

void SignIn::enterCode(const QString &code) {
    if (!_awaitsPerson || !_options.typesCode || code.trimmed().isEmpty()) return;
    _awaitsPerson = false;
    _askForAccessToken(code.trimmed());
}

void SignIn::_askForAccessToken(const QString &verifier) {
    _send(SignInStep::AccessToken, _service->accessTokenURL, {}, {{verifierKey, verifier}},
          &SignIn::_accessTokenArrived);
}

void SignIn::_accessTokenArrived(const SignInAnswer &answer) {
    QStringList names{tokenKey, tokenSecretKey};
    if (!_service->loginURL) names.append(QStringLiteral("username"));
    std::optional<NSError> error;
    const auto values = answer.values(names, &error);
    const bool isWrongCode = error && error->domain() == ACErrorDomain && error->code() == ACErrorSignInCodeWrong;
    if (isWrongCode) return _codeWasWrong(*error);
    if (!values) return _fail(*error);
    _credential.token = values->value(tokenKey);
    _credential.tokenSecret = values->value(tokenSecretKey);
    if (_service->loginURL) return _askForUserName();
    _succeed(values->value(QStringLiteral("username")));
}

void SignIn::_codeWasWrong(const NSError &error) {
    if (!_options.typesCode || ++_codesTried == mostCodes)
        return _fail(ACErrorSignInCodeWrong, error.localizedDescription() + u' ' + localizedText("Sign in again."));
    _awaitsPerson = true;
    _handlers.codeWasWrong(error);
}

void SignIn::_askForUserName() {
    _send(SignInStep::UserName, *_service->loginURL, {{QStringLiteral("method"), QStringLiteral("vimeo.test.login")}},
          {}, &SignIn::_userNameArrived);
}

void SignIn::_userNameArrived(const SignInAnswer &answer) {
    std::optional<NSError> error;
    const auto name = answer.userName(&error);
    if (!name) return _fail(*error);
    _succeed(*name);
}

void SignIn::_succeed(const QString &username) {
    _end(SignedInAccount{_type, username, _credential}, std::nullopt);
}

void SignIn::cancel() {
    _fail(ACErrorSignInCancelled, localizedText("The sign-in was cancelled."));
}

void SignIn::_timeIsUp() {
    _fail(ACErrorSignInTimedOut, _awaitsPerson
                                     ? localizedText("Nobody answered in time. Sign in again.")
                                     : localizedText("%1 took too long to answer. Try again later.", _service->name));
}

void SignIn::_fail(qint64 code, const QString &text) {
    _fail(NSError::errorWithDescription(ACErrorDomain, code, text));
}

void SignIn::_fail(const NSError &error) {
    _end(std::nullopt, error);
}

// The handler may let go of this object.
void SignIn::_end(const std::optional<SignedInAccount> &account, const std::optional<NSError> &error) {
    if (std::exchange(_hasEnded, true)) return;
    const auto self = shared_from_this();
    _awaitsPerson = false;
    _timer->stop();
    if (_request) _request->cancel();
    _handlers.ended(account, error);
}

// Signs with what the credential holds so far. The answer comes on the main queue, unless the sign-in ends before.
void SignIn::_send(SignInStep step, const NSURL &url, const OAuthParameters &form, const OAuthParameters &protocol,
                   void (SignIn::*arrived)(const SignInAnswer &)) {
    const auto clock = _options.clock ? _options.clock : thisComputersTime;
    const RequestBody body = RequestBody::form(form);
    NSMutableURLRequest request{.URL = url, .HTTPMethod = "POST", .HTTPBody = body.pieces};
    const QByteArray authorization =
        OAuthSigner::authorizationHeader("POST", url, OAuthSigner::parametersOfQuery(url.query()) + form, _credential,
                                         clock(), QUuid::createUuid().toString(QUuid::Id128), protocol);
    request.headers = {{"Content-Type", body.contentType}, {"Authorization", authorization}};
    request.uploadContext = _request = std::make_shared<UploadContext>();
    dispatchGlobal([weak = weak_from_this(), step, request, arrived, clock] {
        NSHTTPURLResponse response;
        std::optional<NSError> error;
        const auto answer = NSURLConnection::sendSynchronousRequest(request, &response, &error);
        dispatchMain([=] {
            if (const auto self = weak.lock(); self && !self->_hasEnded)
                (self.get()->*arrived)(SignInAnswer(step, self->_service->name, answer, response, error, clock()));
        });
    });
}

// On the main queue, unless the sign-in ends before.
void SignIn::_later(std::function<void()> step) {
    dispatchMain([weak = weak_from_this(), step = std::move(step)] {
        if (const auto self = weak.lock(); self && !self->_hasEnded) step();
    });
}

} // namespace korvane
