// Runs one Flickr upload.
#pragma once

#include "Service/RunOutcome.h"
#include "Service/UploadJob.h"

#include <QVariantMap>

#include <functional>
#include <memory>

namespace korvane {

class ACAccountStore;

struct FlickrRun {
    UploadJob job;
    QVariantMap record;
    std::shared_ptr<UploadContext> context;
    std::shared_ptr<ACAccountStore> accounts;
    std::function<void(qint64 photoID)> answered;         // as soon as Flickr has given the photo an id; main thread
    std::function<void(const RunOutcome &outcome)> ended; // exactly once; main thread
};

namespace FlickrRunner {

// Checks the post, then uploads it with the device kept awake. Returns at once. Thread: any; disk and key ring are read
// on a pool thread.
void start(FlickrRun run);

} // namespace FlickrRunner

} // namespace korvane
