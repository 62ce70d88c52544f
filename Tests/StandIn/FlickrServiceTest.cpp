#include "Tests/StandIn/Client.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace standin::test {

namespace {

QByteArray sha256Of(const QByteArray &bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray errorIn(const Reply &reply) {
    QXmlStreamReader xml(reply.body);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("err"))
            return xml.attributes().value(QLatin1String("code")).toUtf8();
    }
    return xml.hasError() ? "broken" : "none";
}

} // namespace

class FlickrService : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.start()); }

    StandIn server{StandInOptions{.albums = 500, .photoLimit = 300'000}};
};

TEST_F(FlickrService, StoresWhatAnUploadCarries) {
    Client client(server);
    const QByteArray photo = jpeg(250'000);
    const Parameters sent{{"title", "Straße & <b>日本</b>\r\n\"1+1=2%\""},
                          {"tags", "sea \"old town\""},
                          {"is_public", "0"},
                          {"is_friend", "1"},
                          {"is_family", "0"},
                          {"hidden", "2"},
                          {"safety_level", ""},
                          {"other", "x"},
                          {"other", "x"}};
    const Reply reply = client.upload(sent, photo);
    ASSERT_EQ(reply.status, 200) << reply.body.toStdString();
    EXPECT_EQ(reply.body.left(58), "<?xml version=\"1.0\" encoding=\"utf-8\" ?>\n<rsp stat=\"ok\">\n<p");
    EXPECT_GT(photoIdIn(reply).toLongLong(), qint64(1) << 32);

    const auto stored = server.photos();
    ASSERT_EQ(stored.size(), 1u);
    EXPECT_EQ(stored[0].parameters, sent.first(7));
    EXPECT_EQ(stored[0].sha256, sha256Of(photo));
    const Request request = server.requests().at(0);
    EXPECT_EQ(request.parameters, sent);
    EXPECT_EQ(request.photoFileName, "a \"b\".jpg");
    EXPECT_EQ(request.photoBytes, 250'000);
    EXPECT_EQ(request.status, 200);
    EXPECT_FALSE(request.oauthNonce.isEmpty());

    const Reply picture = client.get("/photos/" + photoIdIn(reply));
    EXPECT_TRUE(picture.body == photo);
    EXPECT_TRUE(picture.head.contains("Content-Type: image/jpeg\r\n")) << picture.head.toStdString();
    EXPECT_TRUE(picture.head.contains("nosniff"));
    EXPECT_EQ(client.get("/photos/1").status, 404);
}

TEST_F(FlickrService, ShowsTheStateAsJson) {
    Client client(server);
    const QByteArray id = photoIdIn(client.upload({{"title", "A"}, {"tags", "a \"b c\" d"}}, jpeg(100)));
    client.call("flickr.photosets.addPhoto", {{"photoset_id", "72157600000000001"}, {"photo_id", id}});
    const QJsonObject state = QJsonDocument::fromJson(client.get("/api/state").body).object();
    const QJsonObject photo = state.value(QLatin1String("photos")).toArray().at(0).toObject();
    EXPECT_EQ(photo.value(QLatin1String("id")).toString().toUtf8(), id);
    EXPECT_EQ(photo.value(QLatin1String("sha256")).toString().toUtf8(), sha256Of(jpeg(100)));
    EXPECT_EQ(photo.value(QLatin1String("tags")).toArray(),
              (QJsonArray{QStringLiteral("a"), QStringLiteral("b c"), QStringLiteral("d")}));
    EXPECT_TRUE(photo.value(QLatin1String("isPublic")).toBool());
    EXPECT_EQ(photo.value(QLatin1String("albums")).toArray(), QJsonArray{QStringLiteral("72157600000000001")});
    const QJsonObject album = state.value(QLatin1String("albums")).toArray().at(0).toObject();
    EXPECT_EQ(album.value(QLatin1String("photos")).toArray().at(0).toString().toUtf8(), id);
}

TEST_F(FlickrService, RefusesWhatIsNoPhoto) {
    Client client(server);
    EXPECT_EQ(errorIn(client.upload({{"title", "A"}}, {})), "2");
    EXPECT_EQ(errorIn(client.upload({}, QByteArray(""))), "4");
    EXPECT_EQ(errorIn(client.upload({}, "a text, not a picture")), "5");
    EXPECT_EQ(errorIn(client.upload({}, jpeg(300'001))), "8");
    EXPECT_TRUE(server.photos().empty());
    for (const QByteArray &beginning : {QByteArray("\x89PNG\r\n\x1a\n"), QByteArray("GIF89a"), QByteArray("II*\0", 4),
                                        QByteArray("MM\0*", 4), jpeg(300'000)})
        EXPECT_EQ(errorIn(client.upload({}, beginning + QByteArray())), "none");
    EXPECT_EQ(server.photos().size(), 5u);
}

TEST_F(FlickrService, AnswersSignatureProblemsAsPlainText) {
    Client client(server);
    const QByteArray request = client.uploadRequest({{"title", "A"}}, jpeg(1000));
    EXPECT_EQ(client.send(request).status, 200);
    const Reply replay = client.send(request);
    EXPECT_EQ(replay.status, 401);
    EXPECT_EQ(replay.body, "oauth_problem=nonce_used");
    EXPECT_TRUE(replay.head.contains("Content-Type: text/plain\r\n"));

    QByteArray altered = client.uploadRequest({{"title", "A"}}, jpeg(1000));
    altered.replace("\r\n\r\nA\r\n", "\r\n\r\nB\r\n");
    EXPECT_TRUE(client.send(altered).body.startsWith("oauth_problem=signature_invalid&debug_sbs=POST%26"));
    QByteArray otherPhoto = client.uploadRequest({{"title", "A"}}, jpeg(1000, 2));
    otherPhoto.replace(jpeg(1000, 2), jpeg(1000, 3));
    EXPECT_EQ(client.send(otherPhoto).status, 200) << "the photo is not signed";
    const Reply bare =
        client.post("/services/rest/", "Content-Type: application/x-www-form-urlencoded\r\n", "method=x");
    EXPECT_EQ(bare.status, 401);
    EXPECT_TRUE(bare.body.startsWith("oauth_problem=parameter_absent&oauth_parameters_absent=oauth_consumer_key%26"));
    EXPECT_EQ(server.photos().size(), 2u);
}

TEST_F(FlickrService, SignsQueryAndBodyOnceEach) {
    Client client(server);
    const QByteArray target("/services/rest/?method=flickr.test.login&a=1");
    const Reply reply = client.post(target,
                                    client.authorization(target, {{"a", "2 3"}, {"a", ""}}) +
                                        "Content-Type: application/x-www-form-urlencoded\r\n",
                                    "a=2+3&a=");
    EXPECT_TRUE(reply.body.contains("<username>standin</username>")) << reply.body.toStdString();
}

TEST_F(FlickrService, ListsAlbumsAsWellFormedXml) {
    Client client(server);
    QXmlStreamReader xml(client.call("flickr.photosets.getList").body);
    QStringList titles;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("photoset")) {
            EXPECT_GT(xml.attributes().value(QLatin1String("id")).toLongLong(), qint64(1) << 32);
        }
        if (xml.name() == QLatin1String("title")) titles.append(xml.readElementText());
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    ASSERT_EQ(titles.size(), 500);
    EXPECT_EQ(titles.first(3), (QStringList{QStringLiteral("Holidays"), QStringLiteral("Family & friends"),
                                            QStringLiteral("Straßenfotos 日本")}));
}

TEST_F(FlickrService, FilesPhotosInAlbumsOnce) {
    Client client(server);
    const QByteArray id = photoIdIn(client.upload({}, jpeg(10)));
    const auto add = [&](const QByteArray &album, const QByteArray &photo) {
        return errorIn(client.call("flickr.photosets.addPhoto", {{"photoset_id", album}, {"photo_id", photo}}));
    };
    EXPECT_EQ(add("4711", id), "1");
    EXPECT_EQ(add("72157600000000001", "4711"), "2");
    EXPECT_EQ(add("72157600000000001", id), "none");
    EXPECT_EQ(add("72157600000000001", id), "3");
    EXPECT_EQ(server.albums().at(0).photos, QList<qint64>{id.toLongLong()});
    EXPECT_EQ(errorIn(client.call("flickr.photos.delete")), "112");
}

TEST_F(FlickrService, RefusesRequestsWithoutAProperBody) {
    const QByteArray whole = Client(server).uploadRequest({{"title", "A"}}, jpeg(5000));
    const Reply cut = Client(server).sendAndEnd(whole.chopped(40));
    EXPECT_EQ(cut.status, 400);
    EXPECT_EQ(cut.body, "Bad request: the body is shorter than its Content-Length.\n");

    QByteArray chunked = whole;
    chunked.replace("Content-Length: ", "Transfer-Encoding: chunked\r\nX-Length: ");
    EXPECT_EQ(Client(server).send(chunked).status, 411);
    QByteArray bareLineFeeds = whole;
    bareLineFeeds.replace("\r\n--BOUNDARY--\r\n", "\n\n--BOUNDARY--\n\n\n");
    EXPECT_EQ(Client(server).sendAndEnd(bareLineFeeds).status, 400);
    Client client(server);
    const QByteArray twoPhotos = multipart({{"photo", "1"}}, jpeg(100));
    EXPECT_EQ(
        client.post("/services/upload/", "Content-Type: multipart/form-data; boundary=BOUNDARY\r\n", twoPhotos).body,
        "Bad request: there are two photos.\n");
    EXPECT_EQ(client.post("/services/upload/", "Content-Type: image/jpeg\r\n", jpeg(100)).status, 400);
    EXPECT_TRUE(server.photos().empty());
    EXPECT_EQ(client.send(whole).status, 200);
}

TEST_F(FlickrService, EscapesEverythingOnThePage) {
    Client client(server);
    EXPECT_TRUE(client.get("/").body.contains("korvane share flickr"));
    const QByteArray attack("\"><script>alert('x')</script>&amp;");
    client.upload(
        {{"title", attack}, {"description", attack}, {"tags", attack}, {"is_public", "0"}, {"is_family", "1"}},
        jpeg(10));
    const Reply reply = client.get("/");
    EXPECT_FALSE(reply.body.contains("<script>alert"));
    EXPECT_EQ(reply.body.count("&quot;&gt;&lt;script&gt;alert('x')&lt;/script&gt;&amp;amp;"), 3);
    EXPECT_TRUE(reply.body.contains("<span class=\"chip who\">Family</span>"));
    EXPECT_TRUE(reply.head.contains("Content-Security-Policy: default-src 'none'"));
}

TEST_F(FlickrService, TakesSixteenAtATimeWhileOthersHang) {
    server.on("login").hang(8);
    std::vector<std::unique_ptr<Client>> hanging;
    std::vector<std::thread> threads;
    std::atomic<int> stored = 0;
    for (int i = 0; i < 8; ++i) {
        hanging.push_back(std::make_unique<Client>(server));
        threads.emplace_back([client = hanging.back().get()] { client->call("flickr.test.login"); });
    }
    for (quint32 i = 0; i < 16; ++i) {
        threads.emplace_back([&, i] {
            Client client(server);
            for (quint32 j = 0; j < 5; ++j)
                stored += client.upload({}, jpeg(100'000, 100 * i + j)).status == 200;
        });
    }
    for (size_t i = 8; i < threads.size(); ++i)
        threads[i].join();
    EXPECT_EQ(stored, 80);
    QSet<QByteArray> hashes;
    for (const Photo &photo : server.photos())
        hashes.insert(photo.sha256);
    EXPECT_EQ(hashes.size(), 80);
    server.stop();
    for (size_t i = 0; i < 8; ++i)
        threads[i].join();
}

} // namespace standin::test
