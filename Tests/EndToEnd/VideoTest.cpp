// Videos from a client to the stand-in, in good and in bad times.
#include "Tests/EndToEnd/VideoHarness.h"

using namespace korvane;
using namespace korvane::test;

using Video = VideoServiceTest;

TEST_F(Video, FilesDataAndLibraryVideosArriveAndLeaveNothingBehind) {
    makeFilm(home, "library/Videos/clip.mp4");
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
    EXPECT_EQ(videos[1].sha256, sha256Of(data));
    EXPECT_EQ(videos[2].filename, QStringLiteral("video.mp4"));
    EXPECT_EQ(vimeo.protocolErrors(), QStringList());
    EXPECT_EQ(valueOf(0, "bytesConfirmed"), QStringLiteral("5000000"));
    EXPECT_TRUE(waitFor([&] { return isEmpty("state/korvane/spool"); }));
    EXPECT_TRUE(waitFor([&] { return isEmpty("state/korvane/tmp"); }));
    EXPECT_TRUE(QFile::exists(home.path("film.mov")));
}

TEST_F(Video, WhatCannotBeUploadedFailsWithWordsAndStopsNothing) {
    ask("Pause");
    makeFilm(home, "library/Videos/sound.m4a", "sine");
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
        EXPECT_TRUE(says(errorOf(i), cases[i].second));
}

