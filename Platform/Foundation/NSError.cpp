// An error: a domain, a code within it, and optional details.
#include "Platform/Foundation/NSError.h"

#include "Platform/Foundation/FileError.h"
#include "Platform/Foundation/LocalizedText.h"

#include <cstring>

namespace korvane {

const QString NSLocalizedDescriptionKey = QStringLiteral("NSLocalizedDescription");
const QString NSURLErrorDomain = QStringLiteral("NSURLErrorDomain");
const QString NSPOSIXErrorDomain = QStringLiteral("NSPOSIXErrorDomain");
const QString NSCocoaErrorDomain = QStringLiteral("NSCocoaErrorDomain");

NSError NSError::errorWithDescription(const QString &domain, qint64 code, const QString &description) {
    return NSError(domain, code, {{NSLocalizedDescriptionKey, description}});
}

NSError NSError::errorWithErrno(int code, const QString &what) {
    char buffer[256];
    const QString reason = QString::fromLocal8Bit(::strerror_r(code, buffer, sizeof buffer));
    return FileError::make(NSPOSIXErrorDomain, code, what, reason);
}

QString NSError::localizedDescription() const {
    QString text = _userInfo.value(NSLocalizedDescriptionKey).toString();
    if (!text.isEmpty()) return text;
    return localizedText("The operation could not be completed (%1, code %2).", _domain, QString::number(_code));
}

QString NSError::description() const {
    const QString head = QStringLiteral("Error Domain=%1 Code=%2").arg(_domain).arg(_code);
    const QString text = _userInfo.value(NSLocalizedDescriptionKey).toString();
    return text.isEmpty() ? head : QStringLiteral("%1 \"%2\"").arg(head, text);
}

} // namespace korvane
