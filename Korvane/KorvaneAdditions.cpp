// Query-parameter encoding.
#include "Korvane/KorvaneAdditions.h"

#include "Platform/Foundation/NSNumber.h"

#include <QStringList>
#include <QUrl>

namespace korvane {

QString urlParameterEscapedString(const QString &text) {
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QString EncodedStringForParameterDictionary(const QVariantMap &parameters) {
    QStringList pairs; // QVariantMap iterates in the order that is wanted
    for (auto it = parameters.cbegin(); it != parameters.cend(); ++it)
        pairs.append(urlParameterEscapedString(it.key()) + u'=' + urlParameterEscapedString(textValue(it.value())));
    return pairs.join(u'&');
}

} // namespace korvane
