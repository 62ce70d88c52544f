// Deaths of the service in each state of a video: it arrives whole, once, with all that belongs to it.
#include "Tests/EndToEnd/VideoHarness.h"
#include "Tests/Support/Seed.h"

using namespace korvane;
using namespace korvane::test;

namespace {

constexpr qint64 chunkSize = 2'097'152;

struct VideoKill : VideoServiceTest {
    // Of the video with that title, from its ticket on.
    std::optional<standin::Video> videoNamed(const QString &fileName) {
        for (const auto &video : vimeo.videos())
            if (video.filename.endsWith(fileName)) return video;
        return std::nullopt;
    }
};

} // namespace

TEST_F(VideoKill, InEachStateLosesNothingAndSendsNoCommitTwice) {
    const QByteArrayList calls{"getQuota", "getTicket", "chunk",    "verify",         "chunk",   "verify",    "chunk",
                               "verify",   "complete",  "setTitle", "setDescription", "addTags", "setPrivacy"};
    QRandomGenerator random(seedOfRun());
    vimeo.delay(std::chrono::milliseconds(15));
    const int kills = repetitions("KORVANE_TEST_KILLS", 20);
    int setAside = 0;
    for (int i = 0; i < kills; ++i) {
        const qsizetype call = i % calls.size();
        SCOPED_TRACE(testing::Message() << "kill " << i << " in " << calls[call].constData());
        // It gets no further than to the next call, and to the commit only where that is the one.
        const qsizetype held = calls.value(call + 1) == "complete" ? call : call + 1;
        if (held < calls.size()) vimeo.on(calls[held]).thenOk(int(calls.first(held).count(calls[held]))).hang();
        const QByteArray bytes = variedBytes(5'000'000, random.generate());
        const QString name = QStringLiteral("video-%1.mp4").arg(i);
        const auto post = video(name, bytes);
        const size_t before = vimeo.requests().size();
        const size_t tickets = vimeo.videos().size();
        ASSERT_TRUE(shareVideo(post));
        ASSERT_TRUE(waitFor([&] { return vimeo.requests().size() > before + size_t(call); }));
        QThread::usleep(random.bounded(25'000)); // an answer takes 15 ms
        killService(SIGKILL);
        vimeo.clearFaults();
        startService();
        ASSERT_TRUE(waitFor(
            [&] {
                const auto all = uploads();
                const QString now = all.isEmpty() ? QString() : valueOf(int(all.size()) - 1, "state");
                return now == QLatin1String("done") || now == QLatin1String("failed");
            },
            60'000));
        const int last = int(uploads().size()) - 1;
        if (valueOf(last, "state") == QLatin1String("failed")) {
            ++setAside;
            EXPECT_TRUE(says(errorOf(last), "the video may be on Vimeo; look there"));
            EXPECT_EQ(calls[call], "complete");
            EXPECT_EQ(vimeo.videos().back().commits(), 1);
            continue;
        }
        const auto arrived = videoNamed(name);
        ASSERT_TRUE(arrived);
        EXPECT_EQ(arrived->commits(), 1);
        expectArrived(*arrived, *post, bytes);
        qint64 received = 0;
        const auto videos = vimeo.videos();
        for (size_t j = tickets; j < videos.size(); ++j) // a ticket that was not yet recorded gives way to another
            received += videos[j].bytesReceived;
        EXPECT_LE(received, bytes.size() + chunkSize);
    }
    printf("%d kills, %d set aside at their commit\n", kills, setAside);
    EXPECT_EQ(vimeo.protocolErrors(), QStringList());
}

TEST_F(VideoKill, DuringAnExportEndsItsProgramAndTheNextLifeMakesItAnew) {
    holdExports();
    makeFilm(home, "library/Videos/clip.mp4");
    ASSERT_TRUE(shareVideo(libraryVideo("clip.mp4")));
    const pid_t exporting = heldExport();
    killService(SIGKILL);
    EXPECT_TRUE(waitFor([&] { return isGone(exporting); }));
    home.file("go", {});
    startService();
    ASSERT_TRUE(waitForState("done", 1)) << errorOf(0).toStdString();
    EXPECT_EQ(vimeo.videos().size(), 1u);
    EXPECT_TRUE(waitFor([&] { return isEmpty("state/korvane/tmp") && isEmpty("state/korvane/spool"); }));
}
