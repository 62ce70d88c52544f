// Videos through bad weather, and over a network that is cut again and again.
#include "Tests/EndToEnd/VideoHarness.h"
#include "Tests/Support/Seed.h"

using namespace korvane;
using namespace korvane::test;

using VideoSoak = VideoServiceTest;

TEST_F(VideoSoak, EveryVideoArrivesWholeOrSaysWhyNot) {
    const quint32 first = seedOfRun();
    const int runs = repetitions("KORVANE_SOAK_RUNS", 4);
    int setAside = 0;
    qint64 received = 0;
    setEnvironment("KORVANE_RETRY_DELAYS", "20,50,100");
    for (int run = 0; run < runs; ++run) {
        const quint32 seed = first + quint32(run);
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", run " << run);
        vimeo.weather({.seed = seed,
                       .error = 0.05,
                       .reset = 0.05,
                       .loseTail = 0.15,
                       .delay = 10,
                       // not the description, which may be missing in the end
                       .operations = {"getQuota", "getTicket", "chunk", "verify", "complete", "setTitle", "addTags",
                                      "setPrivacy"}});
        // The answer to every other commit is lost in one way or another.
        if (run % 4 == 1) vimeo.on("complete").dropBeforeAnswer();
        if (run % 4 == 3) run % 8 == 3 ? vimeo.on("complete").truncate() : vimeo.on("complete").fail(502);
        const QByteArray bytes = variedBytes(40'000'000, seed);
        const auto post = video(QStringLiteral("video-%1.mp4").arg(run), bytes);
        ASSERT_TRUE(shareVideo(post));
        ASSERT_TRUE(waitForState("queued", 0, 120'000) && waitForState("running", 0, 120'000) &&
                    waitFor([&] { return countInState("done") + countInState("failed") == run + 1; }, 120'000))
            << "it hangs";
        if (run % 2 == 0) {
            EXPECT_EQ(valueOf(run, "state"), QStringLiteral("done")) << errorOf(run).toStdString();
            expectArrived(vimeo.videos().back(), *post, bytes);
        } else {
            ++setAside;
            EXPECT_TRUE(says(errorOf(run), "may be on Vimeo"));
            EXPECT_EQ(vimeo.videos().back().commits(), 1);
        }
        received += vimeo.videos().back().bytesReceived;
    }
    vimeo.clearFaults();
    printf("%d runs of 40 MB, %d set aside\n", runs, setAside);
    EXPECT_GT(received, runs * Q_INT64_C(40'000'000)) << "the weather was bad";
    EXPECT_EQ(vimeo.protocolErrors(), QStringList());
}

TEST_F(VideoSoak, ANetworkThatIsCutAgainAndAgainCostsAtMostAChunkEachTime) {
    const qint64 size = repetitions("KORVANE_SOAK_CUT_MEGABYTES", 60) * Q_INT64_C(1'000'000);
    const int cuts = repetitions("KORVANE_SOAK_CUTS", 3);
    const int seconds = repetitions("KORVANE_SOAK_CUT_SECONDS", 1);
    vimeo.delay(std::chrono::milliseconds(20));
    const QByteArray bytes = variedBytes(size);
    const auto post = video("long.mp4", bytes);
    std::optional<NSError> error;
    ASSERT_TRUE(shareVideo(post, &error)) << error->description().toStdString();
    for (int i = 1; i <= cuts; ++i) {
        ASSERT_TRUE(waitFor(
            [&] { return !vimeo.videos().empty() && vimeo.videos()[0].bytesStored > size * i / (cuts + 1); }, 120'000));
        vimeo.stop();
        QThread::sleep(quint32(seconds)); // the length of the cut itself, not a wait for something
        ASSERT_TRUE(vimeo.start());
    }
    ASSERT_TRUE(waitForState("done", 1, 120'000)) << errorOf(0).toStdString();
    ASSERT_EQ(vimeo.videos().size(), 1u);
    expectArrived(vimeo.videos()[0], *post, bytes);
    printf("%d cuts of %d s, %lld bytes sent twice\n", cuts, seconds,
           (long long)(vimeo.videos()[0].bytesReceived - size));
    EXPECT_LE(vimeo.videos()[0].bytesReceived, size + cuts * Q_INT64_C(2'097'152));
}
