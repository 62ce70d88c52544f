// The stand-in's video service: what it refuses, and videos on the page.
#include "Tests/StandIn/Clients.h"

using namespace korvane;
using namespace korvane::test;
using standin::StandIn;

namespace {

constexpr qsizetype largestChunk = 2'097'152;
using VimeoService = StandInTest<VimeoClient>;

} // namespace

// Every case begins with 200 of 1000 bytes stored.
TEST_F(VimeoService, ReadsChunksStrictly) {
    const auto range = rangeHeader;
    // What is stored afterwards; -1: the chunk is refused.
    const std::tuple<httplib::Headers, qsizetype, qint64> cases[] = {
        {{mp4, range("bytes 200-999/1000")}, 10, 210},
        {{mp4}, 10, 10},
        {{mp4, range("bytes 201-999/1000")}, 10, -1},
        {{mp4, range("bytes 200-209/1000")}, 10, -1},
        {{mp4, range("bytes 200-1000/1001")}, 10, -1},
        {{mp4, range("bytes 200-999/1000")}, 801, -1},
        {{mp4, range("bytes 200-999/*")}, 10, -1},
        {{mp4, range("bytes 200-999/1000"), range("bytes 200-999/1000")}, 10, -1},
        {{mp4, {"Content-Length", "10"}, {"Transfer-Encoding", "chunked"}}, 10, -1},
        {{{"Content-Type", "video/mpeg"}}, 10, -1},
        {{mp4}, 0, -1},
        {{mp4}, largestChunk + 1, -1},
        {{range("bytes */*")}, 10, -1},
        {{range("bytes */1000")}, 0, -1},
    };
    qsizetype refused = 0;
    for (const auto &[headers, bodyBytes, stored] : cases) {
        SCOPED_TRACE(::testing::PrintToString(headers) + ::testing::PrintToString(bodyBytes));
        const std::string ticket = client->ticket();
        client->chunk(ticket, variedBytes(100));
        ASSERT_EQ(client->chunk(ticket, variedBytes(100), "bytes 100-999/1000"), 200);
        const auto reply = client->put(ticket, headers, variedBytes(bodyBytes, 2));
        EXPECT_EQ(reply && reply->status == 200, stored >= 0);
        EXPECT_EQ(client->verify(ticket), stored < 0 ? 200 : stored);
        refused += stored < 0;
        EXPECT_EQ(server.protocolErrors().size(), refused);
    }
    EXPECT_TRUE(says(server.protocolErrors().at(0), "but only 200 are stored"));
}

TEST_F(VimeoService, AnswersCallsThatAreNotRightWithErrors) {
    const std::string incomplete = client->ticket();
    client->chunk(incomplete, variedBytes(100));
    client->chunk(incomplete, variedBytes(100), "bytes 100-999/1000");
    const std::string used = client->ticket();
    client->chunk(used, variedBytes(10));
    const std::string id = client->commit(used);
    const std::tuple<const char *, httplib::Params, QString> cases[] = {
        {"upload.getTicket", {{"upload_method", "post"}}, QStringLiteral("3")},
        {"upload.complete", {{"ticket_id", "0"}, {"filename", "a"}}, QStringLiteral("701")},
        {"upload.complete", {{"ticket_id", used}, {"filename", "a"}}, QStringLiteral("702")},
        {"upload.complete", {{"ticket_id", incomplete}, {"filename", "a"}}, QStringLiteral("703")},
        {"setTitle", {{"video_id", "0"}, {"title", "A"}}, QStringLiteral("1")},
        {"setTitle", {{"video_id", StandIn::foreignVideoId().toStdString()}, {"title", "A"}}, QStringLiteral("2")},
        {"setPrivacy", {{"video_id", id}, {"privacy", "friends"}}, QStringLiteral("3")},
        {"setHeight", {{"video_id", id}}, QStringLiteral("112")},
    };
    for (const auto &[method, parameters, code] : cases)
        EXPECT_EQ(client->method(method, parameters)[u"err"][u"code"].toString(), code) << method;
    EXPECT_EQ(server.protocolErrors(), QStringList());

    const httplib::Params quota{{"method", "vimeo.videos.upload.getQuota"}};
    EXPECT_EQ(client->rest(quota), 200);
    EXPECT_EQ(client->rest(quota, ""), 400);
    EXPECT_EQ(client->Post("/upload")->status, 400) << "no PUT";
    EXPECT_EQ(client->chunk(used, variedBytes(10)), 400) << "a committed video does not change";
    EXPECT_EQ(client->Get("/oauth/authorize?permission=read&oauth_token=1")->status, 400) << "it has to write";
    EXPECT_EQ(server.protocolErrors().size(), 4);
    const auto headers = client->authorization("PUT", "/upload");
    EXPECT_EQ(client->Put("/upload?ticket_id=" + incomplete, headers, "A", "video/mp4")->status, 401);
    EXPECT_EQ(client->Post("/api/rest/v2?format=json", quota)->status, 401);
    EXPECT_EQ(client->verify(incomplete), 200);
}

TEST_F(VimeoService, EscapesTheTextsOfVideosOnThePage) {
    const std::string ticket = client->ticket();
    client->chunk(ticket, variedBytes(100));
    const std::string id = client->commit(ticket);
    const char *const attack = "\"><script>alert('x')</script>&amp;";
    for (const auto &[method, name] :
         {std::pair("setTitle", "title"), {"setDescription", "description"}, {"addTags", "tags"}})
        client->method(method, {{"video_id", id}, {name, attack}});
    const QByteArray page = client->get("/");
    EXPECT_FALSE(says(page, "<script>alert"));
    EXPECT_EQ(page.count("&quot;&gt;&lt;script&gt;alert('x')&lt;/script&gt;&amp;amp;"), 3);
}
