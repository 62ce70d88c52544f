#include "Tests/StandIn/VimeoClient.h"

#include <QDir>
#include <QFile>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace standin::test {

namespace {

void append(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write(bytes);
}

} // namespace

TEST(StandInVideos, GoOnAfterARestartInTheMiddle) {
    const QTemporaryDir folder;
    const StandInOptions options{.stateFolder = folder.path()};
    const QByteArray bytes = video(3'000'000);
    QByteArray target;
    {
        StandIn server(options);
        ASSERT_TRUE(server.start());
        VimeoClient client(server);
        target = client.ticket();
        client.chunk(target, bytes.first(1'000'000));
        client.chunk(target, bytes.mid(1'000'000, 500'000), "1000000-2999999/3000000");
        client.chunk(target, bytes.mid(900'000, 100'000), "900000-2999999/3000000");
        VimeoClient(server).chunk(target, "A", "9-9/10");
    }
    // What a crash in the middle of the next chunk leaves behind.
    append(folder.path() + QStringLiteral("/videos/") + QString::fromLatin1(target.mid(18)), bytes.mid(1'000'000, 77));
    append(folder.path() + QStringLiteral("/videos.jsonl"), "{\"ticketId\":\"" + target.mid(18) + "\",\"oper");
    append(folder.path() + QStringLiteral("/videos/00000000000000000000000000000000"), "unknown");
    QByteArray before;
    {
        StandIn server(options);
        ASSERT_TRUE(server.start());
        VimeoClient client(server);
        EXPECT_EQ(client.verify(target), 1'000'077);
        EXPECT_EQ(server.protocolErrors().size(), 1);
        EXPECT_EQ(VimeoClient(server).chunk(target, "A", "0-1999999/2000000").status, 400) << "it was larger before";
        EXPECT_EQ(client.chunk(target, bytes.mid(1'000'077), "1000077-2999999/3000000").status, 200);
        const QByteArray id =
            client.commit(target)[QLatin1String("ticket")][QLatin1String("video_id")].toString().toUtf8();
        client.method("setTitle", {{"video_id", id}, {"title", "日本"}});
        client.method("addTags", {{"video_id", id}, {"tags", "a, b c"}});
        EXPECT_TRUE(client.get("/videos/" + id).body == bytes);
        before = client.get("/api/state").body;
        EXPECT_TRUE(before.contains("1000077-2999999/3000000"));
        EXPECT_TRUE(before.contains("\"tags\":[\"a\",\"b c\"]"));
    }
    StandIn server(options);
    ASSERT_TRUE(server.start());
    VimeoClient client(server);
    QByteArray after = client.get("/api/state").body;
    EXPECT_EQ(after.left(after.indexOf(",\"revision\"")), before.left(before.indexOf(",\"revision\"")));
    EXPECT_EQ(after.mid(after.indexOf(",\"videos\"")), before.mid(before.indexOf(",\"videos\"")));
    EXPECT_EQ(QDir(folder.path() + QStringLiteral("/videos")).entryList(QDir::Files),
              QStringList(QString::fromLatin1(target.mid(18))));
    const QByteArray next = client.ticket();
    client.chunk(next, video(10));
    client.commit(next);
    EXPECT_GT(server.videos().at(1).id, server.videos().at(0).id);
}

TEST(StandInVideos, AreCountedWhenTheyAreNotKept) {
    const QTemporaryDir folder;
    const StandInOptions options{.stateFolder = folder.path(), .keepBodies = false};
    QByteArray target;
    {
        StandIn server(options);
        ASSERT_TRUE(server.start());
        VimeoClient client(server);
        target = client.ticket();
        client.chunk(target, video(100'000));
    }
    StandIn server(options);
    ASSERT_TRUE(server.start());
    VimeoClient client(server);
    EXPECT_EQ(client.verify(target), 100'000);
    EXPECT_EQ(client.chunk(target, video(50'000), "60000-109999/110000").status, 200);
    EXPECT_TRUE(client.commit(target).toObject().contains(QStringLiteral("ticket")));
    EXPECT_EQ(server.videos().at(0).bytesStored, 110'000);
    EXPECT_EQ(server.videos().at(0).sha256, "");
    EXPECT_TRUE(QDir(folder.path() + QStringLiteral("/videos")).isEmpty());
    EXPECT_TRUE(client.get("/").body.contains("not kept"));
}

} // namespace standin::test
