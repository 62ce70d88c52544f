// Errors of an upload that are found beside the upload code.
#include "Service/JobError.h"

namespace korvane {

const QString JobErrorDomain = QStringLiteral("KorvanePostCheckErrorDomain");

} // namespace korvane
