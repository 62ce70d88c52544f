// What a web service answered to a step of a sign-in.
#include "Platform/Accounts/SignInAnswer.h"

#include "Platform/Accounts/ACError.h"
#include "Platform/Accounts/PlainLine.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSJSONSerialization.h"
#include "Platform/Foundation/NSURLConnection.h"
#include "Platform/Social/OAuthSigner.h"

#include <QDateTime>
#include <QRegularExpression>

#include <cstdlib>

namespace korvane {
namespace {

constexpr qint64 tolerableSeconds = 240; // services take time stamps that are some minutes off

QString durationText(qint64 seconds) {
    if (seconds >= 2 * 86400) return localizedCount("%n day(s)", (seconds + 43200) / 86400);
    if (seconds >= 3300) return localizedCount("%n hour(s)", (seconds + 1800) / 3600);
    return localizedCount("%n minute(s)", (seconds + 30) / 60);
}

bool isOneOf(const char *pattern, const QString &problem) {
    return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(pattern))).match(problem).hasMatch();
}

bool isUsable(const QString &text) {
    return isPlainLine(text) && text.size() <= 1024;
}

} // namespace

SignInAnswer::SignInAnswer(SignInStep step, QString service, std::optional<NSData> body, NSHTTPURLResponse response,
                           std::optional<NSError> error, qint64 now)
    : _step(step), _service(std::move(service)), _body(std::move(body)), _response(std::move(response)),
      _transportError(std::move(error)), _now(now) {}

std::optional<QMap<QString, QString>> SignInAnswer::values(const QStringList &names,
                                                           std::optional<NSError> *error) const {
    const auto fail = [error](NSError failure) {
        setError(error, std::move(failure));
        return std::nullopt;
    };
    if (auto failure = _failure()) return fail(*std::move(failure));
    QMap<QString, QString> found;
    for (const auto &[name, value] : OAuthSigner::parametersOfQuery(QString::fromUtf8(_body->bytes().trimmed()))) {
        if (found.contains(name)) return fail(_notUnderstood(localizedText("it holds something twice")));
        found.insert(name, value);
    }
    for (const QString &name : names)
        if (!isUsable(found.value(name))) return fail(_notUnderstood(localizedText("it holds no usable \"%1\"", name)));
    return found;
}

std::optional<QString> SignInAnswer::userName(std::optional<NSError> *error) const {
    if (auto failure = _failure()) {
        setError(error, std::move(failure));
        return std::nullopt;
    }
    const QVariantMap answer = NSJSONSerialization::JSONObjectWithData(_body->bytes()).value_or(QVariant()).toMap();
    const QString name = answer.value(QStringLiteral("user")).toMap().value(QStringLiteral("username")).toString();
    if (isUsable(name)) return name;
    setError(error, _notUnderstood(localizedText("it names no user")));
    return std::nullopt;
}

// Whatever is no answer with status 200 and a body of decent size.
std::optional<NSError> SignInAnswer::_failure() const {
    if (!_body) return _unreachable();
    const int status = _response.statusCode;
    if (status >= 500 || status == 429)
        return _error(ACErrorSignInNotPossible,
                      localizedText("%1 is out of order just now (status %2). Try again later.", _service,
                                    QString::number(status)));
    if (_body->length() > mostBytes) return _notUnderstood(localizedText("it is too long"));
    if (status == 200 && _oauthProblem().isEmpty()) return std::nullopt;
    if (status == 200 || status == 400 || status == 401 || status == 403) return _refusal();
    return _notUnderstood(localizedText("status %1", QString::number(status)));
}

NSError SignInAnswer::_unreachable() const {
    const NSError cause = _transportError.value_or(NSError(NSURLErrorDomain, NSURLErrorUnknown));
    const auto told = [&](const QString &text) {
        return NSError::errorWithDescription(cause.domain(), cause.code(), text);
    };
    if (cause.code() == NSURLErrorDataLengthExceedsMaximum) return _notUnderstood(localizedText("it is too long"));
    if (cause.code() == NSURLErrorBadServerResponse) return _notUnderstood(localizedText("it is not HTTP"));
    if (cause.code() == NSURLErrorNotConnectedToInternet)
        return told(localizedText("There is no network connection. Connect, then sign in again."));
    if (cause.code() <= NSURLErrorSecureConnectionFailed && cause.code() >= NSURLErrorClientCertificateRequired)
        return told(localizedText("There is no safe connection to %1 (%2). Check that date and time of this computer "
                                  "are right, then sign in again.",
                                  _service, cause.localizedDescription()));
    return told(localizedText("%1 cannot be reached (%2). Check the network connection, then sign in again.", _service,
                              cause.localizedDescription()));
}

