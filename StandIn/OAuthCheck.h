// Verifies OAuth 1.0a signatures (RFC 5849, HMAC-SHA1 in the Authorization header) of one application.
#pragma once

#include "StandIn/Parameters.h"

#include <QSet>

#include <functional>
#include <map>
#include <mutex>
#include <optional>

namespace standin {

struct Credential {
    QByteArray username;
    QByteArray consumerKey;
    QByteArray consumerSecret;
    QByteArray token;
    QByteArray tokenSecret;
};

// What of a request a signature covers.
struct SignedRequest {
    QByteArray method;
    QByteArray host;          // the Host header; the scheme is always http
    QByteArray target;        // path and query exactly as they stand in the request line
    QByteArray authorization; // the Authorization header's value
    Parameters body;          // decoded parameters of the body, without the photo
};

// Thread: any.
class OAuthCheck {
public:
    using Clock = std::function<qint64()>; // seconds since 1970
    // The secret of a token; nothing when the token is not known.
    using Secrets = std::function<std::optional<QByteArray>(const QByteArray &token)>;

    static constexpr qint64 TimestampWindow = 300; // seconds that a time stamp may lie in the past or in the future

    // The credential's token is known in any case.
    explicit OAuthCheck(Credential credential, Clock clock = {}, Secrets accessSecrets = {});

    // Nothing when the request is genuine, else the text that goes out with status 401 ("oauth_problem=…"). A nonce is
    // used up only by a request whose signature holds.
    std::optional<QByteArray> problem(const SignedRequest &request);
    // The same for a step of a sign-in, which takes those tokens; without a function it takes none.
    std::optional<QByteArray> problem(const SignedRequest &request, const Secrets &requestSecrets);

    // The parameters of an Authorization header, realm left out; nothing when it is not a well-formed OAuth header.
    static std::optional<Parameters> parametersOfHeader(const QByteArray &authorization);
    // RFC 5849 section 3.4.1; `oauth` are the header's parameters.
    static QByteArray baseString(const SignedRequest &request, const Parameters &oauth);
    static QByteArray signature(const QByteArray &baseString, const QByteArray &consumerSecret,
                                const QByteArray &tokenSecret);

private:
    std::optional<QByteArray> _accessSecret(const QByteArray &token) const;
    std::optional<QByteArray> _formProblem(const Parameters &oauth, bool hasToken) const;
    std::optional<QByteArray> _timestampProblem(const Parameters &oauth) const;
    bool _useNonce(const Parameters &oauth);

    const Credential _credential;
    const Clock _clock;
    const Secrets _accessSecrets;
    std::mutex _mutex;
    std::map<qint64, QSet<QByteArray>> _noncesByTimestamp;
};

} // namespace standin
