#include "Tests/StandIn/VimeoClient.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace standin::test {

namespace {

constexpr qsizetype Largest = 2'097'152;

QByteArray sha256Of(const QByteArray &bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray videoIdIn(const QJsonValue &answer) {
    return answer[QLatin1String("ticket")][QLatin1String("video_id")].toString().toUtf8();
}

QByteArray codeIn(const QJsonValue &answer) {
    return answer[QLatin1String("err")][QLatin1String("code")].toString().toUtf8();
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
    const auto user = client.method("upload.getQuota")[QLatin1String("user")];
    EXPECT_EQ(user[QLatin1String("hd_quota")].toString(), QStringLiteral("1"));
    EXPECT_EQ(user[QLatin1String("upload_space")][QLatin1String("free")].toString(), QStringLiteral("1000000000000"));

    const QByteArray target = client.ticket();
    const RawReply first = client.chunk(target, bytes.first(Largest));
    EXPECT_EQ(first.status, 200);
    EXPECT_EQ(first.body, "");
    EXPECT_EQ(client.verify(target), Largest);
    EXPECT_EQ(client.chunk(target, bytes.mid(Largest, Largest), "2097152-4999999/5000000").status, 200);
    EXPECT_EQ(client.verify(target), 2 * Largest);
    EXPECT_EQ(client.chunk(target, bytes.mid(2 * Largest), "4194304-4999999/5000000").status, 200);
    EXPECT_EQ(client.verify(target), 5'000'000);
    const QByteArray id = videoIdIn(client.commit(target));
    EXPECT_GT(id.toLongLong(), qint64(1) << 32);
    const std::pair<QByteArray, Parameter> settings[] = {{"setTitle", {"title", "Straße & <b>日本</b>"}},
                                                         {"setDescription", {"description", "1+1=2%\r\n"}},
                                                         {"addTags", {"tags", "sea, old town"}},
                                                         {"addTags", {"tags", "hill,sea ,"}},
                                                         {"setPrivacy", {"privacy", "nobody"}}};
    for (const auto &[name, parameter] : settings)
        EXPECT_EQ(client.method(name, {{"video_id", id}, parameter})[QLatin1String("stat")], QStringLiteral("ok"));
    EXPECT_EQ(server.protocolErrors(), QStringList());

    const auto requests = server.requests();
    ASSERT_EQ(requests.size(), 14u);
    EXPECT_EQ(requests[4].operation, "chunk");
    EXPECT_EQ(requests[4].bodyBytes, Largest);
    EXPECT_TRUE(requests[4].headers.contains(Parameter("Content-Range", "bytes 2097152-4999999/5000000")));

    const QJsonObject state = QJsonDocument::fromJson(client.get("/api/state").body).object();
    QJsonObject stored = state[QLatin1String("videos")].toArray().at(0).toObject();
    EXPECT_FALSE(stored.take(QStringLiteral("createdAt")).toString().isEmpty());
    EXPECT_FALSE(stored.take(QStringLiteral("committedAt")).toString().isEmpty());
    EXPECT_EQ(QJsonDocument(stored).toJson(QJsonDocument::Compact),
              R"({"bytesAnnounced":5000000,"bytesReceived":5000000,"bytesStored":5000000,"chunks":[)"
              R"({"contentRange":null,"length":2097152,"received":2097152,"start":0,"stored":2097152},)"
              R"({"contentRange":"bytes 2097152-4999999/5000000","length":2097152,"received":2097152,)"
              R"("start":2097152,"stored":2097152},)"
              R"({"contentRange":"bytes 4194304-4999999/5000000","length":805696,"received":805696,)"
              R"("start":4194304,"stored":805696}],"commits":1,"description":"1+1=2%\r\n","endpointHits":6,)"
              R"("filename":"video.mp4","operations":["chunk","verify","chunk","verify","chunk","verify","complete",)"
              R"("setTitle","setDescription","addTags","addTags","setPrivacy"],"privacy":"nobody","sha256":")" +
                  sha256Of(bytes) + R"(","tags":["sea","old town","hill"],"ticketId":")" + target.mid(18) +
                  R"(","title":"Straße & <b>日本</b>","totalBytes":5000000,"videoId":")" + id + R"("})");
    const QJsonValue left = client.method("upload.getQuota")[QLatin1String("user")][QLatin1String("upload_space")];
    EXPECT_EQ(QJsonDocument(left.toObject()).toJson(QJsonDocument::Compact),
              R"({"free":"999995000000","max":"1000000000000","used":"5000000"})");
}

