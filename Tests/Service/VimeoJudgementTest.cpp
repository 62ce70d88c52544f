// What is made of Vimeo's answers: what becomes of an upload, where tickets may point, when a video is stuck.
#include "Korvane/VimeoPost.h"
#include "Platform/AVFoundation/AVError.h"
#include "Service/FailureClassifier.h"
#include "Service/TicketCheck.h"
#include "Service/VerifyWatch.h"
#include "Tests/Support/Testing.h"

using namespace korvane;
using namespace korvane::test;

namespace {

UploadContext::Snapshot answered(int status, const QByteArray &body) {
    return {.httpStatus = status, .answer = body};
}

UploadContext::Snapshot failed(qint64 code, bool wasSent = true) {
    return {.wasSent = wasSent,
            .transportError = NSError::errorWithDescription(NSURLErrorDomain, code, QStringLiteral("reason"))};
}

bool goesOn(VerifyWatch &watch, quint64 bytesStored) {
    return !watch.objection({}, bytesStored, 1'000'000'000);
}

} // namespace

TEST(VimeoClassifier, TellsPassingFailuresFromFinalOnesAndSaysWhatToDo) {
    const auto post = [](qint64 code) { return NSError(VimeoPublishPostErrorDomain, code); };
    const auto exported = [](qint64 code) {
        return NSError::errorWithDescription(AVFoundationErrorDomain, code, QStringLiteral("reason"));
    };
    const QByteArray refusal = R"({"err":{"code":"999","msg":"No more","expl":"oauth_token=hush"}})";
    using enum WaitReason; // none: failed
    const std::tuple<NSError, UploadContext::Snapshot, WaitReason, const char *> cases[] = {
        {post(VimeoPostErrorEmptyResponse), failed(-1001), Network, "reason"},
        {post(VimeoPostErrorBadResponse), failed(-999), NextTry, "reason"},
        {post(VimeoPostErrorBadResponse), answered(503, "<html>"), NextTry, "503"},
        {post(VimeoPostErrorBadResponse), answered(200, "<html>"), None, "not understood"},
        {post(VimeoPostErrorBadResponse), answered(200, refusal), None, "No more"},
        {post(VimeoPostErrorServiceCode401), answered(401, refusal), None, "Sign in again"},
        {post(VimeoPostErrorServiceCode708), answered(200, refusal), NextTry, "again"},
        {post(VimeoPostErrorQuotaExceeded), answered(200, "{}"), None, "space"},
        {exported(AVErrorDiskFull), {}, NextTry, "reason"},
        {exported(AVErrorInvalidSourceMedia), {}, None, "reason"},
        {NSError::errorWithErrno(EACCES, QStringLiteral("a.mp4")), {}, None, "a.mp4"},
    };
    for (const auto &[error, request, reason, text] : cases) {
        const Verdict verdict = FailureClassifier::verdictOnVimeoRun({RunOutcome::Finished, error, request, 0});
        EXPECT_EQ(verdict.state, reason == None ? UploadState::Failed : UploadState::Waiting) << text;
        EXPECT_EQ(verdict.waitReason, reason) << text;
        EXPECT_TRUE(says(verdict.error, text));
        EXPECT_FALSE(says(verdict.error, "hush"));
    }
}

TEST(VimeoClassifier, KnowsWhatBecameOfACommitOrThatNobodyDoes) {
    using enum FailureClassifier::CommitFate;
    const std::pair<UploadContext::Snapshot, FailureClassifier::CommitFate> cases[] = {
        {failed(NSURLErrorCannotConnectToHost, false), NotDone},
        {failed(NSURLErrorTimedOut, false), NotDone},
        {failed(NSURLErrorNetworkConnectionLost), Unknown},
        {failed(NSURLErrorTimedOut), Unknown},
        {failed(NSURLErrorUnknown), Unknown},
        {answered(503, ""), NotDone},
        {answered(502, "<html>"), Unknown},
        {answered(200, ""), Unknown},
        {answered(200, R"({"err":{"code":703}})"), Refused},
        {answered(503, R"({"err":{"code":105}})"), NotDone},
        {answered(200, R"({"err":{"code":"401"}})"), NotDone},
    };
    for (const auto &[request, fate] : cases)
        EXPECT_EQ(FailureClassifier::fateOfCommit(request), fate)
            << request.httpStatus << ' ' << (request.transportError ? request.transportError->code() : 0);
}

TEST(TicketCheck, KeepsVideosOutOfTheLocalNetwork) {
    TemporaryHome home;
    const auto objects = [&](const char *endpoint) {
        return TicketCheck::objection(
                   {QStringLiteral("1"), NSURL::URLWithString(QLatin1String(endpoint)), 0, false, {}, {}})
            .has_value();
    };
    home.setEnvironment("KORVANE_VIMEO_URL", "https://vimeo.example");
    for (const char *endpoint :
         {"http://localhost/", "http://127.0.0.2/", "http://[::1]/", "http://10.1.2.3/", "http://172.31.0.1/",
          "http://192.168.0.1/", "http://169.254.169.254/", "http://0.0.0.0/", "http://[::ffff:10.0.0.1]/",
          "http://[fe80::1]/", "http://[fd00::1]/", "http://x.localhost/", "http://localhost./", "http://100.64.0.1/",
          "http://[::127.0.0.1]/", "ftp://host/"})
        EXPECT_TRUE(objects(endpoint)) << endpoint;
    for (const char *endpoint : {"http://upload.vimeo.example:8080/x", "https://172.32.0.1/", "https://[2001:db8::1]/"})
        EXPECT_FALSE(objects(endpoint)) << endpoint;
    home.setEnvironment("KORVANE_VIMEO_URL", "http://127.0.0.1:8743");
    EXPECT_FALSE(objects("http://127.0.0.1:9000/"));
}

TEST(VerifyWatch, GivesUpAfterTwentyVerifiesWithoutAnAdvance) {
    VerifyWatch stuck(100'000'000);
    int verifies = 1;
    while (goesOn(stuck, 100'000'000))
        ++verifies;
    EXPECT_EQ(verifies, 20);

    // An endpoint that loses everything now and then is slow, not stuck; one that always does is.
    VerifyWatch slow;
    constexpr quint64 chunk = 2'097'152;
    for (quint64 stored = 0; stored < 40 * chunk; stored += chunk)
        EXPECT_TRUE(goesOn(slow, stored));
    for (quint64 stored = 0; stored < 40 * chunk; stored += chunk)
        EXPECT_TRUE(goesOn(slow, stored));
    VerifyWatch sisyphus;
    verifies = 0;
    while (goesOn(sisyphus, verifies % 2 * chunk) && verifies < 1000)
        ++verifies;
    EXPECT_LT(verifies, 40);
}
