// Videos through bad weather, and over a network that is cut again and again.
#include "Tests/EndToEnd/CuttableProxy.h"
#include "Tests/EndToEnd/ServiceHarness.h"
#include "Tests/Support/Seed.h"

#include <QUrl>

using namespace korvane;
using namespace korvane::test;

namespace {

struct VideoSoak : ServiceTest {
    standin::StandIn &vimeo = flickr.server;
};

} // namespace

TEST_F(VideoSoak, EveryVideoArrivesWholeOrSaysWhyNot) {
    const quint32 first = seedOfRun();
    const int runs = repetitions("KORVANE_SOAK_RUNS", 4);
    int failed = 0;
    setEnvironment("KORVANE_RETRY_DELAYS", "20,50,100");
    for (int run = 0; run < runs; ++run) {
        const quint32 seed = first + quint32(run);
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        vimeo.weather({.seed = seed, .error = 0.05, .reset = 0.05, .loseTail = 0.15, .delay = 10});
        const QByteArray bytes = variedBytes(40'000'000, seed);
        ASSERT_TRUE(shareVideo(video(QStringLiteral("video-%1.mp4").arg(run), bytes)));
        ASSERT_TRUE(waitForState("queued", 0, 120'000) && waitForState("running", 0, 120'000) &&
                    waitFor([&] { return countInState("done") + countInState("failed") == run + 1; }, 120'000))
            << "it hangs";
        const auto committed = vimeo.videos().back();
        if (valueOf(run, "state") == QLatin1String("done")) {
            EXPECT_EQ(committed.sha256, sha256Of(bytes));
            EXPECT_EQ(committed.title, QStringLiteral("video-%1.mp4").arg(run));
        } else {
            ++failed;
            EXPECT_TRUE(errorOf(run).contains(QStringLiteral("may be on Vimeo"))) << errorOf(run).toStdString();
        }
    }
    vimeo.clearFaults();
    printf("%d runs of 40 MB, %d set aside\n", runs, failed);
    EXPECT_EQ(vimeo.protocolErrors(), QStringList());
}

TEST_F(VideoSoak, ANetworkThatIsCutAgainAndAgainCostsAtMostAChunkEachTime) {
    const qint64 size = repetitions("KORVANE_SOAK_CUT_MEGABYTES", 60) * Q_INT64_C(1'000'000);
    const int cuts = repetitions("KORVANE_SOAK_CUTS", 3);
    const int seconds = repetitions("KORVANE_SOAK_CUT_SECONDS", 1);
    CuttableProxy network(quint16(QUrl(vimeo.url()).port()));
    setEnvironment("KORVANE_VIMEO_URL", network.url());
    vimeo.delay(std::chrono::milliseconds(20));
    const QByteArray bytes = variedBytes(size);
    std::optional<NSError> error;
    ASSERT_TRUE(shareVideo(video("long.mp4", bytes), &error)) << error->description().toStdString();
    for (int i = 1; i <= cuts; ++i) {
        ASSERT_TRUE(waitFor(
            [&] { return !vimeo.videos().empty() && vimeo.videos()[0].bytesStored > size * i / (cuts + 1); }, 120'000));
        network.cut();
        QThread::sleep(quint32(seconds)); // the length of the cut itself, not a wait for something
        network.mend();
    }
    ASSERT_TRUE(waitForState("done", 1, 120'000)) << errorOf(0).toStdString();
    ASSERT_EQ(vimeo.videos().size(), 1u);
    EXPECT_EQ(vimeo.videos()[0].sha256, sha256Of(bytes));
    printf("%d cuts of %d s, %lld bytes sent twice\n", cuts, seconds,
           (long long)(vimeo.videos()[0].bytesReceived - size));
    EXPECT_LE(vimeo.videos()[0].bytesReceived, size + cuts * Q_INT64_C(2'097'152));
}
