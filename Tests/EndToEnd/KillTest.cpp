// Deaths of the service at any moment: nothing is missing, nothing is set aside that is not at fault.
#include "Platform/Preferences/KorvaneSettings.h"
#include "Service/UploadStore.h"
#include "Tests/EndToEnd/ServiceHarness.h"
#include "Tests/Support/Seed.h"

#include <QMap>
#include <QRandomGenerator>
#include <QSet>

#include <future>
#include <numeric>

using namespace korvane;
using namespace korvane::test;

namespace {

using Counts = QMap<QByteArray, int>; // by the SHA-256 of photos

int sum(const Counts &counts) {
    return std::accumulate(counts.begin(), counts.end(), 0);
}

class Kill : public ServiceTest {
public:
    void makeBatch(quint32 seeded) {
        for (quint32 i = 0; i < 40; ++i) {
            const QByteArray bytes = jpegOfSize(20'000 + 5'000 * (i % 7), seeded + i);
            digests.append(sha256Of(bytes));
            posts.push_back(post(bytes, album));
        }
    }

    // The first kills fall into the hand-over: the client asks again under the same id. Where that is killed as well,
    // the user taps Post once more.
    void tapPost() {
        ++shares;
        reply = std::async(std::launch::async, [this] { return share(posts); });
    }
    bool isHandedOver() {
        if (handedOver || reply.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return handedOver;
        handedOver = reply.get();
        if (!handedOver) tapPost();
        return handedOver;
    }

    // Lets a life of the service begin and end. In it, a photo may arrive as often as it has uploads whose answers were
    // not on record before: one that arrives again was sent in full before, and its answer had been lost. Only the
    // answers of what was running may be lost at the end.
    void live(const std::function<void()> &life) {
        const bool isWatched =
            handedOver && servicePid() == 0; // else the client may have started it, or start it again
        const Counts open = isWatched ? withoutAnswer() : Counts();
        const Counts before = arrived();
        life();
        flickr.server.stop(); // when this returns, all that was sent has arrived
        const Counts after = arrived();
        ASSERT_TRUE(flickr.server.start());
        if (!isWatched) return;
        for (const QByteArray &digest : digests)
            EXPECT_LE(after[digest] - before[digest], open[digest]) << "sent again: " << digest.toStdString();
        const int answersRecorded = sum(open) - sum(withoutAnswer());
        const int answersLost = sum(after) - sum(before) - answersRecorded;
        EXPECT_GE(answersLost, 0);
        EXPECT_LE(answersLost, KorvaneSettings::flickrParallelUploads());
    }
    Counts arrived() const {
        Counts counts;
        for (const auto &photo : flickr.server.photos())
            ++counts[photo.sha256];
        return counts;
    }
    Counts withoutAnswer() {
        Counts counts;
        UploadStore store;
        EXPECT_TRUE(store.open(home.path("state/korvane/queue.sqlite"), nullptr));
        for (const UploadJob &job : store.jobsAfter(0, 1000))
            counts[digests[(job.id - 1) % digests.size()]] += job.photoID == 0;
        return counts;
    }

    const qint64 album = flickr.server.albums()[0].id;
    std::vector<std::shared_ptr<FlickrPost>> posts;
    QByteArrayList digests; // of the posts, and so of the uploads in the order of their ids
    int shares = 0;
    std::future<bool> reply;
    bool handedOver = false;
};

} // namespace

TEST_F(Kill, FiftyTimesInABatchOfFortyLosesNothing) {
    const quint32 seeded = seedOfRun();
    QRandomGenerator random(seeded);
    flickr.server.delay(std::chrono::milliseconds(60));
    makeBatch(seeded);
    tapPost();
    int kills = 0;
    for (; kills < 50; ++kills)
        live([&] {
            if (isHandedOver() || servicePid() == 0) startService();
            QThread::usleep(random.bounded(120'000));
            killService(SIGKILL);
        });
    ASSERT_TRUE(waitFor([&] { return isHandedOver(); }));
    live([&] {
        startService();
        EXPECT_TRUE(waitForState("done", int(uploads().size())));
    });
    EXPECT_EQ(uploads().size() % 40, 0) << "a batch is taken whole or not at all";
    EXPECT_LE(uploads().size(), 40 * shares) << "and once a share";
    const auto photos = flickr.server.photos();
    QSet<QByteArray> inAlbum;
    for (const auto &photo : photos)
        if (photo.albums.contains(album)) inAlbum.insert(photo.sha256);
    EXPECT_EQ(inAlbum, QSet<QByteArray>(digests.begin(), digests.end()));
    printf("%d kills, %d photos sent again because their answer had not been recorded\n", kills,
           int(photos.size()) - int(uploads().size()));
    EXPECT_TRUE(QDir(home.path("state/korvane/spool")).isEmpty());
}

TEST_F(Kill, BetweenTheAnswerAndTheAlbumDoesNotSendThePhotoAgain) {
    flickr.server.on("addPhoto").hang();
    ASSERT_TRUE(share({post(jpegOfSize(5000), album)}));
    UploadStore store;
    ASSERT_TRUE(store.open(home.path("state/korvane/queue.sqlite"), nullptr));
    ASSERT_TRUE(waitFor([&] { return store.job(1)->photoID != 0; })) << "recorded before the album has answered";
    killService(SIGKILL);
    startService();
    EXPECT_TRUE(waitForState("done", 1));
    ASSERT_EQ(flickr.server.photos().size(), 1u);
    EXPECT_EQ(flickr.server.photos()[0].albums, QList<qint64>{album});
}

TEST_F(Kill, AnUploadThatEndsTheServiceIsSetAsideAndItsNeighboursAreNot) {
    // Whenever the second upload runs, the service ends by a fatal signal.
    flickr.server.delay(std::chrono::milliseconds(300));
    ASSERT_TRUE(share(std::vector(4, post(jpegOfSize(5000)))));
    int ends = 0;
    const auto doneAndFailed = [&] {
        if (valueOf(1, "state") == QLatin1String("running") && valueOf(1, "attempts").toInt() > ends) {
            killService(SIGSEGV);
            ++ends;
        }
        return countInState("done") == 3 && countInState("failed") == 1;
    };
    EXPECT_TRUE(waitFor(doneAndFailed, 60'000));
    EXPECT_EQ(ends, 2);
    EXPECT_EQ(valueOf(1, "state"), QStringLiteral("failed"));
    EXPECT_TRUE(says(errorOf(1), "set aside"));
}
