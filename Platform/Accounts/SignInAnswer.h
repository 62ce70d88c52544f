// What a web service answered to a step of a sign-in.
#pragma once

#include "Platform/Foundation/NSData.h"
#include "Platform/Foundation/NSURLRequest.h"

#include <QMap>
#include <QStringList>

#include <optional>

namespace korvane {

enum class SignInStep { RequestToken, AccessToken, UserName };

// Makes words of every way in which a step can fail; they say what to do and hold no secret. The reasons are those of
// the OAuth problem reporting extension ("oauth_problem=…"), which both services use.
class SignInAnswer {
public:
    static constexpr qint64 mostBytes = 16 * 1024;

    // As the URL send gave them. service: its name for people. now: this computer's time, in seconds since 1970.
    SignInAnswer(SignInStep step, QString service, std::optional<NSData> body, NSHTTPURLResponse response,
                 std::optional<NSError> error, qint64 now);

    // Form-encoded values of a step that succeeded, each of the names among them once and not empty. Null with the
    // error placed: of NSURLErrorDomain where there was no answer, else of ACErrorDomain.
    std::optional<QMap<QString, QString>> values(const QStringList &names, std::optional<NSError> *error) const;
    // The user name in the JSON that "vimeo.test.login" answers. Null with the error placed, likewise.
    std::optional<QString> userName(std::optional<NSError> *error) const;

private:
    std::optional<NSError> _failure() const;
    NSError _unreachable() const;
    NSError _refusal() const;
    std::optional<NSError> _refusalOfPerson(const QString &problem) const;
    NSError _clockWrong(std::optional<qint64> secondsAhead) const;
    NSError _notUnderstood(const QString &reason) const;
    NSError _error(qint64 code, const QString &text) const;
    QString _oauthProblem() const;
    std::optional<qint64> _secondsAhead() const;

    SignInStep _step;
    QString _service;
    std::optional<NSData> _body;
    NSHTTPURLResponse _response;
    std::optional<NSError> _transportError;
    qint64 _now;
};

} // namespace korvane
