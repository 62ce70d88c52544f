#include "Tests/StandIn/Client.h"

#include <gtest/gtest.h>

namespace standin::test {

class FaultyService : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.start()); }

    // Until the predicate holds; false after ten seconds.
    template <typename Predicate>
    bool waitFor(Predicate predicate) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!predicate() && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        return predicate();
    }

    StandIn server;
};

TEST_F(FaultyService, FailsInTheOrderPlannedAndThenServes) {
    server.on("upload")
        .fail(503, 2)
        .thenOk()
        .answer(401, "text/plain", "oauth_problem=token_rejected")
        .answer(200, {}, {});
    Client client(server);
    QList<int> statuses;
    QByteArrayList bodies;
    for (int i = 0; i < 6; ++i) {
        const Reply reply = client.upload({{"title", QByteArray::number(i)}}, jpeg(5000));
        statuses.append(reply.status);
        bodies.append(reply.body);
    }
    EXPECT_EQ(statuses, (QList<int>{503, 503, 200, 401, 200, 200}));
    EXPECT_TRUE(bodies[0].startsWith("<html>"));
    EXPECT_EQ(bodies[3], "oauth_problem=token_rejected");
    EXPECT_EQ(bodies[4], "");
    ASSERT_EQ(server.photos().size(), 2u);
    const auto requests = server.requests();
    EXPECT_EQ(requests[0].status, 503);
    EXPECT_EQ(requests[0].photoSha256, server.photos()[0].sha256) << "photos that were not stored are known, too";
    EXPECT_EQ(valueOf(requests[5].parameters, "title"), "5");
}

TEST_F(FaultyService, PlansRestOperationsByTheirLastWord) {
    server.on("addPhoto").fail(500);
    server.on("getList").dropAfterBytes(10);
    Client client(server);
    EXPECT_EQ(client.call("flickr.test.login").status, 200);
    EXPECT_EQ(client.call("flickr.photosets.addPhoto").status, 500);
    EXPECT_EQ(client.call("flickr.photosets.getList").status, 0);
    EXPECT_EQ(client.call("flickr.photosets.getList").status, 200);
}

TEST_F(FaultyService, DropsTheConnectionInTheMiddleOfTheBody) {
    server.on("upload").dropAfterBytes(100'000).dropAfterBytes(0);
    for (const qint64 limit : {100'000, 0}) {
        Client client(server);
        EXPECT_EQ(client.upload({}, jpeg(3'000'000)).status, 0);
        EXPECT_LE(server.requests().back().photoBytes, limit);
        EXPECT_GE(server.requests().back().photoBytes, limit - 1000);
        EXPECT_EQ(server.requests().back().status, 0);
    }
    EXPECT_TRUE(server.photos().empty());
}

TEST_F(FaultyService, StoresThePhotoAndDoesNotSaySo) {
    server.on("upload").dropBeforeAnswer().truncate();
    Client client(server);
    EXPECT_EQ(client.upload({}, jpeg(1000, 1)).status, 0);
    ASSERT_TRUE(waitFor([&] { return server.photos().size() == 1; }));
    const Reply half = client.upload({}, jpeg(1000, 2));
    EXPECT_EQ(half.status, 200);
    EXPECT_FALSE(half.isComplete);
    EXPECT_TRUE(half.body.startsWith("<?xml"));
    EXPECT_EQ(server.photos().size(), 2u);
}

TEST_F(FaultyService, HangsUntilReleased) {
    server.on("upload").hang();
    Client client(server);
    client.write(client.uploadRequest({}, jpeg(1000)));
    ASSERT_TRUE(waitFor([&] { return !server.requests().empty() && server.requests()[0].photoBytes == 1000; }));
    EXPECT_EQ(Client(server).upload({}, jpeg(10)).status, 200);
    EXPECT_EQ(server.requests()[0].status, 0);
    ASSERT_TRUE(waitFor([&] {
        server.release();
        return server.photos().size() == 2;
    }));
    EXPECT_EQ(client.read().status, 200);
}

TEST_F(FaultyService, ForgetsAHangingRequestWhenTheClientLeaves) {
    server.on("upload").hang();
    Client client(server);
    client.write(client.uploadRequest({}, jpeg(1000)));
    ASSERT_TRUE(waitFor([&] { return !server.requests().empty() && server.requests()[0].photoBytes == 1000; }));
    client.disconnect();
    // The next one shows that nothing of the first is left to come; stop() waits for every request.
    EXPECT_EQ(Client(server).upload({}, jpeg(10)).status, 200);
    server.stop();
    EXPECT_EQ(server.photos().size(), 1u);
}

TEST_F(FaultyService, StopsAtOnceWithRequestsUnderWayAndStartsAgainOnTheSamePort) {
    server.on("upload").hang();
    Client hanging(server);
    hanging.write(hanging.uploadRequest({}, jpeg(1000)));
    ASSERT_TRUE(waitFor([&] { return !server.requests().empty() && server.requests()[0].photoBytes == 1000; }));
    Client halfSent(server);
    halfSent.write(halfSent.uploadRequest({}, jpeg(1000)).chopped(100));
    ASSERT_TRUE(waitFor([&] { return server.requests().size() == 2; }));
    const QString url = server.url();
    const auto begin = std::chrono::steady_clock::now();
    server.stop();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
    EXPECT_EQ(hanging.read().status, 0);
    ASSERT_TRUE(server.start());
    EXPECT_EQ(server.url(), url);
    EXPECT_EQ(Client(server).upload({}, jpeg(10)).status, 200);
}

TEST_F(FaultyService, WaitsBeforeEachAnswer) {
    server.delay(std::chrono::milliseconds(60));
    Client client(server);
    const auto begin = std::chrono::steady_clock::now();
    client.call("flickr.test.login");
    client.call("flickr.test.login");
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(120));
}

TEST_F(FaultyService, TakesPlansOverHttp) {
    Client client(server);
    const auto plan = [&](const QByteArray &json, const QByteArray &headers = {}) {
        return client.post("/control/faults", headers + "Content-Type: application/json\r\n", json).status;
    };
    EXPECT_EQ(
        plan(R"([{"on":"upload","fail":503,"count":2},{"on":"upload","ok":true},{"on":"upload","dropAfterBytes":50},
                       {"on":"login","answer":{"status":429,"type":"text/plain","body":"slow down"}}])"),
        200);
    QList<int> statuses;
    for (int i = 0; i < 5; ++i)
        statuses.append(client.upload({}, jpeg(1000)).status);
    EXPECT_EQ(statuses, (QList<int>{503, 503, 200, 0, 200}));
    EXPECT_EQ(client.call("flickr.test.login").body, "slow down");

    for (const char *wrong :
         {"", "no JSON", "[1]", "{}", R"({"on":"upload"})", R"({"fail":503})", R"({"on":"upload","fail":5})",
          R"({"on":"upload","fail":503,"count":0})", R"([{"on":"upload","fail":503},{"on":"upload","fial":503}])"})
        EXPECT_EQ(plan(wrong), 400) << wrong;
    EXPECT_EQ(plan(R"({"on":"upload","fail":503})", "Origin: http://evil.example\r\n"), 403);
    EXPECT_EQ(client.upload({}, jpeg(1000)).status, 200) << "a refused plan leaves nothing behind";
    EXPECT_EQ(plan(R"({"on":"upload","fail":503,"count":5})"), 200);
    EXPECT_EQ(plan(R"({"clear":true})"), 200);
    EXPECT_EQ(client.upload({}, jpeg(1000)).status, 200);
}

} // namespace standin::test
