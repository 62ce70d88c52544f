#include "Tests/StandIn/Client.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace standin::test {

namespace {

StandInOptions keptIn(const QTemporaryDir &folder) {
    StandInOptions options;
    options.stateFolder = folder.path();
    return options;
}

void append(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write(bytes);
}

} // namespace

TEST(StandInState, SurvivesRestartsAndCrashes) {
    const QTemporaryDir folder;
    QByteArray first;
    {
        StandIn server(keptIn(folder));
        ASSERT_TRUE(server.start());
        Client client(server);
        first = photoIdIn(client.upload({{"title", "日本 \xff"}, {"tags", "a b"}}, jpeg(1000)));
        client.call("flickr.photosets.addPhoto", {{"photoset_id", "72157600000002019"}, {"photo_id", first}});
    }
    // What a crash in the middle of two uploads leaves behind.
    append(folder.path() + QStringLiteral("/journal.jsonl"), "{\"photo\":\"53000000009\",\"para");
    append(folder.path() + QStringLiteral("/incoming/7"), "half");
    append(folder.path() + QStringLiteral("/photos/53000000002"), "unknown");
    for (int restarts = 0; restarts < 2; ++restarts) {
        StandIn server(keptIn(folder));
        ASSERT_TRUE(server.start());
        const auto photos = server.photos();
        ASSERT_EQ(photos.size(), size_t(1 + restarts));
        EXPECT_EQ(photos[0].id, first.toLongLong());
        EXPECT_EQ(photos[0].parameters, (Parameters{{"title", "日本 \xef\xbf\xbd"}, {"tags", "a b"}}));
        EXPECT_EQ(photos[0].albums, QList<qint64>{72157600000002019});
        EXPECT_TRUE(Client(server).get("/photos/" + first).body == jpeg(1000));
        EXPECT_TRUE(QDir(folder.path() + QStringLiteral("/incoming")).isEmpty());
        EXPECT_EQ(QDir(folder.path() + QStringLiteral("/photos")).entryList(QDir::Files).size(), 1 + restarts);
        EXPECT_GT(photoIdIn(Client(server).upload({}, jpeg(20))).toLongLong(), photos.back().id);
    }
}

TEST(StandInState, ExplainsWhyItCannotStart) {
    const QTemporaryDir folder;
    StandIn first(keptIn(folder));
    ASSERT_TRUE(first.start());
    QString error;
    EXPECT_FALSE(StandIn(keptIn(folder)).start(&error));
    EXPECT_TRUE(error.contains(QStringLiteral("in use by another stand-in"))) << error.toStdString();

    StandInOptions samePort;
    samePort.port = first.url().section(QLatin1Char(':'), -1).toInt();
    EXPECT_FALSE(StandIn(samePort).start(&error));
    EXPECT_TRUE(error.contains(QString::number(samePort.port))) << error.toStdString();

    StandInOptions nowhere;
    nowhere.stateFolder = QStringLiteral("/dev/null/state");
    EXPECT_FALSE(StandIn(nowhere).start(&error));
    EXPECT_TRUE(error.contains(QStringLiteral("/dev/null/state"))) << error.toStdString();
}

TEST(StandInState, CountsPhotosThatItDoesNotKeep) {
    const QTemporaryDir folder;
    StandInOptions options = keptIn(folder);
    options.keepBodies = false;
    StandIn server(options);
    ASSERT_TRUE(server.start());
    EXPECT_EQ(Client(server).upload({}, jpeg(200'000)).status, 200);
    EXPECT_EQ(server.photos().at(0).bytes, 200'000);
    EXPECT_EQ(server.photos().at(0).path, QString());
    EXPECT_TRUE(QDir(folder.path() + QStringLiteral("/photos")).isEmpty());
}

} // namespace standin::test
