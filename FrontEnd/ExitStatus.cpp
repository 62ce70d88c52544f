// What the programs' exit status says.
#include "FrontEnd/ExitStatus.h"

#include "Platform/Social/RemoteServiceError.h"

namespace korvane {

ExitStatus exitStatusOf(const NSError &error) {
    if (error.domain() != RemoteServiceErrorDomain) return ExitUploadFailed;
    switch (error.code()) {
    case RemoteServiceErrorUnreachable:
    case RemoteServiceErrorOtherSettings:
    case RemoteServiceErrorNotAvailable:
        return ExitUnreachable;
    case RemoteServiceErrorUnusableRecord:
    case RemoteServiceErrorNothingToShare:
        return ExitUsage;
    default:
        return ExitUploadFailed;
    }
}

} // namespace korvane