// Every case begins with 200 of 1000 bytes stored.
TEST_F(VimeoService, ReadsChunksStrictly) {
    struct Case {
        QByteArray headers;
        qsizetype bodyBytes;
        qint64 stored; // afterwards; -1: the chunk is refused
    };
    const QByteArray mp4("Content-Type: video/mp4\r\n");
    const Case cases[] = {
        {mp4 + "Content-Range: bytes 200-999/1000\r\n", 10, 210},
        {mp4 + "Content-Range: bytes 50-999/1000\r\n", 10, 60},
        {mp4 + "content-range: bytes 0-999/1000\r\n", 1000, 1000},
        {mp4, 10, 10},
        {mp4 + "Content-Range: bytes 201-999/1000\r\n", 10, -1},
        {mp4 + "Content-Range: bytes 200-209/1000\r\n", 10, -1},
        {mp4 + "Content-Range: bytes 200-1000/1001\r\n", 10, -1},
        {mp4 + "Content-Range: bytes 200-999/1000\r\n", 801, -1},
        {mp4, 1001, -1},
        {mp4 + "Content-Range: bytes=200-999/1000\r\n", 10, -1},
        {mp4 + "Content-Range: bytes 200-999/*\r\n", 10, -1},
        {mp4 + "Content-Range: bytes +200-999/1000\r\n", 10, -1},
        {mp4 + "Content-Range: bytes 200-999/1000\r\nContent-Range: bytes 200-999/1000\r\n", 10, -1},
        {mp4 + mp4, 10, -1},
        {mp4 + "Content-Length: 10\r\n", 10, -1},
        {mp4 + "Transfer-Encoding: chunked\r\n", 10, -1},
        {"Content-Type: video/mpeg\r\n", 10, -1},
        {"", 10, -1},
        {mp4, 0, -1},
        {mp4, Largest + 1, -1},
        {"Content-Range: bytes */*\r\n", 10, -1},
        {"Content-Range: bytes */1000\r\n", 0, -1},
        {"Content-Range: bytes */*\r\nContent-Range: bytes */*\r\n", 0, -1},
    };
    qsizetype refused = 0;
    for (const Case &test : cases) {
        VimeoClient client(server);
        const QByteArray target = client.ticket();
        client.chunk(target, video(100));
        ASSERT_EQ(client.chunk(target, video(100), "100-999/1000").status, 200);
        const RawReply reply = client.put(target, test.headers, video(test.bodyBytes, 2));
        EXPECT_EQ(reply.status, test.stored < 0 ? 400 : 200) << test.headers.toStdString() << test.bodyBytes;
        EXPECT_EQ(VimeoClient(server).verify(target), test.stored < 0 ? 200 : test.stored)
            << test.headers.toStdString();
        if (test.stored < 0 && test.bodyBytes > 0) {
            EXPECT_EQ(client.read().status, 0) << "a body is not taken for a request";
        }
        refused += test.stored < 0;
        EXPECT_EQ(server.protocolErrors().size(), refused) << test.headers.toStdString();
    }
    EXPECT_TRUE(server.protocolErrors().at(0).contains(QStringLiteral("but only 200 are stored")));
    EXPECT_EQ(VimeoClient(server).verify("/upload?ticket_id=0"), -1);
    EXPECT_EQ(VimeoClient(server).post("/upload", {}, {}).status, 400);
    EXPECT_EQ(server.protocolErrors().size(), refused + 2);
}

