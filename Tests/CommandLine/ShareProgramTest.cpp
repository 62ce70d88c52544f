// The program korvane with the upload service and the stand-in: what it shares, what it says of it, what it remembers.
#include "Tests/AVFoundation/VideoFixture.h"
#include "Tests/CommandLine/ProgramRun.h"
#include "Tests/EndToEnd/VideoHarness.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace korvane::test;

namespace {

struct KorvaneProgramWithService : VideoServiceTest {
    const QByteArray photo = home.file("a.jpg", jpegOfSize(2000));
    const QByteArray clip = QFile::encodeName(home.path("library/Videos/clip.mp4"));

    void makeLargeClip() { makeFilm(home, "library/Videos/clip.mp4", "testsrc2=s=1280x720:r=5"); }
};

struct KorvaneProgramWithManyAlbums : ::testing::Test, ServiceHarness {
    KorvaneProgramWithManyAlbums() : ServiceHarness({.albums = 500}) {}
};

} // namespace

TEST_F(KorvaneProgramWithService, SharesWaitsAndTellsWhatBecameOfEachPhoto) {
    flickr.server.on("upload").thenOk().answer(401, "text/plain", "oauth_problem=token_rejected");
    home.file("config/korvane/preferences/com.zorvex.korvane.json", R"({"FlickrParallelUploads": 1})");
    const Ending ending = run(
        {"share", "flickr", "--title", "Sommer 夏", "--wait", "--json", photo, home.file("b.jpg", jpegOfSize(3000))});
    EXPECT_EQ(ending.status, 1) << ending.errors.constData();
    const auto uploads = QJsonDocument::fromJson(ending.output);
    ASSERT_EQ(uploads.array().size(), 2) << ending.output.constData();
    EXPECT_EQ(uploads[0][QStringLiteral("state")].toString(), QStringLiteral("done"));
    EXPECT_EQ(uploads[1][QStringLiteral("state")].toString(), QStringLiteral("failed"));
    EXPECT_EQ(uploads[0][QStringLiteral("title")].toString(), QStringLiteral("Sommer 夏"));
    EXPECT_EQ(flickr.server.photos().at(0).sha256, sha256Of(jpegOfSize(2000)));
}

TEST_F(KorvaneProgramWithService, RemembersChoicesForTheNextProcessAndNamesTheAlbums) {
    home.file("config/korvane/preferences/com.zorvex.flickr-upload.json", R"({"audience": 7})");
    const Ending first =
        run({"share", "flickr", photo, "--audience", "family", "--album", "Family & friends", "--wait"});
    EXPECT_EQ(first.status, 0);
    EXPECT_EQ(first.errors, "") << "the log is not for the terminal";
    const Ending second = run({"share", "flickr", photo, "--wait"});
    EXPECT_EQ(second.status, 0);
    EXPECT_TRUE(says(second.output, "(Album: Family & friends, Audience: Family)"));
    const auto album = flickr.server.albums().at(1);
    EXPECT_EQ(album.photos.size(), 2u);
    const auto choices = flickr.server.photos().at(1).parameters;
    EXPECT_EQ(standin::valueOf(choices, "is_family"), "1");
    EXPECT_EQ(standin::valueOf(choices, "is_public"), "0");

    const Ending unknown = run({"share", "flickr", photo, "--album", "No such"});
    EXPECT_EQ(unknown.status, 2);
    for (const char *said : {"no album “No such”", "Holidays", "Family & friends", "Nothing was shared."})
        EXPECT_TRUE(says(unknown.errors, said)) << unknown.errors.constData();
    const auto listed = QJsonDocument::fromJson(run({"albums", "--json"}).output);
    EXPECT_EQ(listed[1][QStringLiteral("id")].toString(), QString::number(album.id));
    EXPECT_EQ(run({"share", "flickr", photo, "--album", QByteArray::number(album.id), "--wait"}).status, 0);
    EXPECT_EQ(flickr.server.albums().at(1).photos.size(), 3u);
}

TEST_F(KorvaneProgramWithService, LeavesTheRememberedAlbumForGoodWithoutAskingFlickr) {
    home.file("config/korvane/preferences/com.zorvex.flickr-upload.json",
              QStringLiteral(R"({"photosetID": %1, "photosetTitle": "Holidays", "audience": 3})")
                  .arg(flickr.server.albums().at(0).id)
                  .toUtf8());
    EXPECT_EQ(run({"share", "flickr", photo, "--no-album", "--wait"}).status, 0);
    EXPECT_EQ(run({"share", "flickr", photo, "--wait"}).status, 0);
    EXPECT_EQ(flickr.server.photos().size(), 2u);
    EXPECT_EQ(requestsFor("getList") + requestsFor("addPhoto"), 0);
    EXPECT_EQ(standin::valueOf(flickr.server.photos().at(1).parameters, "is_public"), "0") << "the audience stays";
}