// What has to do with the person's answer on the service's page, which nobody has seen before the first step's answer.
std::optional<NSError> SignInAnswer::_refusalOfPerson(const QString &problem) const {
    if (_step == SignInStep::RequestToken) return std::nullopt;
    if (isOneOf("user_refused|permission_denied", problem))
        return _error(ACErrorSignInRefused, localizedText("Korvane was not allowed to use the %1 account.", _service));
    if (isOneOf("verifier_.*|permission_unknown", problem) && _step == SignInStep::AccessToken)
        return _error(ACErrorSignInCodeWrong, localizedText("The code is not the one that %1 gave.", _service));
    if (isOneOf("token_.*", problem))
        return _error(ACErrorSignInExpired,
                      localizedText("This sign-in has expired or was used already. Sign in again."));
    return std::nullopt;
}

NSError SignInAnswer::_refusal() const {
    const QString problem = _oauthProblem();
    if (isOneOf("timestamp_refused", problem)) return _clockWrong(_secondsAhead());
    if (isOneOf("consumer_key_.*|signature_invalid", problem))
        return _error(ACErrorApplicationKeyRefused,
                      localizedText("%1 does not take the application's key, or the secret does not belong to it. "
                                    "Check both and sign in again.",
                                    _service));
    if (auto refusal = _refusalOfPerson(problem)) return *refusal;
    // Not every service says that it is the time stamp.
    if (const auto ahead = _secondsAhead(); ahead && std::abs(*ahead) > tolerableSeconds) return _clockWrong(ahead);
    return _error(
        ACErrorSignInNotPossible,
        localizedText("%1 refused the sign-in (%2). Try again later.", _service,
                      problem.isEmpty() ? localizedText("status %1", QString::number(_response.statusCode)) : problem));
}

NSError SignInAnswer::_clockWrong(std::optional<qint64> secondsAhead) const {
    const qint64 seconds = secondsAhead.value_or(0);
    const QString duration = durationText(std::abs(seconds));
    if (seconds >= 60)
        return _error(ACErrorClockWrong,
                      localizedText("%1 refused the sign-in because this computer's clock is %2 fast. Set date and "
                                    "time right, then sign in again.",
                                    _service, duration));
    if (seconds <= -60)
        return _error(ACErrorClockWrong,
                      localizedText("%1 refused the sign-in because this computer's clock is %2 slow. Set date and "
                                    "time right, then sign in again.",
                                    _service, duration));
    return _error(ACErrorClockWrong, localizedText("%1 refused the sign-in because this computer's clock is wrong. Set "
                                                   "date and time right, then sign in again.",
                                                   _service));
}

NSError SignInAnswer::_notUnderstood(const QString &reason) const {
    return _error(ACErrorSignInNotUnderstood,
                  localizedText("%1 answered something that Korvane does not understand (%2). Try again later.",
                                _service, reason));
}

NSError SignInAnswer::_error(qint64 code, const QString &text) const {
    return NSError::errorWithDescription(ACErrorDomain, code, text);
}

// The reason word alone: what follows it may quote the request.
QString SignInAnswer::_oauthProblem() const {
    static const QRegularExpression reason(QStringLiteral("(?:^|[&\\s\"])oauth_problem=([a-z_]{1,64})(?:$|[&\\s\"])"));
    return reason.match(QString::fromUtf8(_body->subdata(0, mostBytes).bytes())).captured(1);
}

// By how much this computer's clock is ahead of the service's; null where the answer has no usable date.
std::optional<qint64> SignInAnswer::_secondsAhead() const {
    QByteArray text = _response.valueForHTTPHeaderField("Date").value_or(QByteArray());
    text.replace("GMT", "+0000"); // Qt reads zones as numbers alone
    const QDateTime date = QDateTime::fromString(QString::fromLatin1(text), Qt::RFC2822Date);
    return date.isValid() ? std::optional(_now - date.toSecsSinceEpoch()) : std::nullopt;
}

} // namespace korvane
