// The queue where the network, the sign-in or the disk is missing.
#include "Service/UploadQueue.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Service/RecordCodec.h"
#include "Tests/Service/Database.h"
#include "Tests/Support/DefaultRoute.h"
#include "Tests/Support/StandInAccount.h"
#include "Tests/Support/Testing.h"

#include <fcntl.h>

#include <future>
#include <mutex>

using namespace korvane;
using namespace korvane::test;

namespace {

constexpr qint64 patience = 600; // milliseconds

class Queue : public ::testing::Test {
protected:
    void start(bool fatalDeath = false) {
        ASSERT_TRUE(queue.open(fatalDeath, nullptr));
        queue.setAccountStore(std::make_shared<ACAccountStore>());
        queue.start();
    }
    // A photo whose data comes in a file.
    void share(const QString &message = QStringLiteral("message")) {
        const QByteArray bytes = jpegOfSize(500);
        const auto file = std::make_shared<FileDescriptor>(
            ::open(QFile::encodeName(home.path()).constData(), O_TMPFILE | O_RDWR, 0600));
        ASSERT_EQ(::write(file->get(), bytes.constData(), bytes.size()), bytes.size());
        const auto data = QVariant::fromValue(NSData::dataWithFile(file, 0, bytes.size()));
        queue.takeOver(flickrServiceID, {QVariantMap{{QStringLiteral("photoData"), data}}}, {message, file},
                       [](const auto &taken, const auto &) { EXPECT_TRUE(*taken); });
    }
    QVariant answerTo(const std::function<void(const UploadQueue::Answer &)> &question) {
        std::promise<QVariant> answer;
        question([&](const QVariant &value) { answer.set_value(value); });
        return answer.get_future().get();
    }
    int countIn(const QString &state) {
        return answerTo([&](const auto &answer) { queue.counts(answer); }).toMap().value(state).toInt();
    }
    // Lets the queue try what is due until the upload has been in that state so often.
    bool triesUntil(const QString &state, int times = 1) {
        return waitFor([&] {
            queue.wake();
            return timesIn(state) >= times;
        });
    }
    int timesIn(const QString &state) {
        const std::lock_guard lock(mutex);
        return int(states.count(state));
    }
    void changed(const QVariantMap &upload) {
        const std::lock_guard lock(mutex);
        states.append(upload.value(QStringLiteral("state")).toString());
        if (states.last() == QLatin1String("waiting"))
            states.last() += QStringLiteral(" for ") + upload.value(QStringLiteral("waitingFor")).toString();
        last = upload;
    }

    TemporaryHome home;
    StandInAccount flickr{home};
    LogCapture log;
    QElapsedTimer timer;
    std::mutex mutex;
    QStringList states; // that uploads have gone through, and
    QVariantMap last;   // what the last one is like now
    const QString database = home.path("queue.sqlite");
    UploadQueue queue{
        home.path(), {{1, 20}, patience}, {[this](const QVariantMap &upload) { changed(upload); }, {}, {}, {}}};
};

// Its web service cannot be reached.
class HopelessUpload : public Queue {
protected:
    void SetUp() override {
        flickr.server.stop();
        start();
    }
};

// Its database refuses some of what is written.
class RefusingDisk : public Queue {
protected:
    void refuse(const QString &what) {
        sql(database,
            {QStringLiteral("CREATE TRIGGER refuses BEFORE %1 BEGIN SELECT RAISE(ABORT, 'full'); END").arg(what)});
    }
    void refuseNothing() { sql(database, {QStringLiteral("DROP TRIGGER refuses")}); }
};

} // namespace

TEST_F(HopelessUpload, IsGivenUpAfterItsTimeAndHasAllOfItAgainAfterARetry) {
    for (const bool again : {false, true}) {
        states.clear();
        timer.start();
        if (again)
            queue.retry({QStringLiteral("1")}, [](const QVariant &) {});
        else
            share();
        ASSERT_TRUE(triesUntil(QStringLiteral("failed")));
        EXPECT_GT(timer.elapsed(), patience);
        EXPECT_GE(timesIn(QStringLiteral("waiting for network")), 2);
        const NSError error = errorOfDictionary(last.value(QStringLiteral("error")).toMap());
        EXPECT_TRUE(error.localizedDescription().startsWith(QStringLiteral("Given up after")));
        EXPECT_EQ(error.code(), NSURLErrorCannotConnectToHost);
        EXPECT_TRUE(says(error, "connect")) << "what was wrong the last time";
        EXPECT_TRUE(last.contains(QStringLiteral("finishedAt")));
    }
}