TEST_F(Video, AnswersThatMakeNoSenseFailWithWords) {
    const auto ticket = [](const char *fields) { return QByteArray(R"({"ticket":{)") + fields + "}}"; };
    const std::tuple<const char *, QByteArray, const char *> cases[] = {
        {"getQuota", R"({"user":{"upload_space":{"free":"9"},"sd_quota":"1"}})", "larger than the space"},
        {"getTicket", ticket(R"("endpoint":"http://127.0.0.1/")"), "has no id"},
        {"getTicket", ticket(R"("id":"1")"), "where to send"},
        {"getTicket", ticket(R"("id":"1","endpoint":"file:///etc/passwd")"), "where to send"},
        {"getTicket", ticket(R"("id":"1","endpoint":"ftp://host/")"), "begins with ftp:"},
        {"complete", R"({"err":{"code":"703","msg":"Incomplete"}})", "Incomplete"},
    };
    int count = 0;
    for (const auto &[operation, body, text] : cases) {
        vimeo.on(operation).answer(200, "application/json", body);
        ASSERT_TRUE(shareVideo(video(QStringLiteral("%1.mp4").arg(count), variedBytes(10))));
        ASSERT_TRUE(waitForState("failed", ++count)) << text;
        EXPECT_TRUE(says(errorOf(count - 1), text));
    }
    ask("Retry", {QStringList{QString::number(count)}});
    ASSERT_TRUE(waitForState("done", 1)) << "after its refusal a video starts anew";
    EXPECT_EQ(vimeo.protocolErrors(), QStringList());
}

TEST_F(Video, WhatIsRefusedAfterTheCommitIsNamedAndSetByARetry) {
    const QByteArray refusal = R"({"err":{"code":"999","msg":"No more today"}})";
    const std::pair<const char *, const char *> cases[] = {
        {"setTitle", "title"}, {"addTags", "tags"}, {"setPrivacy", "privacy"}};
    int count = 0;
    for (const auto &[operation, missing] : cases) {
        SCOPED_TRACE(operation);
        vimeo.on(operation).answer(200, "application/json", refusal);
        const QByteArray bytes = variedBytes(3'000'000, quint32(count));
        const auto post = video(QStringLiteral("%1.mp4").arg(count), bytes);
        ASSERT_TRUE(shareVideo(post));
        ASSERT_TRUE(waitForState("failed", 1));
        const QString text = errorOf(count);
        EXPECT_TRUE(text.startsWith(QLatin1String("The video is on Vimeo, but without its ") + QLatin1String(missing)))
            << text.toStdString();
        EXPECT_TRUE(says(text, "No more today"));
        EXPECT_FALSE(says(text, "hare it again"));
        ask("Retry", {QStringList{QString::number(++count)}});
        ASSERT_TRUE(waitForState("done", count));
        ASSERT_EQ(vimeo.videos().size(), size_t(count));
        expectArrived(vimeo.videos().back(), *post, bytes);
        EXPECT_EQ(vimeo.videos().back().bytesReceived, bytes.size());
    }
}

TEST_F(Video, AWarningThatThereIsNoQuotaForHDDropsTheExportAndTheVideoGoesOn) {
    makeFilm(home, "library/Videos/clip.mp4");
    const auto large = libraryVideo("clip.mp4");
    large->videoSize = VimeoVideoSizeLarge;
    int count = 0;
    for (const bool hasQuota : {true, false}) {
        vimeo.quota(standin::Quota{.free = 1'000'000'000, .hd = hasQuota, .sd = true});
        vimeo.on("chunk").hang();
        ASSERT_TRUE(shareVideo(large));
        ASSERT_TRUE(waitFor([&] { return requestsFor("chunk") > count; }));
        const QByteArray folder = "state/korvane/tmp/video-" + QByteArray::number(++count);
        EXPECT_EQ(isEmpty(folder), !hasQuota);
        vimeo.release();
        ASSERT_TRUE(waitForState("done", count));
        EXPECT_EQ(says(log(), "no quota for high definition"), !hasQuota);
    }
    EXPECT_FALSE(vimeo.videos()[0].sha256.isEmpty());
    EXPECT_EQ(vimeo.videos()[1].sha256, vimeo.videos()[0].sha256);
}

TEST_F(Video, ACommitWithoutAnAnswerIsSetAsideAndNeverSentTwice) {
    vimeo.on("complete").dropBeforeAnswer();
    ASSERT_TRUE(shareVideo(video("a.mp4", variedBytes(3'000'000))));
    ASSERT_TRUE(waitForState("failed", 1));
    EXPECT_TRUE(says(errorOf(0), "the video may be on Vimeo; look there, then retry or remove"));
    killService(SIGTERM);
    startService();
    EXPECT_EQ(countInState("failed"), 1);
    EXPECT_EQ(valueOf(0, "mayHaveArrived"), QStringLiteral("true"));
    EXPECT_EQ(vimeo.videos()[0].commits(), 1);
}

TEST_F(Video, ATicketThatIsNoLongerTakenGivesWayToANewOne) {
    vimeo.on("verify").thenOk().fail(404, 2);
    ASSERT_TRUE(shareVideo(video("a.mp4", variedBytes(5'000'000))));
    ASSERT_TRUE(waitForState("done", 1));
    ASSERT_EQ(vimeo.videos().size(), 2u);
    EXPECT_EQ(vimeo.videos()[0].commits(), 0);
    EXPECT_EQ(vimeo.videos()[1].sha256, sha256Of(variedBytes(5'000'000)));
}

TEST_F(Video, ACountBeyondTheVideoOrThatStandsStillIsNeverCommitted) {
    const std::tuple<const char *, int, const char *> cases[] = {
        {"bytes=0-4000000000", 1, "more of the video than there is"},
        {"bytes=--1", 1, "more of the video than there is"},
        {"bytes=0-18446744073709551615", 1, "more of the video than there is"},
        {"bytes=0-2097152", 1000, "stores nothing"},
    };
    int count = 0;
    for (const auto &[range, times, text] : cases) {
        vimeo.on("verify").reportRange(QByteArray(range), times);
        ASSERT_TRUE(shareVideo(video(QStringLiteral("%1.mp4").arg(count), variedBytes(5'000'000))));
        ASSERT_TRUE(waitForState("failed", ++count)) << range;
        EXPECT_TRUE(says(errorOf(count - 1), text));
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
    EXPECT_TRUE(says(errorOf(0), "has changed"));
    EXPECT_EQ(vimeo.videos()[0].commits(), 0);
}

TEST_F(Video, APauseKeepsWhatIsThere) {
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
}

TEST_F(Video, WhatIsCommittedIsFinishedWhileItIsPausedRemovedOrStopped) {
    int count = 0;
    int kept = 0;
    for (const QByteArray operation : {"complete", "setTitle", "setPrivacy"}) {
        for (const QByteArray wish : {"Pause", "Remove", "Stop"}) {
            SCOPED_TRACE(testing::Message() << wish.constData() << " in " << operation.constData());
            const QByteArray bytes = variedBytes(3'000, quint32(++count));
            const auto post = video(QStringLiteral("%1.mp4").arg(count), bytes);
            const auto before = requestsFor(operation);
            vimeo.on(operation).hang();
            ASSERT_TRUE(shareVideo(post));
            ASSERT_TRUE(waitFor([&] { return requestsFor(operation) > before; }));
            const qint64 pid = servicePid();
            const auto hasEnded = [&] { return servicePid() != pid; };
            if (wish == "Pause") ask("Pause");
            if (wish == "Remove") ask("Remove", {QStringList{QString::number(count)}});
            if (wish == "Stop") ::kill(pid_t(pid), SIGTERM);
            EXPECT_FALSE(waitFor(hasEnded, 100)) << "it waits for what runs";
            vimeo.release();
            ASSERT_TRUE(waitFor([&] { return !vimeo.videos().back().privacy.isEmpty(); }));
            EXPECT_TRUE(wish != "Stop" || waitFor(hasEnded));
            ASSERT_EQ(vimeo.videos().size(), size_t(count));
            EXPECT_EQ(vimeo.videos().back().commits(), 1);
            expectArrived(vimeo.videos().back(), *post, bytes);
            EXPECT_TRUE(waitForState("done", kept += wish != "Remove"));
            ask("Resume");
        }
    }
    EXPECT_EQ(uploads().size(), kept);
}

TEST_F(Video, AnExportEndsWithAPauseOrARemovalAndIsMadeAnew) {
    holdExports();
    makeFilm(home, "library/Videos/clip.mp4");
    ASSERT_TRUE(shareVideo(libraryVideo("clip.mp4")));
    const pid_t paused = heldExport();
    ask("Pause");
    ASSERT_TRUE(waitForState("queued", 1));
    EXPECT_TRUE(isGone(paused));
    EXPECT_TRUE(waitFor([&] { return isEmpty("state/korvane/tmp"); }));
    ask("Resume");
    const pid_t removed = heldExport();
    ask("Remove", {QStringList{QStringLiteral("1")}});
    EXPECT_TRUE(waitFor([&] { return isGone(removed) && isEmpty("state/korvane/tmp"); }));
    EXPECT_TRUE(uploads().isEmpty() && isEmpty("state/korvane/spool"));
}

TEST_F(Video, ATicketThatLeadsNowhereHoldsNobodyBackAndGivesWayToAnother) {
    setEnvironment("KORVANE_RETRY_DELAYS", "200");
    vimeo.on("getTicket")
        .answer(200, "application/json",
                R"({"stat":"ok","ticket":{"id":"dead","endpoint":"http://127.0.0.1:1/upload"}})");
    ASSERT_TRUE(shareVideo(video("first.mp4", variedBytes(300'000))));
    ASSERT_TRUE(waitForState("waiting", 1));
    ASSERT_TRUE(shareVideo(video("second.mp4", variedBytes(200'000, 2))));
    ASSERT_TRUE(waitForState("done", 2)) << errorOf(0).toStdString();
    ASSERT_EQ(vimeo.videos().size(), 2u);
    EXPECT_EQ(vimeo.videos()[0].sha256, sha256Of(variedBytes(200'000, 2))) << "the second need not wait for the first";
    EXPECT_EQ(vimeo.videos()[1].sha256, sha256Of(variedBytes(300'000)));
    EXPECT_GE(valueOf(0, "attempts").toInt(), 8) << "a ticket is not given up lightly";
}
