// The stand-in as a program: planned faults, and its state over restarts and crashes.
#include "Tests/StandIn/Client.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace standin::test {

TEST(StandIn, TakesPlansOfFaultsOverHttp) {
    StandIn server;
    ASSERT_TRUE(server.start());
    Client client(server);
    const auto plan = [&](const char *json, const httplib::Headers &headers = {}) {
        return client.post("/control/faults", headers, json, "application/json").status;
    };
    ASSERT_EQ(plan(R"([{"on":"upload","fail":503,"count":2},{"on":"upload","ok":true},
                       {"on":"upload","dropAfterBytes":50},{"on":"upload","dropBeforeAnswer":true},
                       {"on":"upload","truncate":true},
                       {"on":"login","answer":{"status":429,"type":"text/plain","body":"slow down"}}])"),
              200);
    QList<int> statuses;
    for (quint32 i = 0; i < 7; ++i)
        statuses.append(client.upload({}, jpeg(1000, i)).status);
    EXPECT_EQ(statuses, (QList<int>{503, 503, 200, 0, 0, 0, 200}));
    EXPECT_EQ(server.photos().size(), 4u) << "two are stored without a word";
    EXPECT_EQ(server.requests()[0].photoSha256.size(), 64) << "photos that were not stored are known, too";
    EXPECT_EQ(client.call("flickr.test.login").body, "slow down");

    for (const char *wrong :
         {"", "no JSON", "[1]", "{}", R"({"on":"upload"})", R"({"fail":503})", R"({"on":"upload","fail":5})",
          R"({"on":"upload","fail":503,"count":0})", R"([{"on":"upload","fail":503},{"on":"upload","fial":503}])"})
        EXPECT_EQ(plan(wrong), 400) << wrong;
    EXPECT_EQ(plan(R"({"on":"upload","fail":503})", {{"Origin", "http://evil.example"}}), 403);
    EXPECT_EQ(client.upload({}, jpeg(1000)).status, 200) << "a refused plan leaves nothing behind";
    EXPECT_EQ(plan(R"({"on":"upload","fail":503,"count":5})"), 200);
    EXPECT_EQ(plan(R"({"clear":true})"), 200);
    EXPECT_EQ(client.upload({}, jpeg(1000)).status, 200);
}

TEST(StandIn, KeepsItsStateOverRestartsAndCrashes) {
    const QTemporaryDir folder;
    const StandInOptions kept{.stateFolder = folder.path()};
    QByteArray first;
    {
        StandIn server(kept);
        ASSERT_TRUE(server.start());
        Client client(server);
        first = photoIdIn(client.upload({{"title", "日本 \xff"}, {"tags", "a b"}}, jpeg(1000)));
        client.call("flickr.photosets.addPhoto", {{"photoset_id", "72157600000002019"}, {"photo_id", first}});
    }
    // What a crash in the middle of two uploads leaves behind.
    for (const auto &[name, bytes] : {std::pair("journal.jsonl", "{\"photo\":\"53000000009\",\"para"),
                                      {"incoming/7", "half"},
                                      {"photos/53000000002", "unknown"}}) {
        QFile file(folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(bytes);
    }
    for (int restarts = 0; restarts < 2; ++restarts) {
        StandIn server(kept);
        ASSERT_TRUE(server.start());
        const auto photos = server.photos();
        ASSERT_EQ(photos.size(), size_t(1 + restarts));
        EXPECT_EQ(photos[0].id, first.toLongLong());
        EXPECT_EQ(photos[0].parameters, (Parameters{{"title", "日本 \xef\xbf\xbd"}, {"tags", "a b"}}));
        EXPECT_EQ(photos[0].albums, QList<qint64>{72157600000002019});
        EXPECT_TRUE(Client(server).get("/photos/" + first).body == jpeg(1000));
        EXPECT_TRUE(QDir(folder.filePath(QStringLiteral("incoming"))).isEmpty());
        EXPECT_EQ(QDir(folder.filePath(QStringLiteral("photos"))).entryList(QDir::Files).size(), 1 + restarts);
        EXPECT_GT(photoIdIn(Client(server).upload({}, jpeg(20))).toLongLong(), photos.back().id);
    }
}

TEST(StandIn, ExplainsWhyItCannotStart) {
    const QTemporaryDir folder;
    StandIn first({.stateFolder = folder.path()});
    ASSERT_TRUE(first.start());
    const QString port = first.url().section(QLatin1Char(':'), -1);
    const std::pair<StandInOptions, QString> cases[] = {
        {{.stateFolder = folder.path()}, QStringLiteral("in use by another stand-in")},
        {{.port = port.toInt()}, port},
        {{.stateFolder = QStringLiteral("/dev/null/state")}, QStringLiteral("/dev/null/state")},
    };
    for (const auto &[options, said] : cases) {
        QString error;
        EXPECT_FALSE(StandIn(options).start(&error));
        EXPECT_TRUE(error.contains(said)) << error.toStdString();
    }
}

} // namespace standin::test
