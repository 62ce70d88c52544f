// What becomes of an upload after a run.
#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrResponse.h"
#include "Service/FailureClassifier.h"
#include "Tests/Support/Testing.h"

using namespace korvane;
using namespace korvane::test;

namespace {

RunOutcome withError(const QString &domain, qint64 code, const char *text, int status = 200) {
    RunOutcome outcome;
    outcome.error = text ? NSError::errorWithDescription(domain, code, QString::fromUtf8(text)) : NSError(domain, code);
    outcome.lastRequest.httpStatus = status;
    return outcome;
}

} // namespace

TEST(FailureClassifier, TellsPassingFailuresFromFinalOnesAndSaysWhatToDo) {
    const auto response = [](qint64 code, const char *text, int status = 200) {
        return withError(FlickrResponseErrorDomain, code, text, status);
    };
    const auto transport = [](qint64 code) { return withError(NSURLErrorDomain, code, "reason", 0); };
    RunOutcome gone = withError(FlickrPostErrorDomain, 3, nullptr);
    gone.asset = QStringLiteral("sea.heic");
    using enum WaitReason; // none: failed
    const std::tuple<RunOutcome, WaitReason, const char *> cases[] = {
        {transport(-1001), Network, "reason"},
        {transport(-1009), Network, "reason"},
        {transport(-1004), Network, "reason"},
        {transport(-1202), NextTry, "reason"},
        {response(-1, "<html>Bad gateway</html>", 502), NextTry, "502"},
        {response(-1, "", 500), NextTry, "500"},
        {response(-1, "slow down", 429), NextTry, "429"},
        {response(105, "Service currently unavailable"), NextTry, "unavailable"},
        {response(106, nullptr), NextTry, ""},
        {response(5, "Filetype was not recognised"), None, "JPEG"},
        {response(6, "User exceeded upload limit"), None, "limit"},
        {response(98, "Invalid auth token"), None, "Sign in"},
        {response(77, "Something new"), None, "Something new"},
        {response(-1, "oauth_problem=signature_invalid&debug_sbs=POST&oauth_token=hush", 401), None,
         "signature_invalid"},
        {response(-1, "oauth_problem=timestamp_refused", 401), None, "clock"},
        {response(-1, "oauth_problem=nonce_used", 401), NextTry, "again"},
        {response(-1, "<html>hotel wifi</html>", 200), None, "not understood"},
        {response(0, nullptr, 404), None, "not understood (HTTP status 404)"},
        {gone, None, "sea.heic is no longer in the photo library"},
    };
    for (const auto &[outcome, reason, told] : cases) {
        SCOPED_TRACE(outcome.error->description().toStdString());
        const Verdict verdict = FailureClassifier::verdictOnFlickrRun(outcome, false);
        EXPECT_EQ(verdict.state, reason == None ? UploadState::Failed : UploadState::Waiting);
        EXPECT_EQ(verdict.waitReason, reason);
        EXPECT_TRUE(says(verdict.error, told));
        EXPECT_FALSE(says(verdict.error, "hush"));
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
