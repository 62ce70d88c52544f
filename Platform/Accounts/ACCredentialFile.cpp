// Ready credentials, as a file gives them.
#include "Platform/Accounts/ACCredentialFile.h"

#include "Platform/Accounts/ACError.h"
#include "Platform/Accounts/PlainLine.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSJSONSerialization.h"

namespace korvane {
namespace {

std::nullopt_t refuse(std::optional<NSError> *error, const QString &problem) {
    setError(error, NSError::errorWithDescription(ACErrorDomain, ACErrorCredentialInvalid,
                                                  localizedText("The credential file cannot be used: %1.", problem)));
    return std::nullopt;
}

// What is wrong with the value of a key; empty if nothing is.
QString problemWith(const QString &key, const QVariantMap &map) {
    const QVariant value = map.value(key);
    if (!map.contains(key)) return localizedText("\"%1\" is missing", key);
    if (value.typeId() != QMetaType::QString) return localizedText("\"%1\" is not a text", key);
    const QString text = value.toString();
    if (text.trimmed().isEmpty()) return localizedText("\"%1\" is empty", key);
    if (!isPlainLine(text)) return localizedText("\"%1\" holds control characters, such as a line break", key);
    return {};
}

} // namespace

std::optional<ACCredentialFile> ACCredentialFile::credentialFileWithData(const NSData &data,
                                                                         std::optional<NSError> *error) {
    if (data.length() > mostBytes)
        return refuse(error, localizedText("it is larger than %1 KB", QString::number(mostBytes / 1024)));
    const QByteArray text = data.bytes();
    if (text.trimmed().isEmpty()) return refuse(error, localizedText("it is empty"));
    QString problem;
    const auto value = NSJSONSerialization::JSONObjectWithData(text, &problem);
    if (!value) return refuse(error, problem);
    if (value->typeId() != QMetaType::QVariantMap) return refuse(error, localizedText("it is not a JSON object"));
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
