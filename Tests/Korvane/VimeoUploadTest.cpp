// Video uploads into the stand-in, which checks every signature and every range on its own.
#include "Korvane/VimeoPost.h"
#include "Platform/Accounts/ACAccount.h"
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/Dispatch.h"
#include "Tests/Support/DefaultRoute.h"
#include "Tests/Support/StandInAccount.h"
#include "Tests/Support/Testing.h"

#include <atomic>

using namespace korvane;
using namespace korvane::test;

namespace {

// The request layer has no error of its own that asks for a restart, so the answer to a commit is put in its place.
void commitFailed(VimeoPost &post, const NSError &requestError);
template <auto Committed>
struct CommitOf {
    friend void commitFailed(VimeoPost &post, const NSError &requestError) {
        (post.*
         Committed)({std::nullopt, NSError(VimeoPublishPostErrorDomain, VimeoPostErrorEmptyResponse), requestError});
    }
};
template struct CommitOf<&VimeoPost::_committed>;

class Delegate : public VimeoPostDelegate {
public:
    void vimeoPostUploadProgressDidChange(const std::shared_ptr<VimeoPost> &, float value) override {
        EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
        progress.append(value);
    }
    void vimeoPostWarningDuringUpload(const std::shared_ptr<VimeoPost> &, qint64 code) override { warning = code; }
    void vimeoPostUploadFailedWithError(const std::shared_ptr<VimeoPost> &, const NSError &reason) override {
        error = reason;
        ++ends;
    }
    void vimeoPostUploadSucceeded(const std::shared_ptr<VimeoPost> &) override { ++ends; }

    QList<float> progress;
    std::atomic<qint64> warning = 0;
    std::optional<NSError> error;
    std::atomic<int> ends = 0;
};

struct VimeoUpload : ::testing::Test {
    TemporaryHome home;
    StandInAccount services{home};
    LogCapture log;
    standin::StandIn &vimeo = services.server;
    const QByteArray bytes = variedBytes(5'000'000);
    std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();

    std::shared_ptr<VimeoPost> post(const QByteArray &contents) {
        const auto made = VimeoPost::init();
        made->assetURL = NSURL::fileURLWithPath(home.file(QStringLiteral("ein film.mp4"), contents));
        made->title = QStringLiteral("A & B = ü");
        return made;
    }

    // The error that the delegate heard; fails the test unless it heard of one end.
    std::optional<NSError> end(const std::shared_ptr<VimeoPost> &post) {
        EXPECT_TRUE(waitFor([&] { return delegate->ends > 0; })) << post->uploadState();
        EXPECT_EQ(delegate->ends, 1);
        return delegate->error;
    }
    void begin(const std::shared_ptr<VimeoPost> &post, const VimeoCheckpoint &checkpoint = {}) {
        delegate = std::make_shared<Delegate>();
        post->setDelegate(delegate);
        EXPECT_TRUE(checkpoint.hasTicket() ? post->resumeUploadToAccount(services.vimeoAccount, checkpoint)
                                           : post->uploadToAccount(services.vimeoAccount));
    }
    std::optional<NSError> upload(const std::shared_ptr<VimeoPost> &post, const VimeoCheckpoint &checkpoint = {}) {
        begin(post, checkpoint);
        return end(post);
    }

    QByteArrayList operations() const {
        QByteArrayList names;
        for (const auto &request : vimeo.requests())
            names.append(request.operation);
        return names;
    }
    static NSError postError(qint64 code) { return NSError(VimeoPublishPostErrorDomain, code); }
};

} // namespace

TEST_F(VimeoUpload, SendsFiveMillionBytesInThreeChunksAndAllThatBelongsToThem) {
    const auto video = post(bytes);
    video->postDescription = QStringLiteral("Zeile\nzwei");
    video->tags = QStringList{QStringLiteral("a"), QStringLiteral("b c")};
    video->privacySettings = 5;
    EXPECT_EQ(upload(video), std::nullopt);
    EXPECT_EQ(delegate->progress, (QList<float>{0.0F, 0.0F, 1.0F}));
    EXPECT_EQ(operations(),
              (QByteArrayList{"getQuota", "getTicket", "chunk", "verify", "chunk", "verify", "chunk", "verify",
                              "complete", "setTitle", "setDescription", "addTags", "setPrivacy"}));
    EXPECT_EQ(vimeo.protocolErrors(), QStringList());
    ASSERT_EQ(vimeo.videos().size(), 1u);
    const standin::Video stored = vimeo.videos()[0];
    ASSERT_EQ(stored.chunks.size(), 3u);
    const std::optional<QByteArray> ranges[] = {std::nullopt, "bytes 2097152-4999999/5000000",
                                                "bytes 4194304-4999999/5000000"};
    const qint64 lengths[] = {2'097'152, 2'097'152, 805'696};
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(stored.chunks[i].contentRange, ranges[i]);
        EXPECT_EQ(stored.chunks[i].length, lengths[i]);
    }
    EXPECT_EQ(stored.sha256, sha256Of(bytes));
    EXPECT_EQ(stored.filename, home.path(QStringLiteral("ein film.mp4")));
    EXPECT_EQ(stored.title, *video->title);
    EXPECT_EQ(stored.description, *video->postDescription);
    EXPECT_EQ(stored.tags, *video->tags);
    EXPECT_EQ(stored.privacy, QStringLiteral("nobody"));
    EXPECT_EQ(video->uploadState(), VimeoUploadStateSettingPrivacy);
    EXPECT_TRUE(QFile::exists(home.path(QStringLiteral("ein film.mp4"))));
}

