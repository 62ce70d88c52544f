// Errors of reading and exporting videos.
#include "Platform/AVFoundation/AVError.h"

namespace korvane {

const QString AVFoundationErrorDomain = QStringLiteral("AVFoundationErrorDomain");

NSError avError(AVErrorCode code, const QString &text) {
    return NSError::errorWithDescription(AVFoundationErrorDomain, code, text);
}

NSError diskFullError(const QString &name) {
    return avError(
        AVErrorDiskFull,
        QStringLiteral("There is not enough disk space to export “%1”. Free some space and try again.").arg(name));
}

NSError exportCancelledError() {
    return NSError::errorWithDescription(NSURLErrorDomain, NSURLErrorCancelled,
                                         QStringLiteral("the export was cancelled"));
}

} // namespace korvane
