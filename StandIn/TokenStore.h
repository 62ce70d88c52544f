// The tokens that sign-ins give out.
#pragma once

#include "StandIn/StateJournal.h"

#include <map>
#include <mutex>
#include <optional>

namespace standin {

struct Token {
    QByteArray token;
    QByteArray secret;
};

// Access tokens are kept from run to run, request tokens are not. An application is known by its consumer key.
// Thread: any.
class TokenStore {
public:
    static constexpr int MostWrongVerifiers = 3; // then the request token is forgotten

    bool open(const QString &folder, QString *error);

    // callback: "oob", or where to send the person.
    Token addRequestToken(const QByteArray &application, const QByteArray &callback);
    // Nothing when it is not known, or used up.
    std::optional<QByteArray> requestSecret(const QByteArray &application, const QByteArray &token) const;
    // Where to send the person who has not decided yet; nothing when there is nothing to decide.
    std::optional<QByteArray> callbackOf(const QByteArray &application, const QByteArray &token) const;
    // The verifier for the person's yes; nothing when there is nothing to decide.
    std::optional<QByteArray> allow(const QByteArray &application, const QByteArray &token);
    void refuse(const QByteArray &application, const QByteArray &token);

    // Gives an access token for an allowed request token, which is used up by that. Else `problem` gets the reason.
    std::optional<Token> exchange(const QByteArray &application, const QByteArray &token, const QByteArray &verifier,
                                  QByteArray *problem);
    std::optional<QByteArray> accessSecret(const QByteArray &application, const QByteArray &token) const;

private:
    using Name = std::pair<QByteArray, QByteArray>; // application and token
    struct Request {
        QByteArray secret;
        QByteArray callback;
        QByteArray verifier; // empty until it is allowed
        int wrongVerifiers = 0;
    };

    mutable std::mutex _mutex;
    StateJournal _journal;
    std::map<Name, Request> _requests;
    std::map<Name, QByteArray> _accessSecrets;
};

} // namespace standin