TEST_F(VimeoUpload, LeavesOutWhatThePostDoesNotHave) {
    const auto video = post(bytes.left(10));
    EXPECT_EQ(upload(video), std::nullopt);
    EXPECT_EQ(operations().mid(4), (QByteArrayList{"complete", "setTitle", "setPrivacy"}));
    EXPECT_EQ(vimeo.videos()[0].privacy, QStringLiteral("anybody"));

    const auto data = VimeoPost::init();
    data->assetData = NSData(bytes);
    data->title = QString();
    data->tags = QStringList();
    EXPECT_EQ(upload(data), std::nullopt);
    EXPECT_EQ(vimeo.videos()[1].filename, QStringLiteral("video.mp4"));
    EXPECT_TRUE(operations().contains("addTags"));
    EXPECT_EQ(vimeo.protocolErrors(), QStringList());
}

TEST_F(VimeoUpload, SaysAtOnceWhatItCannotStart) {
    const auto refused = [&](const std::shared_ptr<VimeoPost> &video, const std::shared_ptr<ACAccount> &account) {
        video->setDelegate(delegate);
        std::optional<NSError> error;
        EXPECT_FALSE(video->uploadToAccount(account));
        EXPECT_FALSE(video->uploadToAccount(account, &error));
        return error.value_or(postError(0));
    };
    const auto untitled = post(bytes);
    untitled->title.reset();
    EXPECT_EQ(refused(untitled, services.vimeoAccount), postError(VimeoPostErrorMissingAccountOrTitle));
    EXPECT_EQ(refused(post(bytes), nullptr), postError(VimeoPostErrorMissingAccountOrTitle));
    const auto nothing = VimeoPost::init();
    nothing->title = QString();
    EXPECT_EQ(refused(nothing, services.vimeoAccount), postError(VimeoPostErrorUnsupportedAsset));
    nothing->assetURL = NSURL::URLWithString(QStringLiteral("https://elsewhere/a.mp4"));
    EXPECT_EQ(refused(nothing, services.vimeoAccount), postError(VimeoPostErrorUnsupportedAsset));
    EXPECT_EQ(log.lines().last(), QStringLiteral("Unsupported scheme for asset URL https://elsewhere/a.mp4"));
    nothing->assetURL = NSURL::fileURLWithPath("/nowhere/a.mp4");
    EXPECT_EQ(refused(nothing, services.vimeoAccount).domain(), NSPOSIXErrorDomain);
    EXPECT_EQ(vimeo.requests().size(), 0u);
    EXPECT_EQ(delegate->ends, 0);
}

TEST_F(VimeoUpload, AsksForTheQuotaBeforeAnythingElse) {
    const qint64 size = 1000;
    const std::tuple<standin::Quota, qint64, std::optional<NSError>, qint64> cases[] = {
        {{.free = size, .hd = true, .sd = true}, VimeoVideoSizeLarge, std::nullopt, 0},
        {{.free = size - 1, .hd = true, .sd = true}, 0, postError(VimeoPostErrorQuotaExceeded), 0},
        {{.free = -1, .hd = true, .sd = true}, 0, std::nullopt, 0}, // unsigned: huge
        {{.free = size, .hd = true, .sd = false}, 0, postError(VimeoPostErrorNoSDQuota), 0},
        {{.free = size, .hd = false, .sd = true}, VimeoVideoSizeLarge, std::nullopt, VimeoPostWarningNoHDQuota},
        {{.free = size, .hd = false, .sd = true}, VimeoVideoSizeMedium, std::nullopt, 0},
    };
    for (const auto &[quota, videoSize, error, warning] : cases) {
        vimeo.quota(quota);
        const auto video = post(bytes.left(size));
        video->videoSize = videoSize;
        EXPECT_EQ(upload(video), error) << quota.free;
        EXPECT_EQ(delegate->warning, warning);
    }
    vimeo.on("getQuota").answer(200, "application/json", R"({"stat":"ok"})");
    EXPECT_EQ(upload(post(bytes)), postError(VimeoPostErrorQuotaExceeded)) << "no user means no space";
}

