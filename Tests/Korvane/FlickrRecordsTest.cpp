// Posts, answers and encodings: everything of Flickr that needs no network.
#include "Korvane/FlickrPhotoSetResponse.h"
#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrResponse.h"
#include "Korvane/KorvaneAdditions.h"
#include "Tests/Support/Testing.h"

using namespace korvane;
using namespace korvane::test;

namespace {

// Every key of a record, as it crosses between the programs.
const QString address = QStringLiteral("assets-library://asset/asset.JPG?id=pictures%2Fa%7E&ext=JPG");
const QVariantMap fullRecord{{QStringLiteral("assetURL"), address},
                             {QStringLiteral("photoData"), QVariant::fromValue(NSData("bytes"))},
                             {QStringLiteral("title"), QStringLiteral("Title")},
                             {QStringLiteral("description"), QStringLiteral("Words")},
                             {QStringLiteral("tags"), QStringList{QStringLiteral("a"), QStringLiteral("b c")}},
                             {QStringLiteral("photoSetID"), Q_INT64_C(72157600000000001)},
                             {QStringLiteral("visibility"), qint32(6)},
                             {QStringLiteral("safetyLevel"), qint32(2)},
                             {QStringLiteral("contentType"), qint32(3)},
                             {QStringLiteral("hidden"), true}};

void expectRecord(const QVariantMap &actual, const QVariantMap &expected) {
    EXPECT_EQ(actual.keys(), expected.keys());
    for (auto entry = expected.begin(); entry != expected.end(); ++entry) {
        EXPECT_EQ(actual.value(entry.key()), *entry) << entry.key().toStdString();
        EXPECT_EQ(actual.value(entry.key()).typeId(), entry->typeId()) << entry.key().toStdString();
    }
}

} // namespace

TEST(QueryEncoding, EscapesAllButUnreservedCharactersAndSortsByCode) {
    EXPECT_EQ(EncodedStringForParameterDictionary({}), QString());
    EXPECT_EQ(EncodedStringForParameterDictionary({{QStringLiteral("a&b"), QStringLiteral("a b&c")},
                                                   {QStringLiteral("Z"), 3},
                                                   {QStringLiteral("n"), true},
                                                   {QStringLiteral("o"), false}}),
              QStringLiteral("Z=3&a%26b=a%20b%26c&n=1&o=0"));
    EXPECT_EQ(urlParameterEscapedString(QStringLiteral("ü-._~!*'();:@&=+$,/?%#[]\"<\n%41")),
              QStringLiteral("%C3%BC-._~%21%2A%27%28%29%3B%3A%40%26%3D%2B%24%2C%2F%3F%25%23%5B%5D%22%3C%0A%2541"));
}

TEST(FlickrPostRecord, HoldsEveryPropertyUnderItsKey) {
    const auto post = FlickrPost::initWithDictionary(fullRecord);
    EXPECT_EQ(post->title, QStringLiteral("Title"));
    EXPECT_EQ(post->safetyLevel, 2);
    EXPECT_EQ(post->visibility, FlickrVisibilityFriends | FlickrVisibilityFamily);
    expectRecord(post->serializedDictionary(), fullRecord);
}

TEST(FlickrPostRecord, HoldsOnlyWhatIsSetAndTheFiveNumbers) {
    const auto post = FlickrPost::init();
    QVariantMap expected{{QStringLiteral("photoSetID"), qint64(0)},
                         {QStringLiteral("visibility"), qint32(0)},
                         {QStringLiteral("safetyLevel"), qint32(0)},
                         {QStringLiteral("contentType"), qint32(0)},
                         {QStringLiteral("hidden"), false}};
    expectRecord(post->serializedDictionary(), expected);
    expectRecord(FlickrPost::initWithDictionary({})->serializedDictionary(), expected);
    post->tags = QStringList();
    post->title = QString();
    expected.insert(QStringLiteral("tags"), QStringList());
    expected.insert(QStringLiteral("title"), QString());
    expectRecord(post->serializedDictionary(), expected);
}

TEST(FlickrPostRecord, TakesWhatItCanFromARecordOfAnyKind) {
    const auto post = FlickrPost::initWithDictionary({{QStringLiteral("assetURL"), QStringLiteral("not a url")},
                                                      {QStringLiteral("photoData"), QStringLiteral("text")},
                                                      {QStringLiteral("title"), 5},
                                                      {QStringLiteral("postDescription"), QStringLiteral("wrong key")},
                                                      {QStringLiteral("tags"), QStringLiteral("a b")},
                                                      {QStringLiteral("visibility"), QStringLiteral("6 and more")},
                                                      {QStringLiteral("hidden"), QStringLiteral("yes")},
                                                      {QStringLiteral("photoSetID"), 4294967299.0},
                                                      {QStringLiteral("unknown"), QVariantMap()}});
    EXPECT_FALSE(post->assetURL || post->photoData || post->title || post->postDescription || post->tags);
    EXPECT_EQ(post->visibility, 6u);
    EXPECT_TRUE(post->hidden);
    EXPECT_EQ(post->photoSetID, Q_INT64_C(4294967299));
    EXPECT_EQ(FlickrPost::initWithDictionary({{QStringLiteral("photoData"), QByteArray("b")}})->photoData, NSData("b"));
}

