// What the programs' exit status says.
#include "FrontEnd/ExitStatus.h"

#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/SLAttachment.h"

namespace korvane {

ExitStatus exitStatusOf(const NSError &error) {
    if (error.domain() == SLAttachmentErrorDomain) return ExitUsage;
    if (error.domain() != RemoteServiceErrorDomain) return ExitUploadFailed;
    switch (error.code()) {
    case RemoteServiceErrorUnreachable:
    case RemoteServiceErrorOtherSettings:
    case RemoteServiceErrorNotAvailable:
    case RemoteServiceErrorUnknownEnd:
        return ExitUnreachable;
    case RemoteServiceErrorUnusableRecord:
    case RemoteServiceErrorNothingToShare:
        return ExitUsage;
    default:
        return ExitUploadFailed;
    }
}

} // namespace korvane