TEST_F(HopelessUpload, WaitsForASignInAsLongAsItTakes) {
    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.account->identifier()));
    share();
    timer.start();
    ASSERT_TRUE(triesUntil(QStringLiteral("waiting for sign-in")));
    ASSERT_TRUE(waitFor([&] { return timer.elapsed() > 2 * patience; }));
    queue.accountsChanged();
    EXPECT_TRUE(triesUntil(QStringLiteral("waiting for sign-in"), 2));
    EXPECT_EQ(timesIn(QStringLiteral("failed")), 0);
}

TEST_F(RefusingDisk, StartsNothingBeforeItTakesWhatBecameOfTheLastLife) {
    {
        UploadStore store;
        ASSERT_TRUE(store.open(database, nullptr));
        NewUpload photo;
        photo.job.service = flickrServiceID;
        photo.record = RecordCodec::encode({{QStringLiteral("photoData"), jpegOfSize(500)}}, nullptr);
        ASSERT_TRUE(store.take(QStringLiteral("m"), {photo, photo, photo}, nullptr));
        for (UploadJob &job : store.jobsAfter(0, 2)) {
            job.state = UploadState::Running;
            job.deaths = job.id - 1;
            ASSERT_TRUE(store.update(job, true));
        }
    }
    refuse(QStringLiteral("UPDATE ON uploads"));
    start(true);
    EXPECT_FALSE(waitFor(
        [&] {
            queue.wake();
            return !flickr.server.requests().empty();
        },
        200));
    refuseNothing();
    EXPECT_TRUE(waitFor([&] {
        queue.wake();
        return countIn(QStringLiteral("done")) == 2;
    }));
    EXPECT_EQ(countIn(QStringLiteral("failed")), 1) << "the one that was suspected before";
    EXPECT_EQ(flickr.server.photos().size(), 2u);
}

TEST_F(RefusingDisk, RemovesAllOrNothing) {
    const QStringList all{QStringLiteral("1"), QStringLiteral("2")};
    const auto remove = [&] { return answerTo([&](const auto &answer) { queue.remove(all, answer); }).toInt(); };
    const auto clear = [&] { return answerTo([&](const auto &answer) { queue.clear(answer); }).toInt(); };
    start();
    flickr.server.on("upload").hang(2);
    for (const QString &message : all)
        share(message);
    ASSERT_TRUE(waitFor([&] { return flickr.server.requests().size() == 2; }));
    refuse(QStringLiteral("DELETE ON uploads WHEN old.id = 2"));
    EXPECT_EQ(remove(), 0);
    EXPECT_EQ(QDir(home.path("spool")).entryList(QDir::Files).size(), 2);
    flickr.server.release();
    EXPECT_TRUE(waitFor([&] { return countIn(QStringLiteral("done")) == 2; })) << "both went on";
    EXPECT_EQ(remove(), 0);
    EXPECT_EQ(clear(), 0);
    refuseNothing();
    EXPECT_EQ(clear(), 2);
    EXPECT_EQ(countIn(QStringLiteral("done")), 0);
    EXPECT_TRUE(QDir(home.path("spool")).isEmpty());
}

TEST_F(Queue, BeginsNothingOnACellularNetworkThatMayNotBeUsed) {
    home.file("config/korvane/preferences/com.zorvex.korvane.json", R"({"UploadsOverCellular": false})");
    {
        const DefaultRoute modem("wwan0");
        start();
        share();
        ASSERT_TRUE(waitFor([&] { return countIn(QStringLiteral("queued")) == 1; }));
        queue.wake();
        EXPECT_EQ(countIn(QStringLiteral("queued")), 1);
        EXPECT_EQ(flickr.server.requests().size(), 0U);
    }
    queue.networkReturned();
    EXPECT_TRUE(waitFor([&] { return countIn(QStringLiteral("done")) == 1; }));
}
