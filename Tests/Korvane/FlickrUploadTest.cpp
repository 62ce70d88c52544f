// Photo uploads into the stand-in, which checks every signature on its own.
#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrResponse.h"
#include "Platform/Accounts/ACAccount.h"
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/Dispatch.h"
#include "Platform/Social/SLRequest.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/Printing.h"
#include "Tests/Support/StandInAccount.h"
#include "Tests/Support/WaitFor.h"

#include <QCryptographicHash>
#include <QSet>

#include <gtest/gtest.h>

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

    // The error that the completion got; fails the test unless it came once, on the main thread.
    std::optional<NSError> upload(const std::shared_ptr<FlickrPost> &post) {
        int completions = 0;
        std::optional<NSError> result;
        EXPECT_TRUE(post->uploadToAccount(flickr.account, [&](const std::optional<NSError> &error) {
            EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
            ++completions;
            result = error;
        }));
        EXPECT_TRUE(waitFor([&] { return completions > 0; }));
        EXPECT_EQ(completions, 1);
        return result;
    }

    QStringList parametersOf(const standin::Request &request) {
        QStringList texts;
        for (const auto &[name, value] : request.parameters)
            texts.append(QString::fromUtf8(name + '=' + value));
        texts.sort();
        return texts;
    }
};

} // namespace

TEST_F(FlickrUpload, SendsJustThePhotoAndItsAudience) {
    EXPECT_EQ(upload(post(jpeg)), std::nullopt);
    ASSERT_EQ(flickr.server.requests().size(), 1u);
    const auto request = flickr.server.requests()[0];
    EXPECT_EQ(parametersOf(request), (QStringList{QStringLiteral("hidden=1"), QStringLiteral("is_family=0"),
                                                  QStringLiteral("is_friend=0"), QStringLiteral("is_public=1")}));
    EXPECT_EQ(request.path, "/services/upload/");
    EXPECT_EQ(request.photoContentType, "image/jpeg");
    EXPECT_TRUE(request.photoFileName.isEmpty());
    EXPECT_EQ(request.photoSha256, QCryptographicHash::hash(jpeg, QCryptographicHash::Sha256).toHex());
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
    EXPECT_EQ(parametersOf(flickr.server.requests()[0]),
              (QStringList{QStringLiteral("content_type=3"), QStringLiteral("description="), QStringLiteral("hidden=2"),
                           QStringLiteral("is_family=1"), QStringLiteral("is_friend=1"), QStringLiteral("is_public=0"),
                           QStringLiteral("safety_level=2"), QStringLiteral("tags=a b c"),
                           QStringLiteral("title=") + *full->title}));
    const auto noTags = post(jpeg);
    noTags->tags = QStringList();
    EXPECT_EQ(upload(noTags), std::nullopt);
    EXPECT_FALSE(parametersOf(flickr.server.requests()[1]).join(u'|').contains(QStringLiteral("tags")));
}

TEST_F(FlickrUpload, NamesThePartByTheBytes) {
    const QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000000010000000108060000001f15c489") +
                           jpegOfSize(100).mid(20);
    const QByteArray gif = "GIF89a" + QByteArray(100, '\x01');
    for (const auto &[bytes, type] :
         {std::pair{png, "image/png"}, {gif, "application/octet-stream"}, {jpeg, "image/jpeg"}}) {
        upload(post(bytes));
        EXPECT_EQ(flickr.server.requests().back().photoContentType, type);
    }
}

TEST_F(FlickrUpload, RetriesThreeTimesWithANewSignatureEachTime) {
    flickr.server.on("upload").dropAfterBytes(1000, 3).thenOk();
    EXPECT_EQ(upload(post(jpeg)), std::nullopt);
    EXPECT_EQ(log.lines(),
              (QStringList{QStringLiteral("Flickr request failed with error -1005, trying again. Fail count: 0"),
                           QStringLiteral("Flickr request failed with error -1005, trying again. Fail count: 1"),
                           QStringLiteral("Flickr request failed with error -1005, trying again. Fail count: 2")}));
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
    struct Case {
        int status;
        const char *type;
        const char *body;
        qint64 code;
        const char *description;
    };
    const Case cases[] = {
        {200, "text/xml", "<rsp stat=\"fail\"><err code=\"5\" msg=\"Filetype was not recognised\"/></rsp>", 5,
         "Filetype was not recognised"},
        {401, "text/plain", "oauth_problem=token_rejected", -1, "oauth_problem=token_rejected"},
        {500, "text/html", "<html><body>Oops<br></body></html>", -1, "<html><body>Oops<br></body></html>"},
        {200, "text/xml", "<rsp stat=\"ok\"><photoid>1", -1, "<rsp stat=\"ok\"><photoid>1"},
    };
    for (const Case &test : cases) {
        flickr.server.on("upload").answer(test.status, test.type, test.body);
        const auto error = upload(post(jpeg));
        ASSERT_TRUE(error) << test.body;
        EXPECT_EQ(error->domain(), FlickrResponseErrorDomain);
        EXPECT_EQ(error->code(), test.code);
        EXPECT_EQ(error->userInfo().value(NSLocalizedDescriptionKey).toString(), QLatin1String(test.description));
    }
    flickr.server.on("upload").answer(200, "text/plain", "");
    EXPECT_EQ(upload(post(jpeg))->code(), -1) << "an answer with an empty body is an answer";
    EXPECT_EQ(flickr.server.requests().size(), 5u);
    EXPECT_EQ(checkpoint, 0);
}

