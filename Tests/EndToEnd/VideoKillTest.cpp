// Deaths of the service in each state of a video: it arrives whole, once, with all that belongs to it.
#include "Tests/EndToEnd/ServiceHarness.h"
#include "Tests/Support/Seed.h"

using namespace korvane;
using namespace korvane::test;

namespace {

constexpr qint64 chunkSize = 2'097'152;

struct VideoKill : ServiceTest {
    standin::StandIn &vimeo = flickr.server;

    // Of the video with that title, from its ticket on.
    std::optional<standin::Video> videoNamed(const QString &fileName) {
        for (const auto &video : vimeo.videos())
            if (video.filename.endsWith(fileName)) return video;
        return std::nullopt;
    }
    qsizetype requestsFor(const QByteArray &operation) {
        qsizetype count = 0;
        for (const auto &request : vimeo.requests())
            count += request.operation == operation;
        return count;
    }
};

} // namespace

TEST_F(VideoKill, InEachStateLosesNothingAndSendsNoCommitTwice) {
    const QByteArray states[] = {"getQuota", "getTicket", "chunk",          "verify",  "chunk",
                                 "complete", "setTitle",  "setDescription", "addTags", "setPrivacy"};
    QRandomGenerator random(seedOfRun());
    vimeo.delay(std::chrono::milliseconds(15));
    const int kills = repetitions("KORVANE_TEST_KILLS", 20);
    int setAside = 0;
    qint64 sentTwice = 0;
    for (int i = 0; i < kills; ++i) {
        const QByteArray &state = states[i % std::size(states)];
        SCOPED_TRACE(testing::Message() << "kill " << i << " in " << state.constData());
        const QByteArray bytes = variedBytes(5'000'000, random.generate());
        const QString name = QStringLiteral("video-%1.mp4").arg(i);
        const auto post = video(name, bytes);
        const qsizetype before = requestsFor(state) + (state == "chunk" ? random.bounded(3) : 0);
        const size_t tickets = vimeo.videos().size();
        ASSERT_TRUE(shareVideo(post));
        ASSERT_TRUE(waitFor([&] { return requestsFor(state) > before; }));
        QThread::usleep(random.bounded(state == "complete" ? 12'000 : 25'000)); // an answer takes 15 ms
        killService(SIGKILL);
        startService();
        ASSERT_TRUE(waitFor(
            [&] {
                const auto all = uploads();
                const QString now = all.isEmpty() ? QString() : valueOf(int(all.size()) - 1, "state");
                return now == QLatin1String("done") || now == QLatin1String("failed");
            },
            60'000));
        const int last = int(uploads().size()) - 1;
        const auto arrived = videoNamed(name);
        if (valueOf(last, "state") == QLatin1String("failed")) {
            ++setAside;
            EXPECT_TRUE(errorOf(last).contains(QStringLiteral("the video may be on Vimeo; look there")))
                << errorOf(last).toStdString();
            EXPECT_LE(vimeo.videos().back().commits(), 1);
            continue;
        }
        ASSERT_TRUE(arrived);
        EXPECT_EQ(arrived->commits(), 1);
        EXPECT_EQ(arrived->sha256, sha256Of(bytes));
        EXPECT_EQ(arrived->title, name);
        EXPECT_EQ(arrived->description, *post->postDescription);
        EXPECT_EQ(arrived->tags, *post->tags);
        EXPECT_EQ(arrived->privacy, QStringLiteral("nobody"));
        qint64 received = 0;
        const auto videos = vimeo.videos();
        for (size_t j = tickets; j < videos.size(); ++j) // a ticket that was not yet recorded gives way to another
            received += videos[j].bytesReceived;
        EXPECT_LE(received, bytes.size() + chunkSize);
        sentTwice += received - bytes.size();
    }
    printf("%d kills, %d set aside at their commit, %lld bytes sent twice\n", kills, setAside, (long long)sentTwice);
    EXPECT_EQ(vimeo.protocolErrors(), QStringList());
}
