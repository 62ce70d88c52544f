// Photos from a client to the stand-in, in good and in bad times.
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/WireRecord.h"
#include "Tests/EndToEnd/ServiceFixture.h"

#include <QCryptographicHash>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDir>
#include <QSet>

#include <sys/mount.h>

#include <csignal>
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
        sent.insert(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
        posts.push_back(post(bytes, album));
    }
    std::optional<NSError> error;
    ASSERT_TRUE(share(posts, &error)) << error->description().toStdString();
    ASSERT_TRUE(waitForState(QStringLiteral("done"), 12));
    QSet<QByteArray> arrived;
    for (const auto &photo : flickr.server.photos()) {
        arrived.insert(photo.sha256);
        EXPECT_EQ(photo.albums, QList<qint64>{album});
    }
    EXPECT_EQ(arrived, sent);
    EXPECT_TRUE(waitFor([&] { return QDir(home.path(QStringLiteral("state/korvane/spool"))).isEmpty(); }));
}

TEST_F(Share, TheSameMessageIsTakenOnce) {
    WireRecord::registerTypes();
    const auto call = [&] {
        auto message = QDBusMessage::createMethodCall(
            QStringLiteral("com.zorvex.flickr.xpc"), QStringLiteral("/com/zorvex/flickr/xpc"),
            QStringLiteral("com.zorvex.flickr.xpc"), QStringLiteral("uploadPosts"));
        message << QStringLiteral("one-id")
                << QVariant::fromValue(QList<QVariantMap>{{{QStringLiteral("photoData"), jpegOfSize(500)}}})
                << QVariant::fromValue(QList<QDBusUnixFileDescriptor>());
        return connection().call(message).arguments().value(0).toBool();
    };
    EXPECT_TRUE(call());
    EXPECT_TRUE(call());
    killService(SIGKILL);
    EXPECT_TRUE(call());
    EXPECT_EQ(uploads().size(), 1);
    EXPECT_EQ(ask(QStringLiteral("OfMessage"), {QStringLiteral("one-id")}).toStringList().size(), 1);
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
    const QByteArray path = home.file(QStringLiteral("changing.jpg"), jpegOfSize(100));
    changing->assetURL = NSURL::fileURLWithPath(path);
    ask(QStringLiteral("Pause"));
    ASSERT_TRUE(share({nothing, missing, post(""), outside, changing, post(jpegOfSize(100))}));
    home.file(QStringLiteral("changing.jpg"), jpegOfSize(200, 9));
    ask(QStringLiteral("Resume"));
    ASSERT_TRUE(waitForState(QStringLiteral("done"), 1));
    ASSERT_TRUE(waitForState(QStringLiteral("failed"), 5));
    const char *const words[] = {"no photo", "/nowhere/photo.jpg", "empty", "library", "changed"};
    const auto all = uploads();
    for (int i = 0; i < 5; ++i) {
        const auto error = qdbus_cast<QVariantMap>(all[i].value(QStringLiteral("error")));
        const QString text = error.value(QStringLiteral("description")).toString();
        EXPECT_TRUE(text.contains(QLatin1String(words[i]))) << text.toStdString();
    }
    EXPECT_FALSE(log().contains(QStringLiteral("Assertion")));
}

TEST_F(Share, WaitsForTheWebServiceAndComesBack) {
    flickr.server.stop();
    ASSERT_TRUE(share({post(jpegOfSize(5000))}));
    ASSERT_TRUE(waitForState(QStringLiteral("waiting"), 1));
    EXPECT_EQ(uploads()[0].value(QStringLiteral("waitingFor")), QStringLiteral("network"));
    ASSERT_TRUE(flickr.server.start());
    EXPECT_TRUE(waitForState(QStringLiteral("done"), 1));

    flickr.server.on("upload").fail(503, 2).thenOk();
    ASSERT_TRUE(share({post(jpegOfSize(5000))}));
    EXPECT_TRUE(waitForState(QStringLiteral("done"), 2));

    // The upload is answered, the album is not: only the album is asked for again.
    flickr.server.on("addPhoto").fail(500, 1);
    ASSERT_TRUE(share({post(jpegOfSize(6000), flickr.server.albums()[0].id)}));
    EXPECT_TRUE(waitForState(QStringLiteral("done"), 3));
    EXPECT_EQ(flickr.server.photos().size(), 3u);
    EXPECT_EQ(flickr.server.photos()[2].albums.size(), 1);
}

TEST_F(Share, FinalRefusalsFailAtOnceAndRetryBringsThemBack) {
    flickr.server.on("upload").answer(401, "text/plain", "oauth_problem=token_rejected");
    ASSERT_TRUE(share({post(jpegOfSize(5000))}));
    ASSERT_TRUE(waitForState(QStringLiteral("failed"), 1));
    const auto upload = uploads()[0];
    EXPECT_EQ(upload.value(QStringLiteral("attempts")).toLongLong(), 1);
    const auto retried = ask(QStringLiteral("Retry"),
                             {QStringList{upload.value(QStringLiteral("id")).toString(), QStringLiteral("999")}});
    EXPECT_EQ(retried.toUInt(), 1u);
    EXPECT_TRUE(waitForState(QStringLiteral("done"), 1));
    EXPECT_EQ(ask(QStringLiteral("Clear")).toUInt(), 1u);
    EXPECT_TRUE(uploads().isEmpty());
}

