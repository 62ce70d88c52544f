// The stand-in as a web service: what it refuses and shows, planned faults, and its state over restarts.
#include "Tests/StandIn/SignedClient.h"

using namespace korvane;
using namespace korvane::test;
using standin::StandIn;

namespace {

struct Reply {
    int status = 0; // 0: the connection ended without a whole answer
    QByteArray body;
};

class Client : public SignedClient {
public:
    explicit Client(const StandIn &server) : SignedClient(server, StandIn::flickrCredential()) {}

    httplib::Headers authorizationOf(const char *title) const {
        return authorization("POST", "/services/upload/", {{"title", title}});
    }
    Reply upload(const httplib::Headers &headers, const httplib::MultipartFormDataItems &parts) {
        return _reply(Post("/services/upload/", headers, parts));
    }
    Reply upload(const QByteArray &photo, const char *title = "t") {
        return upload(authorizationOf(title),
                      {{"title", title, "", ""}, {"photo", photo.toStdString(), "a.jpg", "image/jpeg"}});
    }
    Reply addPhoto(const char *album, const QByteArray &photo) {
        return _reply(postForm(
            "/services/rest/",
            {{"method", "flickr.photosets.addPhoto"}, {"photoset_id", album}, {"photo_id", photo.toStdString()}}));
    }

private:
    static Reply _reply(const httplib::Result &result) {
        return result ? Reply{result->status, QByteArray::fromStdString(result->body)} : Reply();
    }
};

QByteArray photoIdIn(const Reply &reply) {
    const qsizetype begin = reply.body.indexOf("<photoid>") + 9;
    return reply.body.mid(begin, reply.body.indexOf("</photoid>") - begin);
}

using StandInService = StandInTest<Client>;

} // namespace