TEST_F(FlickrUpload, AddsThePhotoToItsSetAndIsDoneWhateverComesOfThat) {
    const qint64 album = flickr.server.albums()[0].id;
    const auto inAlbum = post(jpeg);
    inAlbum->photoSetID = album;
    EXPECT_EQ(upload(inAlbum), std::nullopt);
    EXPECT_EQ(flickr.server.photos()[0].albums, QList<qint64>{album});
    EXPECT_EQ(
        parametersOf(flickr.server.requests()[1]),
        (QStringList{QStringLiteral("method=flickr.photosets.addPhoto"), QStringLiteral("photo_id=%1").arg(checkpoint),
                     QStringLiteral("photoset_id=%1").arg(album)}));

    const auto inUnknownAlbum = post(jpeg);
    inUnknownAlbum->photoSetID = 5;
    EXPECT_EQ(upload(inUnknownAlbum), std::nullopt);
    EXPECT_EQ(log.lines(), QStringList());

    flickr.server.on("addPhoto").dropBeforeAnswer(4);
    const auto cutOff = post(jpeg);
    cutOff->photoSetID = album;
    EXPECT_EQ(upload(cutOff), std::nullopt);
    EXPECT_TRUE(log.lines().last().startsWith(
        QStringLiteral("########### Failed to add %1 to photo set %2! Error Domain=NSURLErrorDomain")
            .arg(checkpoint)
            .arg(album)))
        << log.lines().last().toStdString();
}

TEST_F(FlickrUpload, ContinuesWithTheSetAloneOnceThePhotoHasAnId) {
    EXPECT_EQ(upload(post(jpeg)), std::nullopt);
    const auto later = FlickrPost::init();
    later->photoID = checkpoint;
    later->photoSetID = flickr.server.albums()[1].id;
    EXPECT_EQ(upload(later), std::nullopt);
    EXPECT_EQ(flickr.server.photos().size(), 1u);
    EXPECT_EQ(flickr.server.photos()[0].albums, QList<qint64>{later->photoSetID});
    const auto nothingLeft = FlickrPost::init();
    nothingLeft->photoID = checkpoint;
    EXPECT_EQ(upload(nothingLeft), std::nullopt);
    EXPECT_EQ(flickr.server.requests().size(), 2u);
}

TEST_F(FlickrUpload, ReadsFilesAndEncodesAssetsOfTheLibrary) {
    const auto fromFile = FlickrPost::init();
    fromFile->assetURL = NSURL::fileURLWithPath(home.file(QStringLiteral("a b.jpg"), jpeg));
    EXPECT_EQ(upload(fromFile), std::nullopt);
    EXPECT_EQ(flickr.server.requests()[0].photoSha256,
              QCryptographicHash::hash(jpeg, QCryptographicHash::Sha256).toHex());

    const auto missing = FlickrPost::init();
    missing->assetURL =
        NSURL::URLWithString(QStringLiteral("assets-library://asset/asset.JPG?id=pictures%2Fnone.jpg&ext=JPG"));
    const auto error = upload(missing);
    ASSERT_TRUE(error);
    EXPECT_EQ(*error, NSError(FlickrPostErrorDomain, 3));
    EXPECT_EQ(log.lines().last(), QStringLiteral("Failed to get asset for URL ") + missing->assetURL->absoluteString());
}

TEST_F(FlickrUpload, NeedsAnAccountAndUsesItsOwn) {
    EXPECT_FALSE(post(jpeg)->uploadToAccount(nullptr, [](const auto &) { FAIL(); }));
    ACAccountStore store;
    flickr.account =
        store.saveAccount(flickr.account->accountType(), QStringLiteral("stranger"),
                          {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")});
    const auto error = upload(post(jpeg));
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->localizedDescription().startsWith(QStringLiteral("oauth_problem=")));
}

TEST_F(FlickrUpload, CompletesOnTheMainThreadAlsoWhenStartedElsewhere) {
    std::atomic<int> state = 0;
    std::thread([&] {
        post(jpeg)->uploadToAccount(flickr.account, [&](const auto &) {
            state = QThread::currentThread() == QCoreApplication::instance()->thread() ? 1 : 2;
        });
    }).join();
    ASSERT_TRUE(waitFor([&] { return state != 0; }));
    EXPECT_EQ(state, 1);
}

TEST(FlickrUploadDeathTest, StopsOnAPostWithoutPhoto) {
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto uploadNothing = [](const char *url) {
        const TemporaryHome home;
        const auto post = FlickrPost::init();
        if (url) post->assetURL = NSURL::URLWithString(QLatin1String(url));
        const auto account = ACAccountStore().saveAccount(
            ACAccountStore().accountTypeWithAccountTypeIdentifier(ACAccountTypeIdentifierFlickr), QStringLiteral("u"),
            {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")});
        post->uploadToAccount(account, [](const auto &) {});
    };
    EXPECT_DEATH(uploadNothing("http://elsewhere/a.jpg"),
                 "Got asset URL http://elsewhere/a.jpg\n.*\\(0\\).*Korvane/FlickrPost.*208");
    EXPECT_DEATH(uploadNothing(nullptr), "Got asset URL \\(null\\)");
    EXPECT_DEATH(uploadNothing("file:///nowhere/a.jpg"), "\\(_photoData\\).*Korvane/FlickrPost.*100");
}
