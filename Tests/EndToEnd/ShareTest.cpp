// Photos from a client to the stand-in, in good and in bad times.
#include "Platform/Social/RemoteServiceError.h"
#include "Tests/EndToEnd/ServiceHarness.h"

#include <QDBusPendingCall>
#include <QSet>

#include <sys/mount.h>

#include <future>

using namespace korvane;
using namespace korvane::test;

using Share = ServiceTest;

TEST_F(Share, ABatchArrivesWholeInItsAlbumAndLeavesNothingBehind) {
    const qint64 album = flickr.server.albums()[0].id;
    std::vector<std::shared_ptr<FlickrPost>> posts;
    QSet<QByteArray> sent;
    for (quint32 i = 0; i < 12; ++i) {
        const QByteArray bytes = jpegOfSize(i % 2 ? 1000 : 200'000, i);
        sent.insert(sha256Of(bytes));
        posts.push_back(post(bytes, album));
    }
    ASSERT_TRUE(share(posts));
    ASSERT_TRUE(waitForState("done", 12));
    for (const auto &photo : flickr.server.photos()) {
        EXPECT_TRUE(sent.remove(photo.sha256));
        EXPECT_EQ(photo.albums, QList<qint64>{album});
    }
    EXPECT_TRUE(sent.isEmpty()) << "all have arrived";
    EXPECT_TRUE(waitFor([&] { return QDir(home.path("state/korvane/spool")).isEmpty(); }));
}

TEST_F(Share, TheSameMessageIsTakenOnce) {
    const auto records = QVariant::fromValue(QList<QVariantMap>{{{QStringLiteral("photoData"), jpegOfSize(500)}}});
    const auto isTaken = [&] { return handOver(QStringLiteral("one-id"), records).arguments().value(0).toBool(); };
    EXPECT_TRUE(isTaken());
    EXPECT_TRUE(isTaken());
    killService(SIGKILL);
    EXPECT_TRUE(isTaken());
    EXPECT_EQ(uploads().size(), 1);
    EXPECT_EQ(ask("OfMessage", {QStringLiteral("one-id")}).toStringList().size(), 1);
}

TEST_F(Share, AReplyThatIsLostTimeAndAgainNeverTakesTheDataTwice) {
    // The service dies at ever later moments of taking over data that travels in a file; the client asks again by
    // itself.
    flickr.server.on("upload").hang(1000);
    const auto photo = post(jpegOfSize(3'000'000));
    int answered = 0;
    constexpr int tries = 60;
    for (int microseconds = 0; microseconds < tries * 300; microseconds += 300) {
        startService();
        auto handOver = std::async(std::launch::async, [&] { return share({photo}); });
        QThread::usleep(microseconds);
        killService(SIGKILL);
        answered += handOver.get();
        startService();
        ASSERT_EQ(uploads().size(), answered) << "killed after " << microseconds << " microseconds";
    }
    EXPECT_EQ(answered, tries);
}

TEST_F(Share, PostsThatCannotBeUploadedFailWithWordsAndStopNothing) {
    const auto nothing = FlickrPost::init();
    const auto missing = FlickrPost::init();
    missing->assetURL = NSURL::fileURLWithPath("/nowhere/photo.jpg");
    const auto outside = FlickrPost::init();
    outside->assetURL = NSURL::URLWithString(
        QStringLiteral("assets-library://asset/asset.PNG?id=pictures%2F..%2F..%2F..%2Fetc%2Fpasswd&ext=PNG"));
    const auto changing = FlickrPost::init();
    changing->assetURL = NSURL::fileURLWithPath(home.file("changing.jpg", jpegOfSize(100)));
    ask("Pause");
    ASSERT_TRUE(share({nothing, missing, post(""), outside, changing, post(jpegOfSize(100))}));
    home.file("changing.jpg", jpegOfSize(200, 9));
    ask("Resume");
    ASSERT_TRUE(waitForState("done", 1));
    ASSERT_TRUE(waitForState("failed", 5));
    const char *const words[] = {"no photo", "/nowhere/photo.jpg", "empty", "library", "changed"};
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(says(errorOf(i), words[i]));
    EXPECT_FALSE(log().contains(QStringLiteral("Assertion")));
}

TEST_F(Share, WaitsForTheWebServiceAndComesBack) {
    flickr.server.stop();
    ASSERT_TRUE(share({post(jpegOfSize(5000))}));
    ASSERT_TRUE(waitForState("waiting", 1));
    EXPECT_EQ(valueOf(0, "waitingFor"), QStringLiteral("network"));
    ASSERT_TRUE(flickr.server.start());
    EXPECT_TRUE(waitForState("done", 1));

    flickr.server.on("upload").fail(503, 2).thenOk();
    ASSERT_TRUE(share({post(jpegOfSize(5000))}));
    EXPECT_TRUE(waitForState("done", 2));

    // The upload is answered, the album is not: only the album is asked for again.
    flickr.server.on("addPhoto").fail(500, 1);
    ASSERT_TRUE(share({post(jpegOfSize(6000), flickr.server.albums()[0].id)}));
    EXPECT_TRUE(waitForState("done", 3));
    EXPECT_EQ(flickr.server.photos().size(), 3u);
    EXPECT_EQ(flickr.server.photos()[2].albums.size(), 1);
}

TEST_F(Share, FinalRefusalsFailAtOnceAndRetryBringsThemBack) {
    flickr.server.on("upload").answer(401, "text/plain", "oauth_problem=token_rejected");
    ASSERT_TRUE(share({post(jpegOfSize(5000))}));
    ASSERT_TRUE(waitForState("failed", 1));
    EXPECT_EQ(valueOf(0, "attempts"), QStringLiteral("1"));
    EXPECT_EQ(ask("Retry", {QStringList{valueOf(0, "id"), QStringLiteral("999")}}).toUInt(), 1u);
    EXPECT_TRUE(waitForState("done", 1));
    EXPECT_EQ(ask("Clear").toUInt(), 1u);
    EXPECT_TRUE(uploads().isEmpty());
}

TEST_F(Share, PauseStopsWhatRunsAndRemovalForgetsIt) {
    flickr.server.on("upload").hang(3);
    ASSERT_TRUE(share({post(jpegOfSize(100'000, 1)), post(jpegOfSize(100'000, 2)), post(jpegOfSize(100'000, 3)),
                       post(jpegOfSize(100'000, 4))}));
    ASSERT_TRUE(waitForState("running", 3));
    ASSERT_TRUE(waitFor([&] { return flickr.server.requests().size() == 3; }));
    ask("Pause");
    ASSERT_TRUE(waitForState("queued", 4));
    killService(SIGTERM);
    EXPECT_EQ(countInState("queued"), 4) << "a pause outlives the service";

    flickr.server.clearFaults();
    flickr.server.on("upload").hang(1);
    ask("Resume");
    ASSERT_TRUE(waitForState("done", 3));
    ASSERT_TRUE(waitForState("running", 1));
    const QStringList ids{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4")};
    EXPECT_EQ(ask("Remove", {ids}).toUInt(), 4u);
    EXPECT_TRUE(waitFor([&] { return uploads().isEmpty(); }));
    EXPECT_EQ(flickr.server.photos().size(), 3u);
    EXPECT_TRUE(QDir(home.path("state/korvane/spool")).isEmpty());
}

TEST_F(Share, GoesToTheAccountThatWasInUseAndWaitsForOneWhereThereIsNone) {
    ACAccountStore store;
    ASSERT_TRUE(store.removeAccount(flickr.account->identifier()));
    ASSERT_TRUE(share({post(jpegOfSize(5000))}));
    ASSERT_TRUE(waitForState("waiting", 1));
    const auto waitsForSomethingElse = [&] { return valueOf(0, "waitingFor") != QStringLiteral("sign-in"); };
    EXPECT_FALSE(waitFor(waitsForSomethingElse, 600)) << "also when it is looked again";
    const StandInAccount again(home);
    for (const char *host : {"KORVANE_FLICKR_URL", "KORVANE_VIMEO_URL"})
        home.setEnvironment(host, flickr.server.url().toUtf8());
    EXPECT_TRUE(waitForState("done", 1));

    ask("Pause");
    ASSERT_TRUE(share({post(jpegOfSize(5000, 2))}));
    store.saveAccount(flickr.account->accountType(), QStringLiteral("stranger"),
                      {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")});
    ask("Resume");
    EXPECT_TRUE(waitForState("done", 2)) << "the account added later is not the one it was shared from";
}

TEST_F(Share, RefusesAServiceWithOtherSettingsAndNamesTheDifference) {
    startService();
    home.setEnvironment("KORVANE_FLICKR_URL", "http://127.0.0.1:9");
    std::optional<NSError> error;
    EXPECT_FALSE(share({post(jpegOfSize(100))}, &error));
    ASSERT_TRUE(says(error, "http://127.0.0.1:9"));
    EXPECT_EQ(error->code(), RemoteServiceErrorOtherSettings);
}

TEST_F(Share, AlwaysAnswersAlsoWithoutServiceBusOrPosts) {
    std::optional<NSError> error;
    EXPECT_FALSE(share({}, &error));
    EXPECT_EQ(error->code(), RemoteServiceErrorNothingToShare);

    flickr.server.on("upload").hang(1);
    ASSERT_TRUE(share({post(jpegOfSize(100))}));
    bus.reset();
    EXPECT_FALSE(share({post(jpegOfSize(100))}, &error));
    EXPECT_EQ(error->code(), RemoteServiceErrorUnreachable);
}

TEST_F(Share, TwoServicesAtOnceAreOne) {
    startService();
    const qint64 first = servicePid();
    QProcess second;
    second.start(QStringLiteral(KORVANE_UPLOADD), {});
    ASSERT_TRUE(second.waitForFinished(20'000));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(servicePid(), first);
}

TEST_F(Share, AFullDiskRefusesTheWholeBatch) {
    const QString spool = home.path("state/korvane");
    QDir().mkpath(spool);
    if (::mount("none", QFile::encodeName(spool).constData(), "tmpfs", 0, "size=2m") != 0)
        GTEST_SKIP() << "needs the right to mount a small disk";
    std::optional<NSError> error;
    EXPECT_FALSE(share(std::vector(8, post(jpegOfSize(500'000))), &error));
    EXPECT_TRUE(says(error, "No space"));
    EXPECT_TRUE(uploads().isEmpty());
    EXPECT_TRUE(share({post(jpegOfSize(300'000))}, &error));
    EXPECT_TRUE(waitForState("done", 1));
    killService(SIGTERM);
    ::umount2(QFile::encodeName(spool).constData(), MNT_DETACH);
}

TEST_F(Share, AServiceThatHangsIsGivenUpAndTakesNothingAfterwards) {
    startService();
    const auto service = pid_t(servicePid());
    ::kill(service, SIGSTOP);
    const QString stranger = QStringLiteral("stranger");
    const QVariantMap record{{QStringLiteral("photoData"), jpegOfSize(100)}};
    QDBusConnection::connectToBus(busAddress, stranger)
        .asyncCall(handOverMessage(QStringLiteral("1"), QVariant::fromValue(QList<QVariantMap>{record})));
    QDBusConnection::disconnectFromBus(stranger);
    std::optional<NSError> error;
    EXPECT_FALSE(share({post(jpegOfSize(100))}, &error));
    ASSERT_TRUE(says(error, "does not answer"));
    ::kill(service, SIGCONT);
    EXPECT_TRUE(waitFor([this] { return log().contains(QStringLiteral("its sender is gone")); }));
    EXPECT_TRUE(uploads().isEmpty());
    EXPECT_TRUE(share({post(jpegOfSize(100))}));
}
