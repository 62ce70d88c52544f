// The stand-in's video service: what it refuses, its weather, its state over restarts, and videos on the page.
#include "Tests/StandIn/SignedClient.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

using namespace korvane;
using namespace korvane::test;
using standin::StandIn;

namespace {

constexpr qsizetype largestChunk = 2'097'152;
const httplib::Headers::value_type mp4("Content-Type", "video/mp4");

httplib::Headers::value_type rangeHeader(const char *range) {
    return {"Content-Range", range};
}

// Uploads a video step by step, signed on its own.
class VimeoClient : public SignedClient {
public:
    explicit VimeoClient(const StandIn &server) : SignedClient(server, StandIn::vimeoCredential()) {}

    int rest(const httplib::Params &form, const std::string &query = "format=json") {
        return postForm("/api/rest/v2?" + query, form)->status;
    }
    QJsonValue method(const std::string &name, httplib::Params form) {
        form.emplace("method", "vimeo.videos." + name);
        const std::string answer = postForm("/api/rest/v2?format=json", form)->body;
        return QJsonDocument::fromJson(QByteArray::fromStdString(answer)).object();
    }
    std::string ticket() {
        return method("upload.getTicket", {{"upload_method", "streaming"}})[u"ticket"][u"id"].toString().toStdString();
    }
    httplib::Result put(const std::string &ticket, httplib::Headers headers, const QByteArray &body) {
        const std::string target = "/upload?ticket_id=" + ticket;
        headers.merge(authorization("PUT", target));
        return Put(target, headers, body.constData(), size_t(body.size()), "");
    }
    // The status; 0: the connection ended without an answer.
    int chunk(const std::string &ticket, const QByteArray &bytes, const char *range = nullptr) {
        const auto reply =
            put(ticket, range ? httplib::Headers{mp4, rangeHeader(range)} : httplib::Headers{mp4}, bytes);
        return reply ? reply->status : 0;
    }
    // The bytes stored; -1 if it does not say.
    qint64 verify(const std::string &ticket) {
        const auto reply = put(ticket, {rangeHeader("bytes */*")}, {});
        return reply->status == 308 ? std::stoll(reply->get_header_value("Range").substr(8)) : -1;
    }
    // The video's id; empty if it is refused.
    std::string commit(const std::string &ticket) {
        const QJsonValue answer = method("upload.complete", {{"ticket_id", ticket}, {"filename", "video.mp4"}});
        return answer[u"ticket"][u"video_id"].toString().toStdString();
    }
};

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

TEST_F(VimeoService, HasTheSameWeatherForTheSameSeed) {
    const QByteArray bytes = variedBytes(60'000);
    const auto outcome = [&](quint64 seed) {
        server.weather({.seed = seed, .error = 0.1, .reset = 0.2, .loseTail = 0.2, .operations = {"chunk"}});
        const std::string ticket = client->ticket();
        QStringList steps;
        qint64 stored = 0;
        for (int i = 0; i < 60; ++i) {
            const std::string range = "bytes " + std::to_string(stored) + "-59999/60000";
            const int status = client->chunk(ticket, bytes.mid(stored, 1000), i > 0 ? range.c_str() : nullptr);
            const qint64 before = std::exchange(stored, client->verify(ticket));
            steps.append(QStringLiteral("%1:%2").arg(status).arg(stored - before));
        }
        return steps;
    };
    const QStringList first = outcome(20);
    EXPECT_EQ(outcome(20), first);
    EXPECT_NE(outcome(21), first);
    EXPECT_EQ(server.protocolErrors(), QStringList());
    EXPECT_GT(first.count(QStringLiteral("200:1000")), 10) << "it is not bad all the time";
    EXPECT_GT(first.count(QStringLiteral("503:0")), 0);
    EXPECT_GT(first.filter(QStringLiteral("200:")).size(), first.count(QStringLiteral("200:1000"))) << "lost tails";
    EXPECT_GT(first.filter(QRegularExpression(QStringLiteral("^0:"))).size(), 0) << "resets";
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

TEST(VimeoState, GoesOnAfterARestartInTheMiddle) {
    const QTemporaryDir folder;
    const standin::StandInOptions options{.stateFolder = folder.path()};
    const QByteArray bytes = variedBytes(3'000'000);
    std::string ticket;
    {
        StandIn server(options);
        ASSERT_TRUE(server.start());
        VimeoClient client(server);
        ticket = client.ticket();
        client.chunk(ticket, bytes.first(1'000'000));
        client.chunk(ticket, bytes.mid(1'000'000, 500'000), "bytes 1000000-2999999/3000000");
        client.chunk(ticket, bytes.mid(900'000, 100'000), "bytes 900000-2999999/3000000");
    }
    // What a crash in the middle of the next chunk leaves behind.
    const QByteArray name = QByteArray::fromStdString(ticket);
    for (const auto &[path, left] : {std::pair("videos/" + name, bytes.mid(1'000'000, 77)),
                                     {"videos.jsonl", "{\"ticketId\":\"" + name + "\",\"oper"},
                                     {"videos/" + QByteArray(32, '0'), "unknown"}}) {
        QFile file(folder.filePath(QString::fromLatin1(path)));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(left);
    }
    for (const bool again : {false, true}) {
        StandIn server(options);
        ASSERT_TRUE(server.start());
        VimeoClient client(server);
        if (!again) {
            EXPECT_EQ(client.verify(ticket), 1'000'077);
            EXPECT_EQ(client.chunk(ticket, "A", "bytes 0-1999999/2000000"), 400) << "it was larger before";
            EXPECT_EQ(client.chunk(ticket, bytes.mid(1'000'077), "bytes 1000077-2999999/3000000"), 200);
            client.method("addTags", {{"video_id", client.commit(ticket)}, {"tags", "a, 日本"}});
        }
        ASSERT_EQ(server.videos().size(), 1u);
        const standin::Video video = server.videos()[0];
        EXPECT_EQ(video.sha256, sha256Of(bytes));
        EXPECT_EQ(video.tags, (QStringList{QStringLiteral("a"), QStringLiteral("日本")}));
        EXPECT_EQ(client.get("/videos/" + std::to_string(video.id)), bytes);
        EXPECT_TRUE(says(client.get("/api/state"), "1000077-2999999/3000000"));
    }
    EXPECT_EQ(QDir(folder.filePath(QStringLiteral("videos"))).entryList(QDir::Files),
              QStringList(QString::fromLatin1(name)));
}
