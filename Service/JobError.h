// Errors of an upload that are found beside the upload code.
#pragma once

#include "Platform/Foundation/NSError.h"

namespace korvane {

extern const QString JobErrorDomain;

// Kept with uploads: numbers are never used anew.
enum JobErrorCode : qint64 {
    JobErrorNothingToUpload = 1,
    JobErrorFileUnreadable = 2,
    JobErrorFileEmpty = 3,
    JobErrorFileChanged = 4,
    JobErrorDataLost = 5,
    JobErrorNoPicture = 6,
    JobErrorNoRoom = 7,
    JobErrorNoTitle = 8,
    JobErrorNoAccount = 10,
    JobErrorUnusableTicket = 20,
    JobErrorStuck = 21,          // an endpoint that takes chunks and stores nothing
    JobErrorSenselessCount = 22, // one that claims more than the video has
};

inline NSError jobError(JobErrorCode code, const QString &text) {
    return NSError::errorWithDescription(JobErrorDomain, code, text);
}

} // namespace korvane
