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

QString nameOfAsset(const FlickrPost &post) {
    const auto location = post.assetURL ? AssetLocation::ofURL(*post.assetURL) : std::nullopt;
    return location ? QFile::decodeName(location->path) : post.assetURL ? post.assetURL->absoluteString() : QString();
}

// From the start of the upload on, the run's job is changed on the main thread alone.
void upload(const std::shared_ptr<UploadRun> &run) {
    const auto post = FlickrPost::initWithDictionary(run->record);
    post->photoID = run->job.photoID;
    if (const auto objection = PostCheck::prepare(*post, run->job))
        return end(run, *post, PostCheck::outcomeOfObjection(*objection));
    const auto account = accountOfJob(run->job, *run->accounts);
    std::optional<NSError> reason;
    if (!account || !account->credential(&reason)) return end(run, *post, withoutAccount(run->job, reason));
    account->setUploadContext(run->context);
    post->checkpoint = [run, wantsPhotoSet = post->photoSetID != 0](qint64 photoID) {
        run->job.photoID = photoID;
        if (wantsPhotoSet) run->reached(run->job, true, {}); // else the outcome follows at once
    };
    post->uploadToAccount(account, [run, post](const std::optional<NSError> &error) {
        if (post->photoData) run->job.bytesTotal = post->photoData->length();
        end(run, *post, {RunOutcome::Finished, error, run->context->snapshot(), run->job.photoID, nameOfAsset(*post)});
        post->checkpoint = nullptr;
    });
}

} // namespace

void FlickrRunner::start(UploadRun run) {
    dispatchGlobal([shared = std::make_shared<UploadRun>(std::move(run))] { upload(shared); });
}

} // namespace korvane
