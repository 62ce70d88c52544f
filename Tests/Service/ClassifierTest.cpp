// What becomes of an upload after a run.
#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrResponse.h"
#include "Service/FailureClassifier.h"
#include "Service/RetryPolicy.h"

#include <gtest/gtest.h>

using namespace korvane;

namespace {

RunOutcome withError(const QString &domain, qint64 code, const char *text, int status = 200) {
    RunOutcome outcome;
    outcome.error = text ? NSError::errorWithDescription(domain, code, QString::fromUtf8(text)) : NSError(domain, code);
    outcome.lastRequest.httpStatus = status;
    return outcome;
}

} // namespace

TEST(FailureClassifier, TellsPassingFailuresFromFinalOnesAndSaysWhatToDo) {
    struct Case {
        RunOutcome outcome;
        UploadState state;
        WaitReason reason;
        const char *says; // part of the text for people
    };
    const auto response = [](qint64 code, const char *text, int status = 200) {
        return withError(FlickrResponseErrorDomain, code, text, status);
    };
    const auto transport = [](qint64 code) { return withError(NSURLErrorDomain, code, "reason", 0); };
    const Case cases[] = {
        {{}, UploadState::Done, WaitReason::None, ""},
        {transport(-1001), UploadState::Waiting, WaitReason::Network, "reason"},
        {transport(-1009), UploadState::Waiting, WaitReason::Network, "reason"},
        {transport(-1004), UploadState::Waiting, WaitReason::Network, "reason"},
        {transport(-1202), UploadState::Waiting, WaitReason::NextTry, "reason"},
        {response(-1, "<html>Bad gateway</html>", 502), UploadState::Waiting, WaitReason::NextTry, "502"},
        {response(-1, "", 500), UploadState::Waiting, WaitReason::NextTry, "500"},
        {response(-1, "slow down", 429), UploadState::Waiting, WaitReason::NextTry, "429"},
        {response(105, "Service currently unavailable"), UploadState::Waiting, WaitReason::NextTry, "unavailable"},
        {response(106, nullptr), UploadState::Waiting, WaitReason::NextTry, ""},
        {response(5, "Filetype was not recognised"), UploadState::Failed, WaitReason::None, "JPEG"},
        {response(6, "User exceeded upload limit"), UploadState::Failed, WaitReason::None, "limit"},
        {response(98, "Invalid auth token"), UploadState::Failed, WaitReason::None, "Sign in"},
        {response(77, "Something new"), UploadState::Failed, WaitReason::None, "Something new"},
        {response(-1, "oauth_problem=signature_invalid&debug_sbs=POST&oauth_token=hush", 401), UploadState::Failed,
         WaitReason::None, "signature_invalid"},
        {response(-1, "oauth_problem=timestamp_refused", 401), UploadState::Failed, WaitReason::None, "clock"},
        {response(-1, "oauth_problem=nonce_used", 401), UploadState::Waiting, WaitReason::NextTry, "again"},
        {response(-1, "<html>hotel wifi</html>", 200), UploadState::Failed, WaitReason::None, "not understood"},
        {response(0, nullptr, 404), UploadState::Failed, WaitReason::None, "not understood (HTTP status 404)"},
        {withError(FlickrPostErrorDomain, 3, nullptr), UploadState::Failed, WaitReason::None, "library"},
    };
    for (const Case &test : cases) {
        SCOPED_TRACE(test.outcome.error ? test.outcome.error->description().toStdString() : "no error");
        const Verdict verdict = FailureClassifier::verdictOnFlickrRun(test.outcome, false);
        EXPECT_EQ(verdict.state, test.state);
        EXPECT_EQ(verdict.waitReason, test.reason);
        if (!verdict.error) continue;
        const QString text = verdict.error->localizedDescription();
        EXPECT_TRUE(text.contains(QLatin1String(test.says))) << text.toStdString();
        EXPECT_FALSE(text.contains(QStringLiteral("hush"))) << text.toStdString();
    }
}

TEST(FailureClassifier, AsksAgainForAnAlbumThatWasNotReached) {
    RunOutcome outcome;
    outcome.photoID = 5;
    outcome.lastRequest.httpStatus = 200;
    EXPECT_EQ(FailureClassifier::verdictOnFlickrRun(outcome, true).state, UploadState::Done);
    outcome.lastRequest.httpStatus = 503;
    EXPECT_EQ(FailureClassifier::verdictOnFlickrRun(outcome, true).state, UploadState::Waiting);
    EXPECT_EQ(FailureClassifier::verdictOnFlickrRun(outcome, false).state, UploadState::Done);
    outcome.lastRequest.transportError = NSError(NSURLErrorDomain, NSURLErrorTimedOut);
    EXPECT_EQ(FailureClassifier::verdictOnFlickrRun(outcome, true).waitReason, WaitReason::Network);
}

TEST(RetryPolicy, GrowsItsDelaysAndKeepsTheLast) {
    const RetryPolicy policy;
    qint64 before = 0;
    for (qint64 failures = 1; failures <= qint64(policy.delays.size()); ++failures) {
        EXPECT_GT(policy.delayAfter(failures), before);
        before = policy.delayAfter(failures);
    }
    EXPECT_EQ(policy.delayAfter(1000), before);
}
