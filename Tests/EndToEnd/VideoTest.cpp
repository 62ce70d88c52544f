// Videos from a client to the stand-in, in good and in bad times.
#include "Tests/EndToEnd/ServiceHarness.h"

#include <QDir>
#include <QProcess>

using namespace korvane;
using namespace korvane::test;

namespace {

struct Video : ServiceTest {
    standin::StandIn &vimeo = flickr.server;

    void makeClip(const QString &path, const QStringList &sources) {
        QDir().mkpath(path.section(u'/', 0, -2));
        ASSERT_EQ(QProcess::execute(QStringLiteral("ffmpeg"),
                                    QStringList{QStringLiteral("-v"), QStringLiteral("error")} + sources +
                                        QStringList{QStringLiteral("-t"), QStringLiteral("1"), path}),
                  0);
    }
    static std::shared_ptr<VimeoPost> libraryVideo(const char *name) {
        const auto post = VimeoPost::init();
        post->assetURL = NSURL::URLWithString(QStringLiteral("assets-library://asset/asset.MP4?id=videos%2F") +
                                              QLatin1String(name) + QStringLiteral("&ext=MP4"));
        post->title = QLatin1String(name);
        return post;
    }
    bool isEmpty(const char *folder) const { return QDir(home.path(folder)).isEmpty(); }
};

} // namespace

TEST_F(Video, FilesDataAndLibraryVideosArriveAndLeaveNothingBehind) {
    makeClip(home.path("library/Videos/clip.mp4"), {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                                    QStringLiteral("testsrc2=s=640x360")});
    const QByteArray file = variedBytes(5'000'000);
    const QByteArray data = variedBytes(3'000'000, 2);
    ASSERT_TRUE(shareVideo(video("film.mov", file)));
    const auto bytes = VimeoPost::init();
    bytes->title = QStringLiteral("bytes");
    bytes->assetData = NSData(data);
    ASSERT_TRUE(shareVideo(bytes));
    const auto small = libraryVideo("clip.mp4");
    small->videoSize = VimeoVideoSizeSmall;
    ASSERT_TRUE(shareVideo(small));
    ASSERT_TRUE(waitForState("done", 3)) << errorOf(2).toStdString();

    const auto videos = vimeo.videos();
    ASSERT_EQ(videos.size(), 3u);
    EXPECT_EQ(videos[0].sha256, sha256Of(file));
    EXPECT_EQ(videos[0].tags, (QStringList{QStringLiteral("a"), QStringLiteral("b c")}));
    EXPECT_EQ(videos[0].privacy, QStringLiteral("nobody"));
    EXPECT_EQ(videos[1].sha256, sha256Of(data));
    EXPECT_EQ(videos[2].filename, QStringLiteral("video.mp4"));
    QProcess probe;
    probe.start(QStringLiteral("ffprobe"), {QStringLiteral("-v"), QStringLiteral("error"),
                                            QStringLiteral("-show_entries"), QStringLiteral("stream=codec_name,height"),
                                            QStringLiteral("-of"), QStringLiteral("csv=p=0"), videos[2].path});
    ASSERT_TRUE(probe.waitForFinished());
    EXPECT_EQ(probe.readAllStandardOutput().trimmed(), "h264,360");
    EXPECT_EQ(vimeo.protocolErrors(), QStringList());
    EXPECT_EQ(valueOf(0, "bytesConfirmed"), QStringLiteral("5000000"));
    EXPECT_TRUE(waitFor([&] { return isEmpty("state/korvane/spool"); }));
    EXPECT_TRUE(waitFor([&] { return isEmpty("state/korvane/tmp"); }));
    EXPECT_TRUE(QFile::exists(home.path("film.mov")));
}