TEST_F(VimeoUpload, GoesOnFromWhatTheEndpointHasStoredReadInEveryForm) {
    // What is reported after the first chunk, and where the second begins.
    const std::pair<std::optional<QByteArray>, const char *> cases[] = {
        {"bytes=0-2097152", "bytes 2097152-"},
        {"0-1000000", "bytes 1000000-"},
        {"x-5y-7", "bytes 5-"},
        {"2097152", "bytes 0-"},
        {"0-", "bytes 0-"},
        {"-  12", "bytes 12-"},
        {std::nullopt, "bytes 0-"},
    };
    size_t count = 0;
    for (const auto &[range, next] : cases) {
        vimeo.on("verify").reportRange(range).thenOk();
        EXPECT_EQ(upload(post(bytes.left(2'500'000))), std::nullopt);
        const auto video = vimeo.videos().at(count++);
        EXPECT_TRUE(says(video.chunks.at(1).contentRange.value_or(""), next + QByteArray("2499999/2500000")));
        EXPECT_EQ(video.sha256, sha256Of(bytes.left(2'500'000)));
    }
}

TEST_F(VimeoUpload, EndsWithTheErrorOfTheStepThatFailed) {
    const NSError lost(NSURLErrorDomain, NSURLErrorNetworkConnectionLost);
    // Without a body the connection breaks.
    const std::tuple<const char *, std::optional<QByteArray>, NSError, VimeoUploadState> cases[] = {
        {"getQuota", std::nullopt, lost, VimeoUploadStateCheckingQuota},
        {"getTicket", std::nullopt, postError(VimeoPostErrorEmptyResponse), VimeoUploadStateGettingTicket},
        {"getTicket", R"({"err":{"code":"401"}})", postError(VimeoPostErrorServiceCode401),
         VimeoUploadStateGettingTicket},
        {"chunk", std::nullopt, lost, VimeoUploadStateUploadingChunk},
        {"verify", std::nullopt, postError(VimeoPostErrorBadResponse), VimeoUploadStateVerifyingChunk},
        {"complete", std::nullopt, lost, VimeoUploadStateCommitting},
        {"complete", R"({"err":{"code":708}})", postError(VimeoPostErrorServiceCode708), VimeoUploadStateCommitting},
        {"setTitle", "[]", postError(VimeoPostErrorBadResponse), VimeoUploadStateSettingTitle},
        {"addTags", "", postError(VimeoPostErrorEmptyResponse), VimeoUploadStateAddingTags},
        {"setPrivacy", "x", postError(VimeoPostErrorBadResponse), VimeoUploadStateSettingPrivacy},
    };
    for (const auto &[operation, body, expected, state] : cases) {
        SCOPED_TRACE(operation);
        vimeo.clearFaults();
        body ? vimeo.on(operation).answer(200, "application/json", *body) : vimeo.on(operation).dropBeforeAnswer();
        const auto video = post(bytes.left(3000));
        video->tags = QStringList{QStringLiteral("a")};
        const auto error = upload(video).value_or(postError(0));
        EXPECT_EQ(error.domain(), expected.domain());
        EXPECT_EQ(error.code(), expected.code());
        EXPECT_EQ(video->uploadState(), state);
    }
    EXPECT_EQ(log.lines().filter(QStringLiteral("Vimeo error: ")).size(), qsizetype(std::size(cases)));
    vimeo.clearFaults();
    vimeo.on("setDescription").fail(500);
    const auto described = post(bytes.left(3000));
    described->postDescription = QStringLiteral("x");
    EXPECT_EQ(upload(described), std::nullopt) << "a failed description is no failure";
    EXPECT_EQ(vimeo.videos().back().commits(), 1);
}

TEST_F(VimeoUpload, StartsAnewThreeTimesInAllWhenTheRequestLayerAsksForIt) {
    NSError requestError = postError(VimeoPostErrorServiceCode708);
    int failures = 0; // still to come
    const auto video = post(bytes.left(2'500'000));
    video->checkpointChanged = [&, post = video.get()](const VimeoCheckpoint &reached, const auto &proceed) {
        if (!reached.commitSent || failures == 0) return proceed();
        --failures;
        commitFailed(*post, requestError);
    };
    const auto uploadWith = [&](const NSError &error, int count) {
        requestError = error;
        failures = count;
        return upload(video);
    };
    EXPECT_EQ(uploadWith(NSError(NSURLErrorDomain, VimeoPostErrorServiceCode708), 1), requestError);
    EXPECT_EQ(vimeo.videos().size(), 1u) << "other errors are final";

    EXPECT_EQ(uploadWith(postError(VimeoPostErrorServiceCode708), 2), std::nullopt);
    ASSERT_EQ(vimeo.videos().size(), 4u) << "a ticket for each start";
    EXPECT_EQ(vimeo.videos()[2].commits(), 0);
    EXPECT_EQ(vimeo.videos()[3].sha256, sha256Of(bytes.left(2'500'000)));

    EXPECT_EQ(uploadWith(postError(VimeoPostErrorServiceCode708), 2), requestError) << "the count is for good";
}

