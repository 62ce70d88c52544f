// Runs one Flickr upload.
#include "Service/FlickrRunner.h"

#include "Korvane/FlickrPost.h"
#include "Korvane/KRRemoteSession.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Foundation/Dispatch.h"
#include "Service/PostCheck.h"

#include <algorithm>

namespace korvane {
namespace {

void end(const std::shared_ptr<FlickrRun> &run, const RunOutcome &outcome) {
    dispatchMain([run, outcome] {
        KRRemoteSession::decrementPowerAssertion();
        run->ended(outcome);
    });
}

RunOutcome withoutAccount(const QString &name) {
    const QString text =
        QStringLiteral("There is no usable sign-in for the Flickr account of %1, from which this was shared. "
                       "Add it with: korvane accounts add flickr")
            .arg(name);
    return {RunOutcome::NoAccount, NSError::errorWithDescription(PostCheck::ErrorDomain, 10, text), {}, 0, 0};
}

// The account that was in use at the take-over, also after it was removed and added again.
std::shared_ptr<ACAccount> pinnedAccount(const ACAccountStore &accounts, const UploadJob &job) {
    if (const auto account = accounts.accountWithIdentifier(job.accountID)) return account;
    const auto all =
        accounts.accountsWithAccountType(accounts.accountTypeWithAccountTypeIdentifier(ACAccountTypeIdentifierFlickr));
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const auto &account) { return account->username() == job.accountName; });
    return found == all.end() ? nullptr : *found;
}

void upload(const std::shared_ptr<FlickrRun> &run) {
    const auto post = FlickrPost::initWithDictionary(run->record);
    post->photoID = run->job.photoID;
    if (const auto objection = PostCheck::prepare(*post, run->job))
        return end(run, {objection->mayPass ? RunOutcome::Hindered : RunOutcome::Unusable, objection->error, {}, 0, 0});
    const auto account = pinnedAccount(*run->accounts, run->job);
    if (!account || !account->credential()) return end(run, withoutAccount(run->job.accountName));
    account->setUploadContext(run->context);
    const auto photoID = std::make_shared<qint64>(run->job.photoID); // main thread, as checkpoint and completion
    post->checkpoint = [run, photoID](qint64 answered) {
        *photoID = answered;
        run->answered(answered);
    };
    post->uploadToAccount(account, [run, post, photoID](const std::optional<NSError> &error) {
        const qint64 bytes = post->photoData ? post->photoData->length() : 0;
        end(run, {RunOutcome::Finished, error, run->context->snapshot(), *photoID, bytes});
        post->checkpoint = nullptr;
    });
}

} // namespace

void FlickrRunner::start(FlickrRun run) {
    dispatchMain([shared = std::make_shared<FlickrRun>(std::move(run))] {
        KRRemoteSession::incrementPowerAssertion();
        dispatchGlobal([shared] { upload(shared); });
    });
}

} // namespace korvane
