// Errors of the hand-over between programs.
#include "Platform/Social/RemoteServiceError.h"

namespace korvane {

const QString RemoteServiceErrorDomain = QStringLiteral("RemoteServiceErrorDomain");

QVariantMap dictionaryOfError(const NSError &error) {
    QVariantMap dictionary{{QStringLiteral("domain"), error.domain()}, {QStringLiteral("code"), error.code()}};
    const QVariant description = error.userInfo().value(NSLocalizedDescriptionKey);
    if (description.isValid()) dictionary.insert(QStringLiteral("description"), description.toString());
    return dictionary;
}

NSError errorOfDictionary(const QVariantMap &dictionary) {
    const QString domain = dictionary.value(QStringLiteral("domain")).toString();
    const qint64 code = dictionary.value(QStringLiteral("code")).toLongLong();
    const QVariant description = dictionary.value(QStringLiteral("description"));
    return description.isValid() ? NSError::errorWithDescription(domain, code, description.toString())
                                 : NSError(domain, code);
}

} // namespace korvane
