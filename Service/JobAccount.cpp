// The account that an upload is sent from.
#include "Service/JobAccount.h"

#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Service/JobError.h"

#include <algorithm>

namespace korvane {

const QString &accountTypeOfService(const QString &service) {
    return service == flickrServiceID ? ACAccountTypeIdentifierFlickr : ACAccountTypeIdentifierVimeo;
}

std::shared_ptr<ACAccount> accountOfJob(const UploadJob &job, const ACAccountStore &accounts) {
    if (const auto account = accounts.accountWithIdentifier(job.accountID)) return account;
    const auto type = accounts.accountTypeWithAccountTypeIdentifier(accountTypeOfService(job.service));
    const auto all = accounts.accountsWithAccountType(type);
    const auto found = std::ranges::find(all, job.accountName, [](const auto &account) { return account->username(); });
    return found == all.end() ? nullptr : *found;
}

RunOutcome withoutAccount(const UploadJob &job, const std::optional<NSError> &reason) {
    const QString text = localizedText("There is no usable sign-in for the %1 account of %2, from which this was "
                                       "shared.",
                                       nameOfService(job.service), job.accountName);
    return {RunOutcome::NoAccount,
            jobError(JobErrorNoAccount, reason ? text + u' ' + reason->localizedDescription() : text)};
}

} // namespace korvane
