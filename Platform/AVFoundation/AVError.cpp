// Errors of reading and exporting videos.
#include "Platform/AVFoundation/AVError.h"

namespace korvane {

const QString AVFoundationErrorDomain = QStringLiteral("AVFoundationErrorDomain");

NSError exportCancelledError() {
    return NSError::errorWithDescription(NSURLErrorDomain, NSURLErrorCancelled,
                                         QStringLiteral("the export was cancelled"));
}

} // namespace korvane
