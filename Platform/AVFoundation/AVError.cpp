// Errors of reading and exporting videos.
#include "Platform/AVFoundation/AVError.h"

#include "Platform/Foundation/LocalizedText.h"

namespace korvane {

const QString AVFoundationErrorDomain = QStringLiteral("AVFoundationErrorDomain");

NSError avError(AVErrorCode code, const QString &text) {
    return NSError::errorWithDescription(AVFoundationErrorDomain, code, text);
}

NSError diskFullError(const QString &name) {
    return avError(
        AVErrorDiskFull,
        localizedText("There is not enough disk space to export “%1”. Free some space and try again.", name));
}

NSError exportCancelledError() {
    return NSError::errorWithDescription(NSURLErrorDomain, NSURLErrorCancelled,
                                         localizedText("the export was cancelled"));
}

} // namespace korvane