TEST_F(KorvaneProgramWithManyAlbums, AreListedAndChosenFrom) {
    EXPECT_EQ(QJsonDocument::fromJson(run({"albums", "--json"}).output).array().size(), 500);
    const QByteArray photo = home.file("a.jpg", jpegOfSize(2000));
    const Ending ending = run({"share", "flickr", photo, "--album", "Album 400", "--wait"});
    EXPECT_EQ(ending.status, 0) << ending.errors.constData();
    EXPECT_EQ(flickr.server.albums().at(399).photos.size(), 1u);
}

TEST_F(KorvaneProgramWithService, WhatFlickrSaysOfAlbumsIsToldInLinesOfItsOwn) {
    const QByteArray refusal = R"(<rsp stat="fail"><err code="98" msg="Invalid auth&#10;korvane: no"/></rsp>)";
    const QByteArray crafty = R"(<rsp stat="ok"><photosets><photoset id="7"><title>A&#10;8  B&#x9b;2J</title>)"
                              "</photoset></photosets></rsp>";
    flickr.server.on("getList").answer(200, "text/xml", refusal).answer(200, "text/xml", crafty, 2);
    const Ending refused = run({"albums"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(says(refused.errors, "Invalid auth korvane: no"));
    const QByteArray line = "7  A 8  B\uFFFD2J\n";
    EXPECT_EQ(run({"albums"}).output, line);
    EXPECT_TRUE(says(run({"share", "flickr", photo, "--album", "C"}).errors, "  " + line));
}

TEST_F(KorvaneProgramWithService, TellsAnUnusableCredentialFromAMissingAccount) {
    makeLargeClip();
    home.file("config/korvane/credentials.json", "{}");
    const QByteArrayList video{"share", "vimeo", clip, "--title", "a"};
    for (const QByteArrayList &arguments :
         {video, {"share", "flickr", photo, "--album", "Holidays"}, QByteArrayList{"albums"}}) {
        const Ending ending = run(arguments);
        EXPECT_EQ(ending.status, 3);
        EXPECT_TRUE(says(ending.errors, "account of standin cannot be used. "));
        EXPECT_TRUE(says(ending.errors, "Add the account again."));
        EXPECT_FALSE(says(ending.errors, "There is no")) << ending.errors.constData();
        EXPECT_FALSE(says(ending.errors, "korvane[")) << "the log is not for the terminal";
    }
    EXPECT_EQ(run({"share", "flickr", photo}).status, 0) << "the queue waits for the credential";

    QFile::remove(home.path("config/korvane/accounts.json"));
    QDir().mkpath(home.path("config/korvane/accounts.json"));
    EXPECT_TRUE(says(run(video).errors, "The list of accounts cannot be read."));
    QDir().rmdir(home.path("config/korvane/accounts.json"));
    EXPECT_TRUE(says(run(video).errors, "korvane accounts add vimeo"));
}

TEST_F(KorvaneProgramWithService, PostsAVideoAndRemembersSizeAndPrivacyForTheNextProcess) {
    makeLargeClip();
    const Ending first = run({"share", "vimeo", clip, "--title", "Am Meer", "--description", "Zeile\nzwei", "--tag",
                              "sea", "--tag", "big sun", "--size", "small", "--privacy", "private", "--wait"});
    EXPECT_EQ(first.status, 0) << first.errors.constData();
    EXPECT_EQ(first.errors, "");
    EXPECT_EQ(run({"share", "vimeo", clip, "--title", "Danach", "--wait"}).status, 0);
    const auto videos = vimeo.videos();
    ASSERT_EQ(videos.size(), 2u);
    EXPECT_EQ(videos[0].title, QStringLiteral("Am Meer"));
    EXPECT_EQ(videos[0].description, QStringLiteral("Zeile\nzwei"));
    EXPECT_EQ(videos[0].tags, (QStringList{QStringLiteral("sea"), QStringLiteral("big sun")}));
    for (const auto &video : videos) {
        EXPECT_EQ(video.privacy, QStringLiteral("nobody"));
        EXPECT_TRUE(says(streamsOf(QFile::encodeName(video.path)), "640x360"));
    }
    EXPECT_EQ(vimeo.protocolErrors(), QStringList());
}
