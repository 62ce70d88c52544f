// The stand-in's video service: what it refuses, its weather, its state over restarts, and videos on the page.
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
    const struct {
        httplib::Headers headers;
        qsizetype bodyBytes;
        qint64 stored; // afterwards; -1: the chunk is refused
    } cases[] = {
        {{mp4, range("bytes 200-999/1000")}, 10, 210},
        {{mp4, range("bytes 50-999/1000")}, 10, 60},
        {{mp4, {"content-range", "bytes 0-999/1000"}}, 1000, 1000},
        {{mp4}, 10, 10},
        {{mp4, range("bytes 201-999/1000")}, 10, -1},
        {{mp4, range("bytes 200-209/1000")}, 10, -1},
        {{mp4, range("bytes 200-1000/1001")}, 10, -1},
        {{mp4, range("bytes 200-999/1000")}, 801, -1},
        {{mp4}, 1001, -1},
        {{mp4, range("bytes=200-999/1000")}, 10, -1},
        {{mp4, range("bytes 200-999/*")}, 10, -1},
        {{mp4, range("bytes +200-999/1000")}, 10, -1},
        {{mp4, range("bytes 200-999/1000"), range("bytes 200-999/1000")}, 10, -1},
        {{mp4, mp4}, 10, -1},
        {{mp4, {"Content-Length", "10"}, {"Content-Length", "10"}}, 10, -1},
        {{mp4, {"Content-Length", "10"}, {"Transfer-Encoding", "chunked"}}, 10, -1},
        {{{"Content-Type", "video/mpeg"}}, 10, -1},
        {{mp4}, 0, -1},
        {{mp4}, largestChunk + 1, -1},
        {{range("bytes */*")}, 10, -1},
        {{range("bytes */1000")}, 0, -1},
        {{range("bytes */*"), range("bytes */*")}, 0, -1},
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
        {"upload.complete", {{"ticket_id", incomplete}}, QStringLiteral("3")},
        {"upload.complete", {{"ticket_id", "0"}, {"filename", "a"}}, QStringLiteral("701")},
        {"upload.complete", {{"ticket_id", used}, {"filename", "a"}}, QStringLiteral("702")},
        {"upload.complete", {{"ticket_id", incomplete}, {"filename", "a"}}, QStringLiteral("703")},
        {"setTitle", {{"video_id", "0"}, {"title", "A"}}, QStringLiteral("1")},
        {"setTitle", {{"video_id", StandIn::foreignVideoId().toStdString()}, {"title", "A"}}, QStringLiteral("2")},
        {"setTitle", {{"video_id", id}}, QStringLiteral("3")},
        {"setPrivacy", {{"video_id", id}, {"privacy", "friends"}}, QStringLiteral("3")},
        {"setHeight", {{"video_id", id}}, QStringLiteral("112")},
    };
    for (const auto &[method, parameters, code] : cases)
        EXPECT_EQ(client->method(method, parameters)[u"err"][u"code"].toString(), code) << method;
    EXPECT_EQ(server.protocolErrors(), QStringList());

    const httplib::Params quota{{"method", "vimeo.videos.upload.getQuota"}};
    EXPECT_EQ(client->rest(quota), 200);
    EXPECT_EQ(client->rest(quota, ""), 400);
    EXPECT_EQ(client->rest({{"method", "x"}, {"method", "x"}}), 400);
    EXPECT_EQ(client->Post("/api/rest/v2?format=json", httplib::MultipartFormDataItems{{"a", "b", "", ""}})->status,
              400);
    EXPECT_EQ(client->Post("/upload")->status, 400) << "no PUT";
    EXPECT_EQ(client->chunk(used, variedBytes(10)), 400) << "a committed video does not change";
    EXPECT_EQ(server.protocolErrors().size(), 5);
    auto headers = client->authorization("PUT", "/upload");
    EXPECT_EQ(client->Put("/upload?ticket_id=" + incomplete, headers, "A", "video/mp4")->status, 401);
    EXPECT_EQ(client->Post("/api/rest/v2?format=json", quota)->status, 401);
    EXPECT_EQ(client->verify(incomplete), 200);
}

TEST(Weather, IsOfAllKindsAndTheSameForTheSameSeed) {
    const auto faults = [](quint64 seed) {
        const standin::Weather weather{.seed = seed, .error = 0.1, .reset = 0.2, .loseTail = 0.2};
        QList<standin::Fault::Kind> kinds;
        for (quint64 index = 0; index < 60; ++index)
            kinds.append(weather.at("chunk", index, 1000).kind);
        return kinds;
    };
    EXPECT_EQ(faults(20), faults(20));
    EXPECT_NE(faults(21), faults(20));
    using enum standin::Fault::Kind;
    for (const auto kind : {Answer, DropAfterBytes, StoreOnly, None})
        EXPECT_GT(faults(20).count(kind), 2) << int(kind);
}

TEST_F(VimeoService, PlaysVideosOnThePageAndEscapesTheirTexts) {
    const std::string ticket = client->ticket();
    const QByteArray bytes = variedBytes(100'000);
    client->chunk(ticket, bytes);
    EXPECT_FALSE(says(client->get("/"), "<video")) << "it has not arrived yet";
    const std::string id = client->commit(ticket);
    const char *const attack = "\"><script>alert('x')</script>&amp;";
    for (const auto &[method, name] :
         {std::pair("setTitle", "title"), {"setDescription", "description"}, {"addTags", "tags"}})
        client->method(method, {{"video_id", id}, {name, attack}});
    const QByteArray page = client->get("/");
    EXPECT_FALSE(says(page, "<script>alert"));
    EXPECT_EQ(page.count("&quot;&gt;&lt;script&gt;alert('x')&lt;/script&gt;&amp;amp;"), 3);
    EXPECT_TRUE(says(page, QByteArray::fromStdString("<video controls preload=\"metadata\" src=\"/videos/" + id)));

    EXPECT_EQ(client->get("/videos/" + id), bytes);
    for (const auto &[range, first, last] :
         {std::tuple("50000-", 50'000, 99'999), {"10-19", 10, 19}, {"-5", 99'995, 99'999}}) {
        const auto part = client->Get("/videos/" + id, {{"Range", std::string("bytes=") + range}});
        EXPECT_EQ(part->status, 206);
        EXPECT_EQ(part->get_header_value("Content-Range"),
                  "bytes " + std::to_string(first) + '-' + std::to_string(last) + "/100000");
        EXPECT_EQ(QByteArray::fromStdString(part->body), bytes.mid(first, last - first + 1)) << range;
    }
    EXPECT_EQ(client->Get("/videos/1")->status, 404);
}