TEST_F(Share, PauseStopsWhatRunsAndRemovalForgetsIt) {
    flickr.server.on("upload").hang(3);
    std::vector<std::shared_ptr<FlickrPost>> posts;
    for (quint32 i = 0; i < 4; ++i)
        posts.push_back(post(jpegOfSize(100'000, i)));
    ASSERT_TRUE(share(posts));
    ASSERT_TRUE(waitForState(QStringLiteral("running"), 3));
    ASSERT_TRUE(waitFor([&] { return flickr.server.requests().size() == 3; }));
    ask(QStringLiteral("Pause"));
    ASSERT_TRUE(waitForState(QStringLiteral("queued"), 4));
    killService(SIGTERM);
    EXPECT_EQ(countInState(QStringLiteral("queued")), 4) << "a pause outlives the service";

    flickr.server.clearFaults();
    flickr.server.on("upload").hang(1);
    ask(QStringLiteral("Resume"));
    ASSERT_TRUE(waitForState(QStringLiteral("done"), 3));
    ASSERT_TRUE(waitForState(QStringLiteral("running"), 1));
    QStringList ids;
    for (const auto &upload : uploads())
        ids.append(upload.value(QStringLiteral("id")).toString());
    EXPECT_EQ(ask(QStringLiteral("Remove"), {ids}).toUInt(), 4u);
    EXPECT_TRUE(waitFor([&] { return uploads().isEmpty(); }));
    EXPECT_EQ(flickr.server.photos().size(), 3u);
    EXPECT_TRUE(QDir(home.path(QStringLiteral("state/korvane/spool"))).isEmpty());
}

TEST_F(Share, GoesToTheAccountThatWasInUseAndWaitsForOneWhereThereIsNone) {
    ACAccountStore store;
    ASSERT_TRUE(store.removeAccount(flickr.account->identifier()));
    ASSERT_TRUE(share({post(jpegOfSize(5000))}));
    ASSERT_TRUE(waitForState(QStringLiteral("waiting"), 1));
    EXPECT_EQ(uploads()[0].value(QStringLiteral("waitingFor")), QStringLiteral("sign-in"));
    const StandInAccount again(home);
    home.setEnvironment("KORVANE_FLICKR_URL", QByteArray::fromStdString(flickr.server.url().toStdString()));
    EXPECT_TRUE(waitForState(QStringLiteral("done"), 1));

    ask(QStringLiteral("Pause"));
    ASSERT_TRUE(share({post(jpegOfSize(5000, 2))}));
    store.saveAccount(flickr.account->accountType(), QStringLiteral("stranger"),
                      {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")});
    ask(QStringLiteral("Resume"));
    EXPECT_TRUE(waitForState(QStringLiteral("done"), 2)) << "the account added later is not the one it was shared from";
}

TEST_F(Share, RefusesAServiceWithOtherSettingsAndNamesTheDifference) {
    startService();
    home.setEnvironment("KORVANE_FLICKR_URL", "http://127.0.0.1:9");
    std::optional<NSError> error;
    EXPECT_FALSE(share({post(jpegOfSize(100))}, &error));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code(), RemoteServiceErrorOtherSettings);
    EXPECT_TRUE(error->localizedDescription().contains(QStringLiteral("http://127.0.0.1:9")))
        << error->localizedDescription().toStdString();
}

TEST_F(Share, AlwaysAnswersAlsoWithoutServiceBusOrPosts) {
    std::optional<NSError> error;
    EXPECT_FALSE(share({}, &error));
    EXPECT_EQ(error->code(), RemoteServiceErrorNothingToShare);

    flickr.server.on("upload").hang(1);
    ASSERT_TRUE(share({post(jpegOfSize(100))}));
    disconnect();
    stopBus();
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
    const QString spool = home.path(QStringLiteral("state/korvane"));
    QDir().mkpath(spool);
    if (::mount("none", QFile::encodeName(spool).constData(), "tmpfs", 0, "size=2m") != 0)
        GTEST_SKIP() << "needs the right to mount a small disk";
    std::optional<NSError> error;
    std::vector<std::shared_ptr<FlickrPost>> posts;
    for (quint32 i = 0; i < 8; ++i)
        posts.push_back(post(jpegOfSize(500'000, i)));
    EXPECT_FALSE(share(posts, &error));
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->localizedDescription().contains(QStringLiteral("No space")))
        << error->localizedDescription().toStdString();
    EXPECT_TRUE(uploads().isEmpty());
    EXPECT_TRUE(share({post(jpegOfSize(300'000))}, &error));
    EXPECT_TRUE(waitForState(QStringLiteral("done"), 1));
    killService(SIGTERM);
    ::umount2(QFile::encodeName(spool).constData(), MNT_DETACH);
}
