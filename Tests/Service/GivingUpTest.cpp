// Uploads that fail again and again.
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Service/UploadQueue.h"
#include "Tests/Support/StandInAccount.h"
#include "Tests/Support/Testing.h"

#include <mutex>

using namespace korvane;
using namespace korvane::test;

namespace {

constexpr qint64 patience = 300; // milliseconds

// A queue whose web service cannot be reached.
class HopelessUpload : public ::testing::Test {
protected:
    void SetUp() override {
        flickr.server.stop();
        ASSERT_TRUE(queue.open(false, nullptr));
        queue.setAccountStore(std::make_shared<ACAccountStore>());
        queue.start();
    }

    void share() {
        queue.takeOver(flickrServiceID, {QVariantMap{{QStringLiteral("photoData"), jpegOfSize(500)}}},
                       {QStringLiteral("message"), nullptr},
                       [](const auto &taken, const auto &) { EXPECT_TRUE(*taken); });
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
    QStringList states; // that the one upload has gone through, and
    QVariantMap last;   // what it is like now
    UploadQueue queue{
        home.path(), {{1, 20}, patience}, {[this](const QVariantMap &upload) { changed(upload); }, {}, {}, {}}};
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
