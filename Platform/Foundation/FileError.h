// Errors of what has a name, such as a file, with the reason apart from the name.
#pragma once

#include "Platform/Foundation/NSError.h"

namespace korvane {

extern const QString NSLocalizedFailureReasonErrorKey;

namespace FileError {

// Its description is the name and the reason.
NSError make(const QString &domain, qint64 code, const QString &name, const QString &reason);
// The reason alone, for where the name stands beside it already; the whole description of an error of another making.
// Those of errno values have it too.
QString reasonOf(const NSError &error);

} // namespace FileError

} // namespace korvane
