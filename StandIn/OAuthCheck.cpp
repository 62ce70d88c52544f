#include "StandIn/OAuthCheck.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QMessageAuthenticationCode>

#include <algorithm>
#include <cstdlib>

namespace standin {

namespace {

qsizetype skipSpaces(const QByteArray &text, qsizetype at) {
    while (at < text.size() && (text.at(at) == ' ' || text.at(at) == '\t'))
        ++at;
    return at;
}

// RFC 5849 section 3.4.1.2: lower case, no default port, no query.
QByteArray baseStringUri(const SignedRequest &request) {
    QByteArray host = request.host.trimmed().toLower();
    if (host.endsWith(":80")) host.chop(3);
    return "http://" + host + pathOf(request.target);
}

} // namespace

OAuthCheck::OAuthCheck(Credential credential, Clock clock, Secrets accessSecrets)
    : _credential(std::move(credential)),
      _clock(clock ? std::move(clock) : Clock([] { return QDateTime::currentSecsSinceEpoch(); })),
      _accessSecrets(std::move(accessSecrets)) {}

std::optional<QByteArray> OAuthCheck::problem(const SignedRequest &request) {
    return problem(request, [this](const QByteArray &token) { return _accessSecret(token); });
}

std::optional<QByteArray> OAuthCheck::_accessSecret(const QByteArray &token) const {
    if (token == _credential.token) return _credential.tokenSecret;
    return _accessSecrets ? _accessSecrets(token) : std::nullopt;
}

std::optional<QByteArray> OAuthCheck::problem(const SignedRequest &request, const Secrets &secrets) {
    const bool hasToken = bool(secrets);
    const auto oauth = parametersOfHeader(request.authorization);
    if (!oauth)
        return request.authorization.isEmpty() ? _formProblem({}, hasToken)
                                               : QByteArray("oauth_problem=parameter_rejected");
    if (const auto problem = _formProblem(*oauth, hasToken)) return problem;
    const auto tokenSecret = hasToken ? secrets(valueOf(*oauth, "oauth_token")) : QByteArray();
    if (!tokenSecret) return QByteArray("oauth_problem=token_rejected");
    if (const auto problem = _timestampProblem(*oauth)) return problem;

    const QByteArray base = baseString(request, *oauth);
    if (valueOf(*oauth, "oauth_signature") != signature(base, _credential.consumerSecret, *tokenSecret))
        return "oauth_problem=signature_invalid&debug_sbs=" + percentEncoded(base);
    if (!_useNonce(*oauth)) return QByteArray("oauth_problem=nonce_used");
    return std::nullopt;
}

std::optional<Parameters> OAuthCheck::parametersOfHeader(const QByteArray &authorization) {
    if (authorization.left(6).toLower() != "oauth ") return std::nullopt;
    Parameters parameters;
    qsizetype at = 6;
    while (true) {
        at = skipSpaces(authorization, at);
        const qsizetype equals = authorization.indexOf('=', at);
        if (equals < 0 || equals + 1 >= authorization.size() || authorization.at(equals + 1) != '"')
            return std::nullopt;
        const qsizetype quote = authorization.indexOf('"', equals + 2);
        if (quote < 0) return std::nullopt;
        const QByteArray name = QByteArray::fromPercentEncoding(authorization.mid(at, equals - at).trimmed());
        const QByteArray value = authorization.mid(equals + 2, quote - equals - 2);
        if (name.toLower() != "realm") parameters.append({name, QByteArray::fromPercentEncoding(value)});
        at = skipSpaces(authorization, quote + 1);
        if (at == authorization.size()) return parameters;
        if (authorization.at(at++) != ',') return std::nullopt;
    }
}

QByteArray OAuthCheck::baseString(const SignedRequest &request, const Parameters &oauth) {
    Parameters encoded;
    for (const Parameters &source : {oauth, decodedForm(queryOf(request.target)), request.body}) {
        for (const auto &[name, value] : source) {
            if (name != "oauth_signature") encoded.append({percentEncoded(name), percentEncoded(value)});
        }
    }
    std::sort(encoded.begin(), encoded.end());
    QByteArrayList pairs;
    for (const auto &[name, value] : std::as_const(encoded))
        pairs.append(name + '=' + value);
    return request.method.toUpper() + '&' + percentEncoded(baseStringUri(request)) + '&' +
           percentEncoded(pairs.join('&'));
}

QByteArray OAuthCheck::signature(const QByteArray &baseString, const QByteArray &consumerSecret,
                                 const QByteArray &tokenSecret) {
    const QByteArray key = percentEncoded(consumerSecret) + '&' + percentEncoded(tokenSecret);
    return QMessageAuthenticationCode::hash(baseString, key, QCryptographicHash::Sha1).toBase64();
}

std::optional<QByteArray> OAuthCheck::_formProblem(const Parameters &oauth, bool hasToken) const {
    QByteArrayList absent;
    for (const char *name : {"oauth_consumer_key", "oauth_token", "oauth_signature_method", "oauth_signature",
                             "oauth_timestamp", "oauth_nonce"}) {
        const auto count = std::count_if(oauth.begin(), oauth.end(), [&](const auto &p) { return p.first == name; });
        const bool isUnwanted = !hasToken && qstrcmp(name, "oauth_token") == 0;
        if (count > (isUnwanted ? 0 : 1))
            return "oauth_problem=parameter_rejected&oauth_parameters_rejected=" + QByteArray(name);
        if (!isUnwanted && valueOf(oauth, name).isEmpty()) absent.append(name);
    }
    if (!absent.isEmpty())
        return "oauth_problem=parameter_absent&oauth_parameters_absent=" + percentEncoded(absent.join('&'));
    const bool versioned =
        std::any_of(oauth.begin(), oauth.end(), [](const auto &p) { return p.first == "oauth_version"; });
    if (versioned && valueOf(oauth, "oauth_version") != "1.0")
        return QByteArray("oauth_problem=version_rejected&oauth_acceptable_versions=1.0-1.0");
    if (valueOf(oauth, "oauth_signature_method") != "HMAC-SHA1")
        return QByteArray("oauth_problem=signature_method_rejected");
    if (valueOf(oauth, "oauth_consumer_key") != _credential.consumerKey)
        return QByteArray("oauth_problem=consumer_key_unknown");
    return std::nullopt;
}

std::optional<QByteArray> OAuthCheck::_timestampProblem(const Parameters &oauth) const {
    bool isNumber = false;
    const qint64 timestamp = valueOf(oauth, "oauth_timestamp").toLongLong(&isNumber);
    const qint64 now = _clock();
    const qint64 oldest = now - TimestampWindow;
    const qint64 newest = now + TimestampWindow;
    if (isNumber && timestamp >= oldest && timestamp <= newest) return std::nullopt;
    return "oauth_problem=timestamp_refused&oauth_acceptable_timestamps=" + QByteArray::number(oldest) + '-' +
           QByteArray::number(newest);
}

bool OAuthCheck::_useNonce(const Parameters &oauth) {
    const std::lock_guard lock(_mutex);
    _noncesByTimestamp.erase(_noncesByTimestamp.begin(), _noncesByTimestamp.lower_bound(_clock() - TimestampWindow));
    QSet<QByteArray> &used = _noncesByTimestamp[valueOf(oauth, "oauth_timestamp").toLongLong()];
    const QByteArray nonce = valueOf(oauth, "oauth_nonce");
    if (used.contains(nonce)) return false;
    used.insert(nonce);
    return true;
}

} // namespace standin
