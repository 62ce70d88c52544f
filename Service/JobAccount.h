// The account that an upload is sent from.
#pragma once

#include "Service/RunOutcome.h"
#include "Service/UploadJob.h"

#include <memory>

namespace korvane {

class ACAccount;
class ACAccountStore;

// Of "flickr" or "vimeo".
const QString &accountTypeOfService(const QString &service);

// The account that was in use at the take-over, also after it was removed and added again; null if it is gone. An
// object of its own, which nobody else hangs an upload context on.
std::shared_ptr<ACAccount> accountOfJob(const UploadJob &job, const ACAccountStore &accounts);

// How a run ends without that account or, with the reason, without its credential.
RunOutcome withoutAccount(const UploadJob &job, const std::optional<NSError> &reason);

} // namespace korvane
