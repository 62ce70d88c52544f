// Ready credentials, as a file gives them.
#include "Platform/Accounts/ACCredentialFile.h"

#include "Platform/Accounts/ACError.h"
#include "Platform/Foundation/NSJSONSerialization.h"

#include <algorithm>

namespace korvane {
namespace {

std::nullopt_t refuse(std::optional<NSError> *error, const QString &problem) {
    setError(error,
             NSError::errorWithDescription(ACErrorDomain, ACErrorCredentialInvalid,
                                           QStringLiteral("The credential file cannot be used: %1.").arg(problem)));
    return std::nullopt;
}

// What is wrong with the value of a key; empty if nothing is.
QString problemWith(const QString &key, const QVariantMap &map) {
    const QVariant value = map.value(key);
    if (!map.contains(key)) return QStringLiteral("\"%1\" is missing").arg(key);
    if (value.typeId() != QMetaType::QString) return QStringLiteral("\"%1\" is not a text").arg(key);
    const QString text = value.toString();
    if (text.trimmed().isEmpty()) return QStringLiteral("\"%1\" is empty").arg(key);
    if (std::any_of(text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Control; }))
        return QStringLiteral("\"%1\" holds control characters, such as a line break").arg(key);
    return {};
}

} // namespace

std::optional<ACCredentialFile> ACCredentialFile::credentialFileWithData(const NSData &data,
                                                                         std::optional<NSError> *error) {
    if (data.length() > mostBytes)
        return refuse(error, QStringLiteral("it is larger than %1 KB").arg(mostBytes / 1024));
    const QByteArray text = data.bytes();
    if (text.trimmed().isEmpty()) return refuse(error, QStringLiteral("it is empty"));
    QString problem;
    const auto value = NSJSONSerialization::JSONObjectWithData(text, &problem);
    if (!value) return refuse(error, problem);
    if (value->typeId() != QMetaType::QVariantMap) return refuse(error, QStringLiteral("it is not a JSON object"));
    const QVariantMap map = value->toMap();
    ACCredentialFile file;
    const std::pair<const char *, QString *> parts[] = {{"username", &file.username},
                                                        {"consumerKey", &file.credential.consumerKey},
                                                        {"consumerSecret", &file.credential.consumerSecret},
                                                        {"token", &file.credential.token},
                                                        {"tokenSecret", &file.credential.tokenSecret}};
    for (const auto &[key, part] : parts) {
        problem = problemWith(QLatin1String(key), map);
        if (!problem.isEmpty()) return refuse(error, problem);
        *part = map.value(QLatin1String(key)).toString();
    }
    return file;
}

} // namespace korvane
