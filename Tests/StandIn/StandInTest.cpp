// The stand-in as a web service: what it refuses and shows, planned faults, and its state over restarts.
#include "Tests/StandIn/Clients.h"

using namespace korvane;
using namespace korvane::test;
using standin::StandIn;

using StandInService = StandInTest<PhotoClient>;

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
    for (const std::string &spoilt : {part, part + "\n--B--\n", part + "\r\n--B--\r\nmore",
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
                       {"on":"upload","dropBeforeAnswer":true}])"),
              200);
    for (const int status : {503, 503, 200, 0, 200})
        EXPECT_EQ(client->upload(jpegOfSize(1000)).status, status);
    EXPECT_EQ(server.photos().size(), 3u) << "one is stored without a word";

    for (const char *wrong : {"", "[1]", R"({"on":"upload","fail":503,"count":0})",
                              R"([{"on":"upload","fail":503},{"on":"upload","fial":503}])"})
        EXPECT_EQ(plan(wrong), 400) << wrong;
    EXPECT_EQ(plan(R"({"on":"upload","fail":503})", {{"Origin", "http://evil.example"}}), 403);
    EXPECT_EQ(client->upload("GIF89a").status, 200) << "a refused plan leaves nothing behind";
}

TEST(StandInState, OutlivesRestartsAndCrashesInTheMiddle) {
    const QTemporaryDir folder;
    const standin::StandInOptions kept{.stateFolder = folder.path()};
    const QByteArray bytes = variedBytes(3'000'000);
    QByteArray photo;
    QByteArray ticket;
    {
        StandIn server(kept);
        ASSERT_TRUE(server.start());
        photo = photoIdIn(PhotoClient(server).upload(jpegOfSize(1000), "日本"));
        PhotoClient(server).addPhoto("72157600000002019", photo);
        VimeoClient videos(server);
        const std::string id = videos.ticket();
        ticket = QByteArray::fromStdString(id);
        videos.chunk(id, bytes.first(1'000'000));
    }
    // What a crash in the middle of uploads leaves behind.
    for (const auto &[path, left] :
         {std::pair<QByteArray, QByteArray>("journal.jsonl", "{\"photo\":\"53000000009\",\"para"),
          {"incoming/7", "half"},
          {"videos/" + ticket, bytes.mid(1'000'000, 77)},
          {"videos.jsonl", "{\"ticketId\":\"" + ticket + "\",\"oper"},
          {"videos/" + QByteArray(32, '0'), "unknown"}}) {
        QFile file(folder.filePath(QString::fromLatin1(path)));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(left);
    }
    for (size_t restarts = 0; restarts < 2; ++restarts) {
        StandIn server(kept);
        ASSERT_TRUE(server.start());
        const auto photos = server.photos();
        ASSERT_EQ(photos.size(), 1 + restarts);
        EXPECT_EQ(photos[0].id, photo.toLongLong());
        EXPECT_EQ(photos[0].parameters, (standin::Parameters{{"title", "日本"}}));
        EXPECT_EQ(photos[0].albums, QList<qint64>{72157600000002019});
        PhotoClient client(server);
        EXPECT_EQ(client.get("/photos/" + photo.toStdString()), jpegOfSize(1000));
        EXPECT_GT(photoIdIn(client.upload("GIF89a")).toLongLong(), photos.back().id);

        VimeoClient videos(server);
        if (restarts == 0) {
            const std::string id = ticket.toStdString();
            EXPECT_EQ(videos.verify(id), 1'000'077);
            EXPECT_EQ(videos.chunk(id, bytes.mid(1'000'077), "bytes 1000077-2999999/3000000"), 200);
            videos.method("setTitle", {{"video_id", videos.commit(id)}, {"title", "日本"}});
        }
        ASSERT_EQ(server.videos().size(), 1u);
        const standin::Video video = server.videos()[0];
        EXPECT_EQ(video.sha256, sha256Of(bytes));
        EXPECT_EQ(video.title, QStringLiteral("日本"));
        EXPECT_EQ(videos.get("/videos/" + std::to_string(video.id)), bytes);
        EXPECT_TRUE(says(client.get("/api/state"), "1000077-2999999/3000000"));
        for (const char *below : {"incoming", "videos"})
            EXPECT_EQ(QDir(folder.filePath(QLatin1String(below))).entryList(QDir::Files).size(), *below == 'v');
    }
}
