// Errors of what has a name, such as a file, with the reason apart from the name.
#include "Platform/Foundation/FileError.h"

namespace korvane {

const QString NSLocalizedFailureReasonErrorKey = QStringLiteral("NSLocalizedFailureReason");

NSError FileError::make(const QString &domain, qint64 code, const QString &name, const QString &reason) {
    return NSError(domain, code,
                   {{NSLocalizedDescriptionKey, QStringLiteral("%1: %2").arg(name, reason)},
                    {NSLocalizedFailureReasonErrorKey, reason}});
}

QString FileError::reasonOf(const NSError &error) {
    const QString reason = error.userInfo().value(NSLocalizedFailureReasonErrorKey).toString();
    return reason.isEmpty() ? error.localizedDescription() : reason;
}

} // namespace korvane