TEST_F(VimeoService, AnswersErrorsAsJson) {
    VimeoClient client(server);
    const QByteArray target = client.ticket();
    client.chunk(target, video(100));
    client.chunk(target, video(100), "100-999/1000");
    const QByteArray other = client.ticket();
    client.chunk(other, video(10));
    const QByteArray id = videoIdIn(client.commit(other));
    const struct {
        QByteArray method;
        Parameters parameters;
        QByteArray code;
    } cases[] = {
        {"upload.getTicket", {}, "3"},
        {"upload.getTicket", {{"upload_method", "post"}}, "3"},
        {"upload.complete", {{"ticket_id", target.mid(18)}}, "3"},
        {"upload.complete", {{"ticket_id", "0"}, {"filename", "a"}}, "701"},
        {"upload.complete", {{"ticket_id", other.mid(18)}, {"filename", "a"}}, "702"},
        {"upload.complete", {{"ticket_id", target.mid(18)}, {"filename", "a"}}, "703"},
        {"setTitle", {{"video_id", "0"}, {"title", "A"}}, "1"},
        {"setTitle", {{"video_id", StandIn::foreignVideoId()}, {"title", "A"}}, "2"},
        {"setTitle", {{"video_id", id}}, "3"},
        {"setPrivacy", {{"video_id", id}, {"privacy", "friends"}}, "3"},
        {"setHeight", {{"video_id", id}}, "112"},
    };
    for (const auto &[method, parameters, code] : cases) {
        const QJsonValue answer = client.method(method, parameters);
        EXPECT_EQ(codeIn(answer), code) << method.toStdString();
        EXPECT_EQ(answer[QLatin1String("stat")], QStringLiteral("fail"));
    }
    EXPECT_EQ(server.videos().at(0).commits(), 2);
    EXPECT_EQ(server.protocolErrors(), QStringList());
    EXPECT_EQ(client.chunk(other, video(10)).status, 400) << "a committed video does not change";
}

TEST_F(VimeoService, WantsEverythingInTheFormOnce) {
    const Parameters quota{{"method", "vimeo.videos.upload.getQuota"}};
    EXPECT_EQ(VimeoClient(server).rest(quota).status, 200);
    EXPECT_EQ(VimeoClient(server).rest(quota, "").status, 400);
    EXPECT_EQ(VimeoClient(server).rest(quota, "format=json&method=vimeo.videos.upload.getQuota").status, 400);
    EXPECT_EQ(VimeoClient(server).rest(quota + quota).status, 400);
    EXPECT_EQ(VimeoClient(server)
                  .post("/api/rest/v2?format=json", "Content-Type: multipart/form-data; boundary=BOUNDARY\r\n",
                        "--BOUNDARY\r\nContent-Disposition: form-data; name=\"method\"\r\n\r\nx\r\n--BOUNDARY--\r\n")
                  .status,
              400);
    EXPECT_EQ(server.protocolErrors().size(), 4);
}

TEST_F(VimeoService, ChecksSignaturesOfFormAndEndpoint) {
    VimeoClient client(server);
    const QByteArray target = client.ticket();
    const QByteArray rest("/api/rest/v2?format=json");
    const auto signedBy = [&](const QByteArray &authorization) {
        return client.post(rest, authorization + "Content-Type: application/x-www-form-urlencoded\r\n",
                           "method=vimeo.videos.upload.getQuota");
    };
    const QByteArray good = client.signedAs("POST", rest, {{"method", "vimeo.videos.upload.getQuota"}});
    EXPECT_EQ(signedBy(good).status, 200);
    for (const QByteArray &bad : {good, client.signedAs("POST", rest), QByteArray()}) {
        const RawReply reply = signedBy(bad);
        EXPECT_EQ(reply.status, 401);
        EXPECT_EQ(codeIn(QJsonDocument::fromJson(reply.body).object()), "401");
    }
    QByteArray chunk = "PUT " + target + " HTTP/1.1\r\nHost: " + client.host() + "\r\n" +
                       client.signedAs("PUT", "/upload") + "Content-Type: video/mp4\r\nContent-Length: 1\r\n\r\nA";
    EXPECT_EQ(client.send(chunk).status, 401) << "the ticket is signed, too";
    EXPECT_EQ(VimeoClient(server).verify(target), 0);
    EXPECT_EQ(server.protocolErrors(), QStringList());
}

