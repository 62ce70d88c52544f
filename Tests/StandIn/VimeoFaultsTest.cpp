#include "Tests/StandIn/VimeoClient.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace standin::test {

class FaultyVimeo : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.start()); }

    StandIn server;
};

TEST_F(FaultyVimeo, KeepsWhatCameOfAChunk) {
    struct Case {
        const char *name;
        std::function<void(FaultQueue &)> plan;
        int status;
        qint64 stored;
    };
    const Case cases[] = {
        {"fail", [](FaultQueue &queue) { queue.fail(503); }, 503, 0},
        {"drop at once", [](FaultQueue &queue) { queue.dropAfterBytes(0); }, 0, 0},
        {"drop", [](FaultQueue &queue) { queue.dropAfterBytes(123'457); }, 0, 123'457},
        {"drop late", [](FaultQueue &queue) { queue.dropAfterBytes(9'000'000); }, 0, 700'000},
        {"no answer", [](FaultQueue &queue) { queue.dropBeforeAnswer(); }, 0, 700'000},
        {"half an answer", [](FaultQueue &queue) { queue.truncate(); }, 0, 700'000},
        {"lost tail", [](FaultQueue &queue) { queue.storeOnly(70'001); }, 200, 70'001},
        {"all lost", [](FaultQueue &queue) { queue.storeOnly(0); }, 200, 0},
        {"ok", [](FaultQueue &queue) { queue.thenOk().fail(500); }, 200, 700'000},
    };
    for (const Case &test : cases) {
        server.clearFaults();
        test.plan(server.on("chunk"));
        const QByteArray target = VimeoClient(server).ticket();
        EXPECT_EQ(VimeoClient(server).chunk(target, video(700'000)).status, test.status) << test.name;
        EXPECT_EQ(VimeoClient(server).verify(target), test.stored) << test.name;
        EXPECT_EQ(server.videos().back().endpointHits(), 2);
    }
    const Video dropped = server.videos().at(2);
    ASSERT_EQ(dropped.chunks.size(), 1u);
    EXPECT_EQ(dropped.chunks[0].length, 700'000);
    EXPECT_EQ(dropped.chunks[0].received, 123'457);
    EXPECT_EQ(dropped.bytesReceived, 123'457);
    EXPECT_EQ(server.videos().at(6).chunks.at(0).received, 700'000);
    EXPECT_EQ(server.protocolErrors(), QStringList());
}

TEST_F(FaultyVimeo, ServesAHangingChunkOnlyOnceItIsReleased) {
    server.on("chunk").hang(2);
    VimeoClient client(server);
    const QByteArray target = client.ticket();
    const auto send = [&](VimeoClient &from, quint32 seed) {
        from.write("PUT " + target + " HTTP/1.1\r\nHost: " + from.host() + "\r\n" + from.signedAs("PUT", target) +
                   "Content-Type: video/mp4\r\nContent-Length: 2097152\r\n\r\n" + video(2'097'152, seed));
        return waitFor([&] { return server.requests().back().bodyBytes == 2'097'152; });
    };
    VimeoClient leaving(server);
    ASSERT_TRUE(send(leaving, 1));
    leaving.disconnect();
    VimeoClient staying(server);
    ASSERT_TRUE(send(staying, 2));
    EXPECT_EQ(client.verify(target), 0);
    ASSERT_TRUE(waitFor([&] {
        server.release();
        return client.verify(target) == 2'097'152;
    }));
    EXPECT_EQ(staying.read().status, 200);
    client.commit(target);
    EXPECT_TRUE(client.get("/videos/" + QByteArray::number(server.videos()[0].id)).body == video(2'097'152, 2));
}

TEST_F(FaultyVimeo, LiesAboutWhatIsStoredAndAboutTheQuota) {
    VimeoClient client(server);
    const QByteArray target = client.ticket();
    server.on("verify").reportRange("bytes 0-77\t").reportRange(std::nullopt).fail(500).delay(60);
    const auto ask = [&] { return client.put(target, "Content-Range: bytes */*\r\n", {}); };
    EXPECT_EQ(headerIn(ask(), "Range").trimmed(), "bytes 0-77");
    const RawReply silent = ask();
    EXPECT_EQ(silent.status, 308);
    EXPECT_FALSE(silent.head.contains("Range: "));
    EXPECT_EQ(ask().status, 500);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(headerIn(ask(), "Range"), "bytes=0-0");
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(60));

    server.quota(Quota{.free = 5, .hd = false, .sd = true});
    const auto user = client.method("upload.getQuota")[QLatin1String("user")];
    EXPECT_EQ(user[QLatin1String("upload_space")][QLatin1String("free")].toString(), QStringLiteral("5"));
    EXPECT_EQ(user[QLatin1String("hd_quota")].toString(), QStringLiteral("0"));
    EXPECT_EQ(user[QLatin1String("sd_quota")].toString(), QStringLiteral("1"));
}

TEST_F(FaultyVimeo, CommitsAndDoesNotSaySo) {
    VimeoClient client(server);
    for (const bool truncated : {false, true}) {
        const QByteArray target = client.ticket();
        client.chunk(target, video(1000));
        truncated ? server.on("complete").truncate() : server.on("complete").dropBeforeAnswer();
        EXPECT_FALSE(client.commit(target).toObject().contains(QStringLiteral("ticket")));
        EXPECT_GT(server.videos().back().id, 0);
        EXPECT_EQ(server.videos().back().commits(), 1);
    }
}

TEST_F(FaultyVimeo, TakesPlansOverHttp) {
    VimeoClient client(server);
    const auto plan = [&](const QByteArray &json) {
        return client.post("/control/faults", "Content-Type: application/json\r\n", json).status;
    };
    EXPECT_EQ(plan(R"([{"on":"getTicket","fail":503,"count":2},{"on":"chunk","storeOnly":7},{"on":"chunk","delay":1},
                       {"on":"verify","range":"bytes=0-3"},{"on":"verify","range":null},
                       {"quota":{"free":1,"hd":false,"sd":false}}])"),
              200);
    EXPECT_EQ(client.rest({{"method", "vimeo.videos.upload.getTicket"}}).status, 503);
    EXPECT_EQ(client.ticket(), "");
    const QByteArray target = client.ticket();
    client.chunk(target, video(10));
    EXPECT_EQ(client.verify(target), 3);
    EXPECT_EQ(client.verify(target), -1);
    EXPECT_EQ(client.verify(target), 7);
    const auto freeSpace = [&] {
        return client
            .method("upload.getQuota")[QLatin1String("user")][QLatin1String("upload_space")][QLatin1String("free")]
            .toString();
    };
    EXPECT_EQ(freeSpace(), QStringLiteral("1"));
    EXPECT_EQ(plan(R"({"quota":null})"), 200);
    EXPECT_EQ(freeSpace(), QStringLiteral("1000000000000"));
    EXPECT_EQ(plan(R"({"weather":{"seed":7,"error":1,"on":["verify"]}})"), 200);
    EXPECT_EQ(client.put(target, "Content-Range: bytes */*\r\n", {}).status, 503);
    EXPECT_EQ(client.chunk(target, video(10)).status, 200);
    EXPECT_EQ(plan(R"({"clear":true})"), 200);
    EXPECT_EQ(client.verify(target), 10);
    for (const char *wrong :
         {R"({"on":"chunk","storeOnly":-1})", R"({"on":"verify","range":3})", R"({"on":"verify","range":"a\nb"})",
          R"({"weather":{"seed":1,"error":1.5}})", R"({"weather":{"seed":1,"delay":-1}})", R"({"weather":true})",
          R"({"weather":{"seed":"1"}})", R"({"weather":{"seed":1,"eror":0.1}})", R"({"quota":{}})",
          R"({"quota":{"free":"1"}})"})
        EXPECT_EQ(plan(wrong), 400) << wrong;
}

namespace {

// Uploads a video in chunks of 1000 bytes through whatever comes, and writes down what happened.
QByteArrayList uploadThrough(StandIn &server, const QByteArray &bytes, bool withOtherRequests) {
    QByteArrayList happenings;
    const QByteArray target = VimeoClient(server).ticket();
    const QByteArray end = '-' + QByteArray::number(bytes.size() - 1) + '/' + QByteArray::number(bytes.size());
    qint64 stored = 0;
    for (int i = 0; stored < bytes.size() && i < 2000; ++i) {
        VimeoClient client(server);
        const QByteArray range = i == 0 ? QByteArray() : QByteArray::number(stored) + end;
        const int status = client.chunk(target, bytes.mid(stored, 1000), range).status;
        if (withOtherRequests) client.method("upload.getQuota");
        const RawReply reply = VimeoClient(server).put(target, "Content-Range: bytes */*\r\n", {});
        if (reply.status == 308) stored = headerIn(reply, "Range").mid(8).toLongLong();
        happenings.append(QByteArray::number(status) + ' ' + QByteArray::number(reply.status) + ' ' +
                          QByteArray::number(stored));
    }
    return happenings;
}

} // namespace

TEST_F(FaultyVimeo, HasTheSameWeatherForTheSameSeed) {
    constexpr quint64 seed = 20;
    const QByteArray bytes = video(60'000);
    const auto through = [&](quint64 s, bool withOtherRequests) {
        server.weather(
            {.seed = s, .error = 0.1, .reset = 0.2, .loseTail = 0.2, .delay = 1, .operations = {"chunk", "verify"}});
        return uploadThrough(server, bytes, withOtherRequests);
    };
    const QByteArrayList first = through(seed, false);
    EXPECT_EQ(through(seed, true), first) << "seed " << seed;
    EXPECT_NE(through(seed + 1, false), first) << "seed " << seed;
    EXPECT_EQ(server.protocolErrors(), QStringList());
    int errors = 0;
    int resets = 0;
    int losses = 0;
    const Video uploaded = server.videos().at(0);
    for (const VideoChunk &chunk : uploaded.chunks) {
        resets += chunk.received < chunk.length;
        losses += chunk.received == chunk.length && chunk.stored < chunk.received;
    }
    for (const QByteArray &happening : first)
        errors += happening.startsWith("503");
    EXPECT_TRUE(errors > 0 && resets > 0 && losses > 0) << errors << ' ' << resets << ' ' << losses;
    server.clearFaults();
    const QJsonValue committed = VimeoClient(server).commit("/upload?ticket_id=" + uploaded.ticketId);
    const QByteArray id = committed[QLatin1String("ticket")][QLatin1String("video_id")].toString().toUtf8();
    EXPECT_TRUE(VimeoClient(server).get("/videos/" + id).body == bytes);
}

TEST(StandInWeather, IsAsRoughAsTold) {
    const Weather weather{.seed = 3, .error = 0.1, .reset = 0.2, .loseTail = 0.5, .delay = 30};
    int count[8] = {};
    qint64 longest = 0;
    qint64 delays = 0;
    for (quint64 i = 0; i < 10'000; ++i) {
        const Fault fault = weather.at("chunk", i, 1000);
        ++count[size_t(fault.kind)];
        EXPECT_LE(fault.bytes, fault.kind == Fault::Kind::StoreOnly ? 999 : 1000);
        longest = std::max(longest, fault.delay);
        delays += fault.delay;
    }
    EXPECT_NEAR(count[size_t(Fault::Kind::Answer)], 1000, 150);
    EXPECT_NEAR(count[size_t(Fault::Kind::DropAfterBytes)], 1800, 200);
    EXPECT_NEAR(count[size_t(Fault::Kind::StoreOnly)], 3600, 250);
    EXPECT_EQ(longest, 30);
    EXPECT_NEAR(double(delays) / 10'000, 15, 1);
}

} // namespace standin::test
