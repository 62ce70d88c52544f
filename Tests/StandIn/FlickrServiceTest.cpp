// What the stand-in's Flickr takes, shows and refuses.
#include "Tests/StandIn/Client.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace standin::test {

namespace {

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
    void SetUp() override {
        ASSERT_TRUE(server.start());
        client.emplace(server);
    }

    StandIn server{StandInOptions{.albums = 500, .photoLimit = 300'000}};
    std::optional<Client> client;
};

TEST_F(FlickrService, ServesThePhotoAndTheStateAsJson) {
    const QByteArray photo = jpeg(250'000);
    const Reply reply = client->upload({{"title", "A"}, {"tags", "a \"b c\" d"}, {"other", "x"}}, photo);
    EXPECT_EQ(reply.body.left(58), "<?xml version=\"1.0\" encoding=\"utf-8\" ?>\n<rsp stat=\"ok\">\n<p");
    const QByteArray id = photoIdIn(reply);
    EXPECT_GT(id.toLongLong(), qint64(1) << 32);
    const Reply picture = client->get("/photos/" + id);
    EXPECT_TRUE(picture.body == photo);
    EXPECT_EQ(picture.headers.find("Content-Type")->second, "image/jpeg");
    EXPECT_EQ(picture.headers.count("X-Content-Type-Options"), 1u);
    EXPECT_EQ(client->get("/photos/1").status, 404);

    client->call("flickr.photosets.addPhoto", {{"photoset_id", "72157600000000001"}, {"photo_id", id}});
    const auto state = QJsonDocument::fromJson(client->get("/api/state").body);
    const auto stored = state[QStringLiteral("photos")][0];
    EXPECT_EQ(stored[QStringLiteral("id")].toString().toUtf8(), id);
    EXPECT_EQ(stored[QStringLiteral("tags")].toArray(),
              (QJsonArray{QStringLiteral("a"), QStringLiteral("b c"), QStringLiteral("d")}));
    EXPECT_TRUE(stored[QStringLiteral("isPublic")].toBool());
    EXPECT_EQ(state[QStringLiteral("albums")][0][QStringLiteral("photos")][0].toString().toUtf8(), id);
}

TEST_F(FlickrService, RefusesWhatIsNoPhoto) {
    EXPECT_EQ(errorIn(client->upload({{"title", "A"}}, {})), "2");
    EXPECT_EQ(errorIn(client->upload({}, QByteArray(""))), "4");
    EXPECT_EQ(errorIn(client->upload({}, "a text, not a picture")), "5");
    EXPECT_EQ(errorIn(client->upload({}, jpeg(300'001))), "8");
    EXPECT_TRUE(server.photos().empty());
    for (const QByteArray &photo : {QByteArray("\x89PNG\r\n\x1a\n"), QByteArray("GIF89a"), QByteArray("II*\0", 4),
                                    QByteArray("MM\0*", 4), jpeg(300'000)})
        EXPECT_EQ(errorIn(client->upload({}, photo)), "none");
}

TEST_F(FlickrService, AnswersSignatureProblemsAsPlainText) {
    const Parameters signedFor{{"title", "A"}};
    const auto authorization = client->authorization("/services/upload/", signedFor);
    const Reply altered = client->uploadSigned(authorization, {{"title", "B"}}, jpeg(1000));
    EXPECT_TRUE(altered.body.startsWith("oauth_problem=signature_invalid&debug_sbs=POST%26"));
    EXPECT_EQ(client->uploadSigned(authorization, signedFor, jpeg(1000)).status, 200);
    const Reply replay = client->uploadSigned(authorization, signedFor, jpeg(1000));
    EXPECT_EQ(replay.status, 401);
    EXPECT_EQ(replay.body, "oauth_problem=nonce_used");
    EXPECT_EQ(replay.headers.find("Content-Type")->second, "text/plain");
    const Reply bare = client->post("/services/rest/", {}, "method=x", "application/x-www-form-urlencoded");
    EXPECT_TRUE(bare.body.startsWith("oauth_problem=parameter_absent&oauth_parameters_absent=oauth_consumer_key%26"));
    EXPECT_EQ(server.photos().size(), 1u);
}

TEST_F(FlickrService, RefusesRequestsWithoutAProperBody) {
    const Reply twoPhotos = client->uploadSigned({}, {{"photo", "1"}}, jpeg(100));
    EXPECT_EQ(twoPhotos.status, 400);
    EXPECT_EQ(twoPhotos.body, "Bad request: there are two photos.\n");
    EXPECT_EQ(client->post("/services/upload/", {}, jpeg(100), "image/jpeg").status, 400);
    httplib::Client chunked(server.url().toStdString());
    const auto endAtOnce = [](size_t, httplib::DataSink &sink) {
        sink.done();
        return true;
    };
    EXPECT_EQ(chunked.Post("/services/upload/", endAtOnce, "multipart/form-data; boundary=B")->status, 411);
    EXPECT_EQ(client->upload({{"title", "A"}}, jpeg(5000)).status, 200);
}

TEST_F(FlickrService, ListsAlbumsAndFilesPhotosInThemOnce) {
    QXmlStreamReader xml(client->call("flickr.photosets.getList").body);
    QStringList titles;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("title"))
            titles.append(xml.readElementText());
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    ASSERT_EQ(titles.size(), 500);
    EXPECT_EQ(titles.first(3), (QStringList{QStringLiteral("Holidays"), QStringLiteral("Family & friends"),
                                            QStringLiteral("Straßenfotos 日本")}));

    const QByteArray id = photoIdIn(client->upload({}, jpeg(10)));
    const auto add = [&](const QByteArray &album, const QByteArray &photo) {
        return errorIn(client->call("flickr.photosets.addPhoto", {{"photoset_id", album}, {"photo_id", photo}}));
    };
    EXPECT_EQ(add("4711", id), "1");
    EXPECT_EQ(add("72157600000000001", "4711"), "2");
    EXPECT_EQ(add("72157600000000001", id), "none");
    EXPECT_EQ(add("72157600000000001", id), "3");
    EXPECT_EQ(server.albums().at(0).photos, QList<qint64>{id.toLongLong()});
    EXPECT_EQ(errorIn(client->call("flickr.photos.delete")), "112");
}

TEST_F(FlickrService, EscapesEverythingOnThePage) {
    EXPECT_TRUE(client->get("/").body.contains("korvane share flickr"));
    const QByteArray attack("\"><script>alert('x')</script>&amp;");
    client->upload({{"title", attack}, {"description", attack}, {"tags", attack}}, jpeg(10));
    const Reply reply = client->get("/");
    EXPECT_FALSE(reply.body.contains("<script>alert"));
    EXPECT_EQ(reply.body.count("&quot;&gt;&lt;script&gt;alert('x')&lt;/script&gt;&amp;amp;"), 3);
    EXPECT_NE(reply.headers.find("Content-Security-Policy")->second.find("default-src 'none'"), std::string::npos);
}

} // namespace standin::test
