// Runs one Flickr upload.
#include "Service/FlickrRunner.h"

#include "Korvane/FlickrPost.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/AssetsLibrary/AssetLocation.h"
#include "Platform/Foundation/Dispatch.h"
#include "Service/FailureClassifier.h"
#include "Service/JobAccount.h"
#include "Service/PostCheck.h"

#include <QFile>

namespace korvane {
namespace {

void end(const std::shared_ptr<UploadRun> &run, const FlickrPost &post, const RunOutcome &outcome) {
    run->ended(FailureClassifier::verdictOnFlickrRun(outcome, post.photoSetID != 0), run->job);
}

// Of an asset that was not found the upload code says only that.
std::optional<NSError> withName(const std::optional<NSError> &error, const FlickrPost &post) {
    if (!error || error->domain() != FlickrPostErrorDomain) return error;
    const auto location = AssetLocation::ofURL(*post.assetURL);
    return NSError::errorWithDescription(
        error->domain(), error->code(), location ? QFile::decodeName(location->path) : post.assetURL->absoluteString());
}

// From the start of the upload on, the run's job is changed on the main thread alone.
void upload(const std::shared_ptr<UploadRun> &run) {
    const auto post = FlickrPost::initWithDictionary(run->record);
    post->photoID = run->job.photoID;
    if (const auto objection = PostCheck::prepare(*post, run->job))
        return end(run, *post, PostCheck::outcomeOfObjection(*objection));
    const auto account = accountOfJob(run->job, *run->accounts);
    if (!account || !account->credential()) return end(run, *post, withoutAccount(run->job));
    account->setUploadContext(run->context);
    post->checkpoint = [run, wantsPhotoSet = post->photoSetID != 0](qint64 photoID) {
        run->job.photoID = photoID;
        if (wantsPhotoSet) run->reached(run->job, true, {}); // else the outcome follows at once
    };
    post->uploadToAccount(account, [run, post](const std::optional<NSError> &error) {
        if (post->photoData) run->job.bytesTotal = post->photoData->length();
        end(run, *post, {RunOutcome::Finished, withName(error, *post), run->context->snapshot(), run->job.photoID});
        post->checkpoint = nullptr;
    });
}

} // namespace

void FlickrRunner::start(UploadRun run) {
    dispatchGlobal([shared = std::make_shared<UploadRun>(std::move(run))] { upload(shared); });
}

} // namespace korvane
