#include "Tests/StandIn/VimeoClient.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

namespace standin::test {

namespace {

QString textIn(const QJsonObject &object, const char *outer, const char *inner) {
    return object.value(QLatin1String(outer)).toObject().value(QLatin1String(inner)).toString();
}

} // namespace

class VimeoService : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.start()); }

    StandIn server;
};

TEST_F(VimeoService, TakesAVideoFromTheQuotaToThePrivacy) {
    VimeoClient client(server);
    const QByteArray bytes = video(5'000'000);
    const QJsonObject quota = client.method("upload.getQuota").value(QLatin1String("user")).toObject();
    EXPECT_EQ(quota.value(QLatin1String("hd_quota")).toString(), QStringLiteral("1"));
    EXPECT_EQ(textIn(quota, "upload_space", "free"), QStringLiteral("1000000000000"));

    const QByteArray target = client.ticket();
    const Reply first = client.chunk(target, bytes.first(2'097'152));
    EXPECT_EQ(first.status, 200);
    EXPECT_EQ(first.body, "");
    EXPECT_EQ(client.verify(target), 2'097'152);
    EXPECT_EQ(client.chunk(target, bytes.mid(2'097'152, 2'097'152), "2097152-4999999/5000000").status, 200);
    EXPECT_EQ(client.verify(target), 4'194'304);
    EXPECT_EQ(client.chunk(target, bytes.mid(4'194'304), "4194304-4999999/5000000").status, 200);
    EXPECT_EQ(client.verify(target), 5'000'000);
    const QByteArray id = textIn(client.commit(target), "ticket", "video_id").toUtf8();
    EXPECT_GT(id.toLongLong(), qint64(1) << 32);
    for (const auto &[name, parameter] :
         {std::pair<QByteArray, Parameter>{"setTitle", {"title", "Straße & <b>日本</b>"}},
          {"setDescription", {"description", "1+1=2%\r\n"}},
          {"addTags", {"tags", "sea, old town"}},
          {"addTags", {"tags", ""}},
          {"setPrivacy", {"privacy", "nobody"}}})
        EXPECT_EQ(client.method(name, {{"video_id", id}, parameter}).value(QLatin1String("stat")),
                  QStringLiteral("ok"));

    const Video stored = server.videos().at(0);
    EXPECT_EQ(stored.id, id.toLongLong());
    EXPECT_EQ(stored.sha256, QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
    EXPECT_EQ(stored.title, QStringLiteral("Straße & <b>日本</b>"));
    EXPECT_EQ(stored.tags, (QStringList{QStringLiteral("sea"), QStringLiteral("old town")}));
    EXPECT_EQ(server.protocolErrors(), QStringList());
}

} // namespace standin::test
