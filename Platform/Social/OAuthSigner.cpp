// OAuth 1.0a signatures (RFC 5849) with HMAC-SHA1.
#include "Platform/Social/OAuthSigner.h"

#include "Platform/Accounts/ACAccountCredential.h"

#include <QMessageAuthenticationCode>
#include <QUrl>

#include <algorithm>
#include <vector>

namespace korvane {
namespace {

// RFC 5849 section 3.6; QUrl keeps just the unreserved characters and writes upper-case digits.
QByteArray encoded(const QString &text) {
    return QUrl::toPercentEncoding(text);
}

QString decoded(QString text) {
    return QUrl::fromPercentEncoding(text.replace(u'+', u' ').toUtf8());
}

QByteArray normalized(const OAuthParameters &parameters) {
    std::vector<std::pair<QByteArray, QByteArray>> pairs;
    for (const auto &[name, value] : parameters)
        pairs.emplace_back(encoded(name), encoded(value));
    std::sort(pairs.begin(), pairs.end());
    QByteArray text;
    for (const auto &[name, value] : pairs)
        text += (text.isEmpty() ? "" : "&") + name + '=' + value;
    return text;
}

QString baseURI(const NSURL &url) {
    const QString scheme = url.scheme().toLower();
    const QString rest = url.withoutQuery().absoluteString().mid(scheme.size() + 3);
    const qsizetype slash = rest.indexOf(u'/');
    QString authority = rest.left(slash).toLower(); // as in the "Host" header, an IPv6 address in its brackets
    const QString standardPort = scheme == QLatin1String("https") ? QStringLiteral(":443") : QStringLiteral(":80");
    if (authority.endsWith(standardPort)) authority.chop(standardPort.size());
    return scheme + QStringLiteral("://") + authority + (slash < 0 ? QStringLiteral("/") : rest.mid(slash));
}

} // namespace

OAuthParameters OAuthSigner::parametersOfQuery(const QString &query) {
    OAuthParameters parameters;
    const QStringList pairs = query.split(u'&', Qt::SkipEmptyParts);
    for (const QString &pair : pairs) {
        const qsizetype equals = pair.indexOf(u'=');
        parameters.append({decoded(pair.left(equals)), equals < 0 ? QString() : decoded(pair.mid(equals + 1))});
    }
    return parameters;
}

QByteArray OAuthSigner::signatureBaseString(const QByteArray &method, const NSURL &url,
                                            const OAuthParameters &parameters) {
    return method.toUpper() + '&' + encoded(baseURI(url)) + '&' + encoded(QString::fromLatin1(normalized(parameters)));
}

QByteArray OAuthSigner::signature(const QByteArray &baseString, const ACAccountCredential &credential) {
    const QByteArray key = encoded(credential.consumerSecret) + '&' + encoded(credential.tokenSecret);
    return QMessageAuthenticationCode::hash(baseString, key, QCryptographicHash::Sha1).toBase64();
}

QByteArray OAuthSigner::authorizationHeader(const QByteArray &method, const NSURL &url,
                                            const OAuthParameters &parameters, const ACAccountCredential &credential,
                                            qint64 timestamp, const QString &nonce, const OAuthParameters &protocol) {
    OAuthParameters oauth{{QStringLiteral("oauth_consumer_key"), credential.consumerKey},
                          {QStringLiteral("oauth_nonce"), nonce},
                          {QStringLiteral("oauth_signature_method"), QStringLiteral("HMAC-SHA1")},
                          {QStringLiteral("oauth_timestamp"), QString::number(timestamp)},
                          {QStringLiteral("oauth_version"), QStringLiteral("1.0")}};
    if (!credential.token.isEmpty()) oauth.append({QStringLiteral("oauth_token"), credential.token});
    oauth += protocol;
    const QByteArray base = signatureBaseString(method, url, parameters + oauth);
    oauth.append({QStringLiteral("oauth_signature"), QString::fromLatin1(signature(base, credential))});

    QByteArray header = "OAuth ";
    for (const auto &[name, value] : oauth)
        header += (header.size() > 6 ? ", " : "") + name.toLatin1() + "=\"" + encoded(value) + '"';
    return header;
}

} // namespace korvane
