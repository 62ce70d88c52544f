// Query-parameter encoding.
#pragma once

#include <QString>
#include <QVariantMap>

namespace korvane {

// The text percent-escaped for use as a query key or value (RFC 3986): its UTF-8 bytes, with all but ASCII letters,
// digits and "-._~" as "%" and two upper-case digits. A space becomes %20, a "%" becomes %25.
QString urlParameterEscapedString(const QString &text);

// The query without a leading "?": keys in the order of their character codes, keys and values escaped.
QString EncodedStringForParameterDictionary(const QVariantMap &parameters);

} // namespace korvane