TEST_F(StandInService, AnswersWithFlickrsErrors) {
    const char *const album = "72157600000000001";
    EXPECT_TRUE(says(client->upload(client->authorization("POST", "/services/upload/"), {}).body, "err code=\"2\""));
    EXPECT_TRUE(says(client->upload("").body, "err code=\"4\""));
    EXPECT_TRUE(says(client->upload("a text, not a picture").body, "err code=\"5\""));
    EXPECT_TRUE(says(client->upload(jpegOfSize(300'001)).body, "err code=\"8\""));
    EXPECT_TRUE(server.photos().empty());
    const QByteArray photo = photoIdIn(client->upload(jpegOfSize(300'000)));
    EXPECT_TRUE(says(client->addPhoto("4711", photo).body, "err code=\"1\""));
    EXPECT_TRUE(says(client->addPhoto(album, "4711").body, "err code=\"2\""));
    EXPECT_TRUE(says(client->addPhoto(album, photo).body, "stat=\"ok\""));
    EXPECT_TRUE(says(client->addPhoto(album, photo).body, "err code=\"3\""));
    EXPECT_EQ(server.albums().at(0).photos, QList<qint64>{photo.toLongLong()});
}

TEST_F(StandInService, RefusesRequestsThatAreNotSignedOrNotWellFormed) {
    const httplib::MultipartFormDataItems parts{{"title", "t", "", ""}, {"photo", "GIF89a", "a.gif", "image/gif"}};
    const auto authorization = client->authorizationOf("t");
    EXPECT_EQ(client->upload(authorization, parts).status, 200);
    const Reply replay = client->upload(authorization, parts);
    EXPECT_EQ(replay.status, 401);
    EXPECT_EQ(replay.body, "oauth_problem=nonce_used");
    EXPECT_TRUE(client->upload(client->authorizationOf("u"), parts)
                    .body.startsWith("oauth_problem=signature_invalid&debug_sbs=POST%26"));
    EXPECT_TRUE(client->upload({}, parts).body.startsWith("oauth_problem=parameter_absent"));
    EXPECT_EQ(client->upload({}, {parts[1], parts[1]}).body, "Bad request: there are two photos.\n");
    EXPECT_EQ(client->Post("/services/upload/", "bytes", "image/jpeg")->status, 400);
    const std::string part = "--B\r\nContent-Disposition: form-data; name=\"a\"\r\n\r\nx";
    for (const std::string &spoilt : {part, part + "\r\n--B\r\n", part + "\n--B--\n", part + "\r\n--B--\r\nmore",
                                      "\r\n" + part + "\r\n--B--\r\n", std::string("--B\r\n\r\nx\r\n--B--\r\n"),
                                      std::string("--B\nContent-Disposition: form-data; name=\"a\"\n\nx\r\n--B--\r\n")})
        EXPECT_EQ(client->Post("/services/upload/", spoilt, "multipart/form-data; boundary=B")->status, 400) << spoilt;
    const auto whole = client->Post("/services/upload/", part + "\r\n--B--\r\n", "multipart/form-data; boundary=B");
    EXPECT_EQ(whole->status, 401) << "understood, but not signed";
    EXPECT_EQ(server.photos().size(), 1u);
}

TEST_F(StandInService, EscapesEverythingOnThePage) {
    EXPECT_TRUE(says(client->get("/"), "korvane share flickr"));
    client->upload("GIF89a", "\"><script>alert('x')</script>&amp;");
    EXPECT_FALSE(says(client->get("/"), "<script>alert"));
    EXPECT_TRUE(says(client->get("/"), "&quot;&gt;&lt;script&gt;alert('x')&lt;/script&gt;&amp;amp;"));
    EXPECT_TRUE(client->Get("/")->get_header_value("Content-Security-Policy").starts_with("default-src 'none'"));
}

TEST_F(StandInService, TakesPlansOfFaultsOverHttp) {
    const auto plan = [&](const char *json, const httplib::Headers &headers = {}) {
        return client->Post("/control/faults", headers, json, "application/json")->status;
    };
    ASSERT_EQ(plan(R"([{"on":"upload","fail":503,"count":2},{"on":"upload","ok":true},
                       {"on":"upload","dropAfterBytes":50},{"on":"upload","dropBeforeAnswer":true},
                       {"on":"upload","truncate":true},
                       {"on":"upload","answer":{"status":429,"type":"text/plain","body":"slow down"}}])"),
              200);
    for (const int status : {503, 503, 200, 0, 0, 0, 429, 200})
        EXPECT_EQ(client->upload(jpegOfSize(1000)).status, status);
    EXPECT_EQ(server.photos().size(), 4u) << "two are stored without a word";
    EXPECT_EQ(server.requests()[0].photoSha256, sha256Of(jpegOfSize(1000))) << "also if it was not stored";

    for (const char *wrong :
         {"", "no JSON", "[1]", "{}", R"({"on":"upload"})", R"({"fail":503})", R"({"on":"upload","fail":5})",
          R"({"on":"upload","fail":503,"count":0})", R"([{"on":"upload","fail":503},{"on":"upload","fial":503}])"})
        EXPECT_EQ(plan(wrong), 400) << wrong;
    EXPECT_EQ(plan(R"({"on":"upload","fail":503})", {{"Origin", "http://evil.example"}}), 403);
    EXPECT_EQ(client->upload("GIF89a").status, 200) << "a refused plan leaves nothing behind";
}

TEST(StandInState, OutlivesRestartsAndCrashes) {
    const QTemporaryDir folder;
    const standin::StandInOptions kept{.stateFolder = folder.path()};
    QByteArray first;
    {
        StandIn server(kept);
        ASSERT_TRUE(server.start());
        first = photoIdIn(Client(server).upload(jpegOfSize(1000), "日本"));
        Client(server).addPhoto("72157600000002019", first);
    }
    // What a crash in the middle of two uploads leaves behind.
    for (const auto &[name, bytes] :
         {std::pair("journal.jsonl", "{\"photo\":\"53000000009\",\"para"), {"incoming/7", "half"}}) {
        QFile file(folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(bytes);
    }
    for (size_t restarts = 0; restarts < 2; ++restarts) {
        StandIn server(kept);
        ASSERT_TRUE(server.start());
        const auto photos = server.photos();
        ASSERT_EQ(photos.size(), 1 + restarts);
        EXPECT_EQ(photos[0].id, first.toLongLong());
        EXPECT_EQ(photos[0].parameters, (standin::Parameters{{"title", "日本"}}));
        EXPECT_EQ(photos[0].albums, QList<qint64>{72157600000002019});
        EXPECT_EQ(Client(server).get("/photos/" + first.toStdString()), jpegOfSize(1000));
        EXPECT_TRUE(says(Client(server).get("/api/state"), sha256Of(jpegOfSize(1000))));
        EXPECT_TRUE(QDir(folder.filePath(QStringLiteral("incoming"))).isEmpty());
        EXPECT_GT(photoIdIn(Client(server).upload("GIF89a")).toLongLong(), photos.back().id);
    }
}