TEST_F(VimeoUpload, ResumesWhereAnEarlierUploadGotTo) {
    VimeoCheckpoint reached;
    vimeo.on("chunk").thenOk().dropAfterBytes(1'000'000);
    const auto first = post(bytes);
    first->checkpointChanged = [&](const VimeoCheckpoint &checkpoint, const std::function<void()> &proceed) {
        reached = checkpoint;
        proceed();
    };
    EXPECT_TRUE(upload(first).has_value());
    EXPECT_EQ(reached.bytesStored, 2'097'152u);
    EXPECT_FALSE(reached.commitSent);

    EXPECT_EQ(upload(post(bytes), reached), std::nullopt);
    ASSERT_EQ(vimeo.videos().size(), 1u);
    EXPECT_EQ(vimeo.videos()[0].chunks.at(2).start, 3'097'152) << "with the bytes of the broken chunk";
    EXPECT_EQ(vimeo.videos()[0].sha256, sha256Of(bytes));
}

TEST_F(VimeoUpload, NeverMovesOntoTheCellularNetworkWhereItBeganElsewhere) {
    vimeo.on("chunk").thenOk().dropAfterBytes(0);
    const auto first = post(bytes);
    {
        const DefaultRoute route("eth0");
        EXPECT_TRUE(upload(first).has_value());
    }
    const DefaultRoute route("wwan0");
    VimeoCheckpoint reached = first->checkpoint();
    EXPECT_EQ(reached.mayUseCellular, false);
    reached.endpoint = NSURL::URLWithString(DefaultRoute::notLoopback(reached.endpoint->absoluteString()));
    const auto error = upload(post(bytes), reached).value_or(postError(0));
    EXPECT_EQ(error.domain(), NSURLErrorDomain);
    EXPECT_EQ(error.code(), NSURLErrorNotConnectedToInternet);
    EXPECT_EQ(vimeo.videos()[0].chunks.size(), 2u);
    reached.mayUseCellular.reset();
    EXPECT_EQ(upload(post(bytes), reached), std::nullopt) << "begun here";
    EXPECT_EQ(vimeo.videos()[0].sha256, sha256Of(bytes));
}

TEST_F(VimeoUpload, WaitsWithTheCommitUntilItIsRecorded) {
    std::function<void()> proceedWithCommit;
    const auto video = post(bytes.left(3000));
    video->checkpointChanged = [&](const VimeoCheckpoint &checkpoint, const std::function<void()> &proceed) {
        if (checkpoint.commitSent && !proceedWithCommit)
            proceedWithCommit = proceed;
        else
            proceed();
    };
    begin(video);
    ASSERT_TRUE(waitFor([&] { return proceedWithCommit != nullptr; }));
    EXPECT_FALSE(waitFor([&] { return operations().contains("complete"); }, 200));
    proceedWithCommit();
    EXPECT_EQ(end(video), std::nullopt);
    EXPECT_FALSE(video->checkpoint().commitSent);
    EXPECT_EQ(video->checkpoint().videoID.toLongLong(), vimeo.videos()[0].id);
    video->checkpointChanged = nullptr;
}

TEST_F(VimeoUpload, EndsWithAnErrorWhenTheFileShrinks) {
    const auto shrinking = post(bytes);
    shrinking->checkpointChanged = [&](const VimeoCheckpoint &checkpoint, const std::function<void()> &proceed) {
        if (checkpoint.bytesStored > 0) QFile::resize(home.path(QStringLiteral("ein film.mp4")), 2'500'000);
        proceed();
    };
    const auto result = upload(shrinking);
    shrinking->checkpointChanged = nullptr;
    EXPECT_EQ(vimeo.videos()[0].sha256, QByteArray()) << "half a video was committed";
    EXPECT_TRUE(result.has_value());
}

TEST(VimeoUploadDeathTest, StopsOnAnEmptyVideo) {
    const auto uploadNothing = [] {
        TemporaryHome home;
        StandInAccount services(home);
        const auto video = VimeoPost::init();
        video->assetData = NSData(QByteArray());
        video->title = QString();
        video->uploadToAccount(services.vimeoAccount);
        waitFor([] { return false; });
    };
    EXPECT_DEATH(uploadNothing(), "Got chunk size of 0. fileSize = 0, starting byte = 0\n"
                                  "(.*\n)*.*\\(chunkSize > 0\\).*\\[VimeoPost _uploadData\\].*Korvane/VimeoPost.*381");
}
