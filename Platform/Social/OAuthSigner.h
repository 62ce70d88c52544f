// OAuth 1.0a signatures (RFC 5849) with HMAC-SHA1.
#pragma once

#include "Platform/Foundation/NSURL.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <utility>

namespace korvane {

struct ACAccountCredential;

// Decoded names and values in no particular order; names may repeat.
using OAuthParameters = QList<std::pair<QString, QString>>;

namespace OAuthSigner {

// The pairs of a query or form text, decoded ("+" is a space there).
OAuthParameters parametersOfQuery(const QString &query);

// RFC 5849 section 3.4.1: method, URL up to its path, and all parameters, those of the URL's own query not among them
// unless the caller put them there.
QByteArray signatureBaseString(const QByteArray &method, const NSURL &url, const OAuthParameters &parameters);

// RFC 5849 section 3.4.2, in Base64.
QByteArray signature(const QByteArray &baseString, const ACAccountCredential &credential);

// The value of the "Authorization" header. The timestamp is in seconds since 1970; no nonce may come twice with it. A
// credential without token signs for the application alone. protocol: further "oauth_" parameters, such as the
// call-back of a sign-in; they go into the header and are not among the parameters.
QByteArray authorizationHeader(const QByteArray &method, const NSURL &url, const OAuthParameters &parameters,
                               const ACAccountCredential &credential, qint64 timestamp, const QString &nonce,
                               const OAuthParameters &protocol = {});

} // namespace OAuthSigner

} // namespace korvane