TEST(FlickrResponse, ReadsTheAnswerAsItsEventsCome) {
    const QByteArray foreign = "<!DOCTYPE a [<!ENTITY e SYSTEM \"file:///etc/passwd\">]>"
                               "<rsp stat=\"ok\"><photoid>7&e;</photoid></rsp>";
    QByteArray bomb = "<!DOCTYPE b [<!ENTITY a \"aaaaaaaaaa\">";
    for (char c = 'b'; c < 'k'; ++c)
        bomb += QByteArray("<!ENTITY ") + c + " \"" + QByteArray("&X;").replace('X', char(c - 1)).repeated(10) + "\">";
    bomb += "]><rsp stat=\"ok\"><photoid>1&j;</photoid></rsp>";
    const std::tuple<QByteArray, bool, qint64, qint32, std::optional<QString>> cases[] = {
        {"<rsp stat=\"ok\"><photoid>53000000001</photoid></rsp>", true, 53000000001, 0, {}},
        {"<rsp stat=\"ok\"><photoid> 12<![CDATA[34]]>x</photoid></rsp>", true, 1234, 0, {}},
        {"<rsp stat=\"fail\"><err code=\"5\" msg=\"A &amp; B\"/></rsp>", false, 0, 5, QStringLiteral("A & B")},
        {"<rsp stat=\"fail\"><err/></rsp>", false, 0, 0, {}},
        {"<rsp stat=\"fail\"><photoid>7</photoid></rsp>", true, 7, 0, {}},
        {"<rsp><photoid>7</photoid><err code=\"x\" msg=\"m\"/></rsp>", false, 7, 0, QStringLiteral("m")},
        {"<rsp></rsp>", false, 0, 0, {}},
        {"<html/>", false, 0, 0, {}},
        {"", false, 0, -1, QString()},
        {"oauth_problem=token_rejected", false, 0, -1, QStringLiteral("oauth_problem=token_rejected")},
        {"<rsp><photoid>7</photoid>", false, 7, -1, QStringLiteral("<rsp><photoid>7</photoid>")},
        {"\xff\xfe", false, 0, -1, {}},
        {"cut off in a character \xc3", false, 0, -1, {}},
        {foreign, true, 7, 0, {}},
        {bomb, false, 0, -1, QString::fromUtf8(bomb)},
    };
    for (const auto &[body, success, photoID, code, description] : cases) {
        SCOPED_TRACE(body.constData());
        const auto response = FlickrResponse::responseWithData(NSData(body));
        EXPECT_EQ(response->isSuccess(), success);
        EXPECT_EQ(response->photoID, photoID);
        EXPECT_EQ(response->errorCode, code);
        EXPECT_EQ(response->errorDescription, description);
    }
}

TEST(FlickrPhotoSetResponse, ListsTheSetsBehindTheNoSetEntry) {
    const QByteArray body = "<rsp stat=\"ok\"><photosets><photoset id=\"72157600000000001\" primary=\"9\" farm=\"2\" "
                            "server=\"x\" secret=\"s\">"
                            "<title>A &amp; <![CDATA[B]]></title><description>d</description></photoset>"
                            "<photoset id=\"2\"><title/></photoset>";
    const auto setsIn = [](const std::optional<NSData> &data) {
        return FlickrPhotoSetResponse::responseWithData(data)->photoSets;
    };
    const auto sets = setsIn(NSData(body + "</photosets></rsp>"));
    ASSERT_EQ(sets.size(), 3u);
    EXPECT_EQ(sets[0].identifier, 0);
    EXPECT_EQ(sets[0].title, QStringLiteral("No album"));
    EXPECT_EQ(sets[1].identifier, Q_INT64_C(72157600000000001));
    EXPECT_EQ(sets[1].primaryPhotoID, 9);
    EXPECT_EQ(sets[1].farmID, 2);
    EXPECT_EQ(sets[1].serverID, 0);
    EXPECT_EQ(sets[1].secret, QStringLiteral("s"));
    EXPECT_EQ(sets[1].title, QStringLiteral("A & B"));
    EXPECT_EQ(sets[1].photoSetDescription, QStringLiteral("d"));
    EXPECT_EQ(sets[2].title, QString());
    EXPECT_EQ(sets[2].secret, std::nullopt);
    EXPECT_TRUE(sets[1].description().endsWith(
        QStringLiteral(" -- Title: A & B Description: d (id: 72157600000000001 primary photo: 9)")));

    EXPECT_EQ(setsIn(NSData(body)).size(), 3u) << "what came before a break stands";
    EXPECT_EQ(setsIn(NSData("<rsp stat=\"fail\"><err code=\"98\"/></rsp>")).size(), 1u);
    EXPECT_EQ(setsIn(std::nullopt).size(), 1u);
}
