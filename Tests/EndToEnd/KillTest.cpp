// Deaths of the service at any moment: nothing is missing, nothing is set aside that is not at fault.
#include "Service/UploadStore.h"
#include "Tests/EndToEnd/ServiceFixture.h"

#include <QCryptographicHash>
#include <QDBusArgument>
#include <QDir>
#include <QMap>
#include <QRandomGenerator>
#include <QSet>

#include <csignal>
#include <future>

using namespace korvane;
using namespace korvane::test;

namespace {

// KORVANE_TEST_SEED replays a run.
quint32 seed() {
    const QByteArray given = qgetenv("KORVANE_TEST_SEED");
    return given.isEmpty() ? QRandomGenerator::global()->generate() : given.toUInt();
}

QByteArray digest(const QByteArray &bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

} // namespace

class Kill : public ServiceTest {
public:
    // Notes of every upload whose answer is on record by now how many requests the stand-in had seen.
    void noteRecordedAnswers() {
        UploadStore store;
        if (!store.open(home.path(QStringLiteral("state/korvane/queue.sqlite")), nullptr)) return;
        for (const UploadJob &job : store.jobsAfter(0, 1000))
            if (job.photoID != 0) _requestsWhenRecorded.try_emplace(job.id, flickr.server.requests().size());
    }

    // A photo whose answer was on record was not sent again. digests: of the uploads in the order of their ids, from 1
    // on.
    void expectRecordedPhotosWereNotSentAgain(const QList<QByteArray> &digests) {
        const auto requests = flickr.server.requests();
        for (const auto &[id, seen] : _requestsWhenRecorded)
            for (size_t i = seen; i < requests.size(); ++i)
                EXPECT_NE(requests[i].photoSha256, digests[(id - 1) % digests.size()])
                    << "upload " << id << " was sent again";
    }

    // Every photo is there, in the album, and done. Returns how many there are more than once.
    int expectAllArrived(const QSet<QByteArray> &sent, qint64 album) {
        QMap<QByteArray, int> copies;
        QSet<QByteArray> inAlbum;
        for (const auto &photo : flickr.server.photos()) {
            ++copies[photo.sha256];
            if (photo.albums.contains(album)) inAlbum.insert(photo.sha256);
        }
        EXPECT_EQ(inAlbum, sent);
        int duplicates = 0;
        for (const int count : copies)
            duplicates += count - 1;
        return duplicates;
    }

private:
    std::map<qint64, size_t> _requestsWhenRecorded;
};

TEST_F(Kill, FiftyTimesInABatchOfFortyLosesNothing) {
    const quint32 seeded = seed();
    printf("seed %u (replay with KORVANE_TEST_SEED)\n", seeded);
    QRandomGenerator random(seeded);
    flickr.server.delay(std::chrono::milliseconds(60));
    const qint64 album = flickr.server.albums()[0].id;
    std::vector<std::shared_ptr<FlickrPost>> posts;
    QList<QByteArray> digests;
    for (quint32 i = 0; i < 40; ++i) {
        const QByteArray bytes = jpegOfSize(20'000 + 5'000 * (i % 7), seeded + i);
        digests.append(digest(bytes));
        posts.push_back(post(bytes, album));
    }
    // The first kills fall into the hand-over: the client asks again under the same id. Where that is killed as well,
    // the user taps Post once more.
    int shares = 0;
    std::future<bool> handOver;
    const auto tapPost = [&] {
        ++shares;
        handOver = std::async(std::launch::async, [&] { return share(posts); });
    };
    bool handedOver = false;
    const auto lookAfterHandOver = [&] {
        if (handedOver || handOver.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return;
        handedOver = handOver.get();
        if (!handedOver) tapPost();
    };
    tapPost();
    int kills = 0;
    for (; kills < 50; ++kills) {
        QThread::usleep(random.bounded(120'000));
        if (servicePid() == 0) startService();
        killService(SIGKILL);
        noteRecordedAnswers();
        lookAfterHandOver();
        if (handedOver) startService();
    }
    ASSERT_TRUE(waitFor([&] {
        lookAfterHandOver();
        return handedOver;
    }));
    startService();
    EXPECT_TRUE(waitForState(QStringLiteral("done"), int(uploads().size())));
    EXPECT_EQ(countInState(QStringLiteral("failed")), 0);
    EXPECT_EQ(uploads().size() % 40, 0) << "a batch is taken whole or not at all";
    EXPECT_LE(uploads().size(), 40 * shares) << "and once a share";
    const int duplicates = expectAllArrived(QSet<QByteArray>(digests.begin(), digests.end()), album);
    expectRecordedPhotosWereNotSentAgain(digests);
    printf("%d kills, %d photos sent again because their answer had not been recorded\n", kills, duplicates);
    EXPECT_LE(duplicates, 3 * kills + 40 * (shares - 1));
    EXPECT_TRUE(QDir(home.path(QStringLiteral("state/korvane/spool"))).isEmpty());
}

TEST_F(Kill, AnUploadThatEndsTheServiceIsSetAsideAndItsNeighboursAreNot) {
    // Whenever the second upload runs, the service ends by a fatal signal.
    flickr.server.delay(std::chrono::milliseconds(300));
    ASSERT_TRUE(share(
        {post(jpegOfSize(5000, 1)), post(jpegOfSize(5000, 9)), post(jpegOfSize(5000, 2)), post(jpegOfSize(5000, 3))}));
    int ends = 0;
    const auto doneAndFailed = [&] {
        const auto all = uploads();
        if (all.size() == 4 && all[1].value(QStringLiteral("state")) == QLatin1String("running") &&
            all[1].value(QStringLiteral("attempts")).toInt() > ends) {
            killService(SIGSEGV);
            ++ends;
        }
        return countInState(QStringLiteral("done")) == 3 && countInState(QStringLiteral("failed")) == 1;
    };
    EXPECT_TRUE(waitFor(doneAndFailed, 60'000));
    EXPECT_EQ(ends, 2);
    EXPECT_EQ(uploads()[1].value(QStringLiteral("state")), QStringLiteral("failed"));
    const auto error = qdbus_cast<QVariantMap>(uploads()[1].value(QStringLiteral("error")));
    EXPECT_TRUE(error.value(QStringLiteral("description")).toString().contains(QStringLiteral("set aside")));
}