TEST_F(Video, WhatCannotBeUploadedFailsWithWordsAndStopsNothing) {
    ask("Pause");
    makeClip(home.path("library/Videos/sound.m4a"),
             {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"), QStringLiteral("sine")});
    home.file("library/Videos/text.mp4", "no video");
    const auto untitled = video("a.mp4", variedBytes(10));
    untitled->title.reset();
    const auto missing = video("missing.mp4", variedBytes(10));
    missing->assetURL = NSURL::fileURLWithPath("/nowhere/a.mp4");
    const auto changed = video("changed.mp4", variedBytes(10));
    const auto elsewhere = VimeoPost::init();
    elsewhere->title = QString(u'e');
    elsewhere->assetURL = NSURL::URLWithString(QStringLiteral("https://elsewhere/a.mp4"));
    const std::pair<std::shared_ptr<VimeoPost>, const char *> cases[] = {
        {untitled, "needs a title"},
        {missing, "cannot be read"},
        {video("empty.mp4", ""), "is empty"},
        {changed, "has changed"},
        {elsewhere, "holds no video"},
        {libraryVideo("sound.m4a"), "sound.m4a"},
        {libraryVideo("text.mp4"), "text.mp4"},
        {libraryVideo("gone.mp4"), "gone.mp4"},
    };
    for (const auto &[post, text] : cases)
        ASSERT_TRUE(shareVideo(post)) << text;
    home.file("changed.mp4", variedBytes(20));
    ASSERT_TRUE(shareVideo(video("good.mp4", variedBytes(10))));
    ask("Resume");
    ASSERT_TRUE(waitForState("done", 1));
    EXPECT_TRUE(waitForState("failed", int(std::size(cases))));
    for (int i = 0; i < int(std::size(cases)); ++i)
        EXPECT_TRUE(errorOf(i).contains(QLatin1String(cases[i].second))) << errorOf(i).toStdString();
}

TEST_F(Video, AnswersThatMakeNoSenseFailWithWords) {
    const auto ticket = [](const char *fields) { return QByteArray(R"({"ticket":{)") + fields + "}}"; };
    struct Case {
        const char *operation;
        QByteArray body;
        const char *text;
    };
    const Case cases[] = {
        {"getQuota", R"({"user":{"upload_space":{"free":"9"},"sd_quota":"1"}})", "larger than the space"},
        {"getQuota", R"({"err":{"code":"401","msg":"Invalid signature"}})", "Invalid signature"},
        {"getTicket", "", "not understood"},
        {"getTicket", R"({"err":{"code":"999","msg":"No more today"}})", "No more today (code 999)"},
        {"getTicket", ticket(R"("endpoint":"http://127.0.0.1/")"), "has no id"},
        {"getTicket", ticket(R"("id":"1")"), "where to send"},
        {"getTicket", ticket(R"("id":"1","endpoint":"file:///etc/passwd")"), "where to send"},
        {"getTicket", ticket(R"("id":"1","endpoint":"ftp://host/")"), "begins with ftp:"},
        {"complete", R"({"err":{"code":"703","msg":"Incomplete"}})", "Incomplete"},
        {"setTitle", "[]", "not understood"},
    };
    int count = 0;
    for (const Case &test : cases) {
        vimeo.on(test.operation).answer(200, "application/json", test.body);
        ASSERT_TRUE(shareVideo(video(QStringLiteral("%1.mp4").arg(count), variedBytes(10))));
        ASSERT_TRUE(waitForState("failed", count + 1)) << test.text;
        EXPECT_TRUE(errorOf(count).contains(QLatin1String(test.text))) << errorOf(count).toStdString();
        ++count;
    }
    ask("Retry", {QStringList{QString::number(count), QString::number(count - 1)}});
    ASSERT_TRUE(waitForState("done", 2))
        << "after its refusal a video starts anew, after its commit it only gets its title";
    EXPECT_EQ(vimeo.protocolErrors(), QStringList());
}

TEST_F(Video, ACommitWithoutAnAnswerIsSetAsideAndNeverSentTwice) {
    vimeo.on("complete").dropBeforeAnswer();
    ASSERT_TRUE(shareVideo(video("a.mp4", variedBytes(3'000'000))));
    ASSERT_TRUE(waitForState("failed", 1));
    EXPECT_TRUE(errorOf(0).contains(QStringLiteral("the video may be on Vimeo; look there, then retry or remove")));
    killService(SIGTERM);
    startService();
    EXPECT_EQ(countInState("failed"), 1);
    EXPECT_EQ(valueOf(0, "mayHaveArrived"), QStringLiteral("true"));
    EXPECT_EQ(vimeo.videos()[0].commits(), 1);

    // Not connected at all is another matter: it goes on by itself.
    vimeo.on("complete").fail(503).thenOk();
    ASSERT_TRUE(shareVideo(video("b.mp4", variedBytes(3'000'000, 2))));
    ASSERT_TRUE(waitForState("done", 1));
    EXPECT_EQ(vimeo.videos()[1].sha256, sha256Of(variedBytes(3'000'000, 2)));
}

TEST_F(Video, ATicketThatIsNoLongerTakenGivesWayToANewOne) {
    vimeo.on("verify").thenOk().fail(404, 2);
    ASSERT_TRUE(shareVideo(video("a.mp4", variedBytes(5'000'000))));
    ASSERT_TRUE(waitForState("done", 1));
    ASSERT_EQ(vimeo.videos().size(), 2u);
    EXPECT_EQ(vimeo.videos()[0].commits(), 0);
    EXPECT_EQ(vimeo.videos()[1].sha256, sha256Of(variedBytes(5'000'000)));
}

TEST_F(Video, AnEndpointThatStoresNothingIsGivenUp) {
    vimeo.on("verify").reportRange(QByteArray("bytes=0-2097152"), 1000);
    ASSERT_TRUE(shareVideo(video("a.mp4", variedBytes(5'000'000))));
    ASSERT_TRUE(waitForState("failed", 1));
    EXPECT_TRUE(errorOf(0).contains(QStringLiteral("stores nothing"))) << errorOf(0).toStdString();
    EXPECT_LE(vimeo.videos()[0].operations.count("verify"), 22);
    EXPECT_GE(vimeo.videos()[0].operations.count("verify"), 20);
}

TEST_F(Video, ACountBeyondTheVideoIsNeverCommitted) {
    int count = 0;
    for (const char *range : {"bytes=0-4000000000", "bytes=--1", "bytes=0-18446744073709551615"}) {
        vimeo.on("verify").reportRange(QByteArray(range));
        ASSERT_TRUE(shareVideo(video(QStringLiteral("%1.mp4").arg(count), variedBytes(5'000'000))));
        ASSERT_TRUE(waitForState("failed", ++count)) << range;
        EXPECT_TRUE(says(errorOf(count - 1), "more of the video than there is"));
        EXPECT_EQ(vimeo.videos().back().commits(), 0);
    }
}

TEST_F(Video, AFileThatChangesUnderwayIsNeverCommitted) {
    vimeo.on("verify").thenOk().hang();
    ASSERT_TRUE(shareVideo(video("a.mp4", variedBytes(5'000'000))));
    ASSERT_TRUE(waitFor([&] { return !vimeo.videos().empty() && vimeo.videos()[0].operations.count("verify") == 2; }));
    home.file("a.mp4", variedBytes(5'000'000, 2));
    vimeo.release();
    ASSERT_TRUE(waitForState("failed", 1));
    EXPECT_TRUE(errorOf(0).contains(QStringLiteral("has changed"))) << errorOf(0).toStdString();
    EXPECT_EQ(vimeo.videos()[0].commits(), 0);
}

TEST_F(Video, APauseKeepsWhatIsThereAndARemovalEndsIt) {
    vimeo.on("chunk").thenOk().hang();
    ASSERT_TRUE(shareVideo(video("a.mp4", variedBytes(5'000'000))));
    ASSERT_TRUE(waitFor([&] { return !vimeo.videos().empty() && vimeo.videos()[0].operations.count("chunk") == 2; }));
    ask("Pause");
    ASSERT_TRUE(waitForState("queued", 1));
    ask("Resume");
    ASSERT_TRUE(waitForState("done", 1));
    ASSERT_EQ(vimeo.videos().size(), 1u);
    EXPECT_EQ(vimeo.videos()[0].sha256, sha256Of(variedBytes(5'000'000)));
    EXPECT_LE(vimeo.videos()[0].bytesReceived, 5'000'000 + 2'097'152);

    vimeo.on("chunk").hang();
    ASSERT_TRUE(shareVideo(video("b.mp4", variedBytes(5'000'000))));
    ASSERT_TRUE(waitFor([&] { return vimeo.videos().size() == 2 && vimeo.videos()[1].operations.contains("chunk"); }));
    ask("Remove", {QStringList{QStringLiteral("2")}});
    EXPECT_TRUE(waitFor([&] { return isEmpty("state/korvane/tmp"); }));
    EXPECT_EQ(uploads().size(), 1);
}
