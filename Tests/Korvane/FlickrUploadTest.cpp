// Photo uploads into the stand-in, which checks every signature on its own.
#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrResponse.h"
#include "Platform/Accounts/ACAccount.h"
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/Dispatch.h"
#include "Platform/Social/SLRequest.h"
#include "Tests/Support/StandInAccount.h"
#include "Tests/Support/Testing.h"

#include <QSet>

#include <thread>

using namespace korvane;
using namespace korvane::test;

namespace {

struct FlickrUpload : ::testing::Test {
    TemporaryHome home;
    StandInAccount flickr{home};
    LogCapture log;
    const QByteArray jpeg = jpegOfSize(300'000);
    qint64 checkpoint = 0;

    std::shared_ptr<FlickrPost> post(const QByteArray &bytes) {
        const auto post = FlickrPost::init();
        post->photoData = NSData(bytes);
        post->visibility = FlickrVisibilityPublic;
        post->checkpoint = [this](qint64 photoID) { checkpoint = photoID; };
        return post;
    }

    // Uploads from another thread, as the service does. The error that the completion got; fails the test unless it
    // came once, on the main thread.
    std::optional<NSError> upload(const std::shared_ptr<FlickrPost> &post) {
        int completions = 0;
        std::optional<NSError> result;
        const auto completion = [&](const std::optional<NSError> &error) {
            EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
            ++completions;
            result = error;
        };
        std::thread([&] { EXPECT_TRUE(post->uploadToAccount(flickr.account, completion)); }).join();
        EXPECT_TRUE(waitFor([&] { return completions > 0; }));
        EXPECT_EQ(completions, 1);
        return result;
    }

    // In alphabetical order, as "name=value|name=value".
    QByteArray parametersOf(size_t request) {
        const standin::Parameters parameters = flickr.server.requests().at(request).parameters;
        QByteArrayList pairs;
        for (const auto &[name, value] : parameters)
            pairs.append(name + '=' + value);
        std::sort(pairs.begin(), pairs.end());
        return pairs.join('|');
    }
};

} // namespace

TEST_F(FlickrUpload, SendsJustThePhotoAndItsAudience) {
    EXPECT_FALSE(post(jpeg)->uploadToAccount(nullptr, [](const auto &) { FAIL(); })) << "there is no account";
    EXPECT_EQ(upload(post(jpeg)), std::nullopt);
    ASSERT_EQ(flickr.server.requests().size(), 1u);
    const auto request = flickr.server.requests()[0];
    EXPECT_EQ(parametersOf(0), "hidden=1|is_family=0|is_friend=0|is_public=1");
    EXPECT_EQ(request.path, "/services/upload/");
    EXPECT_EQ(request.photoContentType, "image/jpeg");
    EXPECT_TRUE(request.photoFileName.isEmpty());
    EXPECT_EQ(request.photoSha256, sha256Of(jpeg));
    EXPECT_EQ(checkpoint, flickr.server.photos()[0].id);
}

TEST_F(FlickrUpload, SignsAndSendsEveryParameterWhateverItHolds) {
    const auto full = post(jpeg);
    full->title = QStringLiteral("ü & = + % ~ \" ' \r\n --x\n日本 😀");
    full->postDescription = QString();
    full->tags = QStringList{QStringLiteral("a"), QStringLiteral("b c")};
    full->visibility = FlickrVisibilityFriends | FlickrVisibilityFamily;
    full->safetyLevel = 2;
    full->contentType = 3;
    full->hidden = true;
    EXPECT_EQ(upload(full), std::nullopt);
    EXPECT_EQ(parametersOf(0), "content_type=3|description=|hidden=2|is_family=1|is_friend=1|is_public=0|"
                               "safety_level=2|tags=a b c|title=" +
                                   full->title->toUtf8());
    const auto noTags = post(jpeg);
    noTags->tags = QStringList();
    EXPECT_EQ(upload(noTags), std::nullopt);
    EXPECT_FALSE(says(parametersOf(1), "tags"));
}

TEST_F(FlickrUpload, NamesThePartByTheBytes) {
    for (const auto &[file, type] : {std::pair("quarters.png", "image/png"),
                                     {"animated.gif", "application/octet-stream"},
                                     {"orientation-1.jpg", "image/jpeg"}}) {
        upload(post(dataBytes(file)));
        EXPECT_EQ(flickr.server.requests().back().photoContentType, type);
    }
}

TEST_F(FlickrUpload, RetriesThreeTimesWithANewSignatureEachTime) {
    flickr.server.on("upload").dropAfterBytes(1000, 3).thenOk();
    EXPECT_EQ(upload(post(jpeg)), std::nullopt);
    ASSERT_EQ(log.lines().size(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(log.lines()[i],
                  QStringLiteral("Flickr request failed with error -1005, trying again. Fail count: %1").arg(i));
    EXPECT_EQ(flickr.server.photos().size(), 1u);

    flickr.server.on("upload").dropAfterBytes(1000, 4);
    const auto error = upload(post(jpeg));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code(), NSURLErrorNetworkConnectionLost);
    EXPECT_EQ(log.lines().size(), 6);
    QSet<QByteArray> nonces;
    for (const auto &request : flickr.server.requests())
        nonces.insert(request.oauthNonce);
    EXPECT_EQ(nonces.size(), qsizetype(flickr.server.requests().size()));
}

TEST_F(FlickrUpload, ReportsWhatFlickrSaysWithoutRetry) {
    const std::tuple<int, const char *, qint64, const char *> cases[] = {
        {200, "<rsp stat=\"fail\"><err code=\"5\" msg=\"Not recognised\"/></rsp>", 5, "Not recognised"},
        {401, "oauth_problem=token_rejected", -1, "oauth_problem=token_rejected"},
        {500, "<html><body>Oops<br></body></html>", -1, "<html><body>Oops<br></body></html>"},
    };
    for (const auto &[status, body, code, description] : cases) {
        flickr.server.on("upload").answer(status, "text/html", body);
        const auto error = upload(post(jpeg));
        EXPECT_EQ(error, NSError::errorWithDescription(FlickrResponseErrorDomain, code, QLatin1String(description)));
    }
    flickr.server.on("upload").answer(200, "text/plain", "");
    EXPECT_EQ(upload(post(jpeg))->code(), -1) << "an answer with an empty body is an answer";
    EXPECT_EQ(flickr.server.requests().size(), 4u);
    EXPECT_EQ(checkpoint, 0);
}

TEST_F(FlickrUpload, AddsThePhotoToItsSetAndIsDoneWhateverComesOfThat) {
    const qint64 album = flickr.server.albums()[0].id;
    const auto inAlbum = post(jpeg);
    inAlbum->photoSetID = album;
    EXPECT_EQ(upload(inAlbum), std::nullopt);
    EXPECT_EQ(flickr.server.photos()[0].albums, QList<qint64>{album});
    const QByteArray photoID = QByteArray::number(checkpoint);
    EXPECT_EQ(parametersOf(1),
              "method=flickr.photosets.addPhoto|photo_id=" + photoID + "|photoset_id=" + QByteArray::number(album));

    const auto inUnknownAlbum = post(jpeg);
    inUnknownAlbum->photoSetID = 5;
    EXPECT_EQ(upload(inUnknownAlbum), std::nullopt);
    EXPECT_EQ(log.lines(), QStringList());

    flickr.server.on("addPhoto").dropBeforeAnswer(4);
    const auto cutOff = post(jpeg);
    cutOff->photoSetID = album;
    EXPECT_EQ(upload(cutOff), std::nullopt);
    EXPECT_TRUE(says(log.lines().last(), "########### Failed to add " + QByteArray::number(checkpoint) +
                                             " to photo set " + QByteArray::number(album) +
                                             "! Error Domain=NSURLErrorDomain"));
}

TEST_F(FlickrUpload, ReadsFilesAndEncodesAssetsOfTheLibrary) {
    const auto fromFile = FlickrPost::init();
    fromFile->assetURL = NSURL::fileURLWithPath(home.file("a b.jpg", jpeg));
    EXPECT_EQ(upload(fromFile), std::nullopt);
    EXPECT_EQ(flickr.server.requests()[0].photoSha256, sha256Of(jpeg));

    const auto asset = FlickrPost::init();
    asset->assetURL =
        ALAssetsLibrary::assetURLForFile(home.file("library/Pictures/a.heic", dataBytes("quarters.heic")));
    EXPECT_EQ(upload(asset), std::nullopt);
    EXPECT_EQ(flickr.server.requests()[1].photoContentType, "image/jpeg");

    const auto missing = FlickrPost::init();
    missing->assetURL =
        NSURL::URLWithString(QStringLiteral("assets-library://asset/asset.JPG?id=pictures%2Fnone.jpg&ext=JPG"));
    EXPECT_EQ(upload(missing), NSError(FlickrPostErrorDomain, 3));
    EXPECT_EQ(log.lines().last(), QStringLiteral("Failed to get asset for URL ") + missing->assetURL->absoluteString());
}

TEST(FlickrUploadDeathTest, StopsOnAPostWithoutPhoto) {
    const auto uploadNothing = [](const char *url) {
        TemporaryHome home;
        const auto post = FlickrPost::init();
        if (url) post->assetURL = NSURL::URLWithString(QLatin1String(url));
        post->uploadToAccount(StandInAccount(home).account, [](const auto &) {});
    };
    EXPECT_DEATH(uploadNothing("http://elsewhere/a.jpg"),
                 "Got asset URL http://elsewhere/a.jpg\n.*\\(0\\).*Korvane/FlickrPost.*208");
    EXPECT_DEATH(uploadNothing(nullptr), "Got asset URL \\(null\\)");
    EXPECT_DEATH(uploadNothing("file:///nowhere/a.jpg"), "\\(_photoData\\).*Korvane/FlickrPost.*100");
}