TEST_F(VimeoService, ForgetsAChunkThatANewerOneOvertakes) {
    VimeoClient slow(server);
    const QByteArray target = slow.ticket();
    slow.write("PUT " + target + " HTTP/1.1\r\nHost: " + slow.host() + "\r\n" + slow.signedAs("PUT", target) +
               "Content-Type: video/mp4\r\nContent-Length: 300000\r\n\r\n" + video(200'000, 2));
    VimeoClient client(server);
    ASSERT_TRUE(waitFor([&] { return client.verify(target) == 200'000; }));
    EXPECT_EQ(codeIn(client.commit(target)), "703");
    EXPECT_EQ(client.chunk(target, video(250'000)).status, 200);
    slow.write(video(100'000, 3));
    EXPECT_EQ(slow.read().status, 200);
    EXPECT_EQ(client.verify(target), 250'000);
    client.chunk(target, video(50'000, 4), "250000-299999/300000");
    client.commit(target);
    const Video stored = server.videos().at(0);
    EXPECT_EQ(stored.sha256, sha256Of(video(250'000) + video(50'000, 4)));
    EXPECT_EQ(stored.chunks.at(1).received, 300'000);
    EXPECT_EQ(stored.chunks.at(1).stored, 200'000);
}

TEST_F(VimeoService, PlaysVideosOnThePageAndEscapesTheirTexts) {
    VimeoClient client(server);
    const QByteArray target = client.ticket();
    client.chunk(target, video(100'000));
    EXPECT_FALSE(client.get("/").body.contains("<video")) << "it has not arrived yet";
    const QByteArray id = videoIdIn(client.commit(target));
    const QByteArray attack("\"><script>alert('x')</script>&amp;");
    for (const auto &[method, name] : {std::pair<QByteArray, QByteArray>{"setTitle", "title"},
                                       {"setDescription", "description"},
                                       {"addTags", "tags"}})
        client.method(method, {{"video_id", id}, {name, attack}});
    client.method("setPrivacy", {{"video_id", id}, {"privacy", "nobody"}});
    const RawReply page = client.get("/");
    EXPECT_FALSE(page.body.contains("<script>alert"));
    EXPECT_EQ(page.body.count("&quot;&gt;&lt;script&gt;alert('x')&lt;/script&gt;&amp;amp;"), 3);
    EXPECT_TRUE(page.body.contains("<video controls preload=\"metadata\" src=\"/videos/" + id + "\">"));
    EXPECT_TRUE(page.body.contains("1 video received"));
    EXPECT_TRUE(page.body.contains("<span class=\"chip who\">Private</span>"));
    EXPECT_TRUE(page.head.contains("media-src 'self'"));

    const auto get = [&](const QByteArray &range) {
        return client.send("GET /videos/" + id + " HTTP/1.1\r\nHost: " + client.host() + "\r\n" + range + "\r\n");
    };
    const RawReply whole = get({});
    EXPECT_TRUE(whole.body == video(100'000));
    EXPECT_EQ(headerIn(whole, "Content-Type"), "video/mp4");
    for (const auto &[range, first, last] :
         {std::tuple<QByteArray, int, int>{"50000-", 50'000, 99'999}, {"10-19", 10, 19}, {"-5", 99'995, 99'999}}) {
        const RawReply part = get("Range: bytes=" + range + "\r\n");
        EXPECT_EQ(part.status, 206);
        EXPECT_EQ(headerIn(part, "Content-Range"),
                  "bytes " + QByteArray::number(first) + '-' + QByteArray::number(last) + "/100000");
        EXPECT_TRUE(part.body == video(100'000).mid(first, last - first + 1)) << range.toStdString();
    }
    EXPECT_EQ(client.get("/videos/1").status, 404);
    EXPECT_EQ(client.get("/videos/0").status, 404);
}

} // namespace standin::test
