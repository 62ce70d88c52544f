// Runs one Flickr upload.
#include "Service/FlickrRunner.h"

#include "Korvane/FlickrPost.h"
#include "Korvane/KRRemoteSession.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Foundation/Dispatch.h"
#include "Service/PostCheck.h"

namespace korvane {
namespace {

void end(const std::shared_ptr<FlickrRun> &run, const RunOutcome &outcome) {
    dispatchMain([run, outcome] {
        KRRemoteSession::decrementPowerAssertion();
        run->ended(outcome);
    });
}

RunOutcome withoutAccount() {
    const QString text = QStringLiteral("There is no usable sign-in for the Flickr account. Add it with: korvane accounts add flickr");
    return {RunOutcome::NoAccount, NSError::errorWithDescription(PostCheck::ErrorDomain, 10, text), {}, 0, 0};
}

void upload(const std::shared_ptr<FlickrRun> &run) {
    const auto post = FlickrPost::initWithDictionary(run->record);
    post->photoID = run->job.photoID;
    post->checkpoint = run->answered;
    if (const auto objection = PostCheck::objection(*post, run->job))
        return end(run, {RunOutcome::Unusable, objection, {}, 0, 0});
    const auto account = ACAccountStore().accountWithIdentifier(run->job.accountID);
    if (!account || !account->credential()) return end(run, withoutAccount());
    account->setUploadContext(run->context);
    post->uploadToAccount(account, [run, post](const std::optional<NSError> &error) {
        const qint64 bytes = post->photoData ? post->photoData->length() : 0;
        end(run, {RunOutcome::Finished, error, run->context->snapshot(), post->photoID, bytes});
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
