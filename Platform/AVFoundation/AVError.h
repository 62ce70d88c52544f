// Errors of reading and exporting videos.
#pragma once

#include "Platform/Foundation/NSError.h"

namespace korvane {

extern const QString AVFoundationErrorDomain;

// The description says what happened to which file and what to do.
enum AVErrorCode : qint64 {
    AVErrorExportFailed = 1,            // the program crashed, hung or was not understood: trying again may help
    AVErrorEncoderNotFound = 2,         // a program or its H.264 encoder is not installed
    AVErrorContentIsUnavailable = 3,    // no such video, it cannot be opened, or it changed meanwhile
    AVErrorFileFormatNotRecognized = 4, // no video file, or none that could be read
    AVErrorInvalidSourceMedia = 5,      // a media file without pictures, or of no length
    AVErrorFileFailedToParse = 6,       // damaged or cut short
    AVErrorDiskFull = 7,
    AVErrorFileAlreadyExists = 8,         // another export writes to the same file
    AVErrorInvalidOutputURLParameter = 9, // no output URL, none that can be written to, or no type that can be made
};

NSError avError(AVErrorCode code, const QString &text);
// name: of the video.
NSError diskFullError(const QString &name);

// NSURLErrorDomain, NSURLErrorCancelled: what a cancelled job ends with everywhere.
NSError exportCancelledError();

} // namespace korvane
