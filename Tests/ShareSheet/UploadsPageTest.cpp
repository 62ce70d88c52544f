// The uploads page, driven by mouse, touch and keys while uploads run, fail, wait and are done.
#include "Platform/Accounts/ACAccountStore.h"
#include "Service/RecordCodec.h"
#include "Service/UploadStore.h"
#include "Tests/ShareSheet/SheetHarness.h"

using namespace korvane;
using namespace korvane::test;

namespace {

class UploadsPage : public SheetTest {
protected:
    void openPage() { open({"--uploads"}); }
    Uploads &page() const { return *application->uploads(); }

    std::shared_ptr<FlickrPost> titled(const char *title, const QByteArray &bytes) const {
        const auto made = post(bytes);
        made->title = QLatin1String(title);
        return made;
    }
    bool waitUntilConnected() {
        return waitFor([&] { return page().connection() == Uploads::Connection::Connected; });
    }
    QString rowText(int row, UploadsModel::Role role) { return page().model()->index(row).data(role).toString(); }
    bool waitForRow(int row, UploadsModel::Role role, const char *words) {
        return waitFor([&] { return rowText(row, role) == text(words); });
    }
    // Photos 1 to count, of which each thousandth has failed; the others are in that state.
    void fillQueue(int count, UploadState state) {
        QDir().mkpath(home.path("state/korvane"));
        UploadStore store;
        std::optional<NSError> error;
        ASSERT_TRUE(store.open(home.path("state/korvane/queue.sqlite"), &error));
        store.setPaused(true);
        std::vector<NewUpload> many{size_t(count)};
        for (int i = 0; i < count; ++i) {
            UploadJob &job = many[size_t(i)].job;
            job.service = flickrServiceID;
            job.title = QStringLiteral("photo %1").arg(i + 1);
            job.state = i % 1000 == 0 ? UploadState::Failed : state;
            job.bytesTotal = 1000 + i;
            many[size_t(i)].record = RecordCodec::encode({}, nullptr);
        }
        ASSERT_TRUE(store.take(QStringLiteral("many"), many, &error));
    }
    QQuickItem *list() const { return application->window()->findChild<QQuickItem *>(text("uploads")); }
};

} // namespace

TEST_F(UploadsPage, FollowsPhotosThatRunFailAndAreRetriedByTouchAndByKey) {
    server.on("upload")
        .answer(200, "text/xml", R"(<rsp stat="fail"><err code="5" msg="Filetype was not recognised"/></rsp>)", 2)
        .hang();
    openPage();
    ASSERT_TRUE(waitToRead("Nothing is being uploaded"));
    ASSERT_TRUE(share({titled("one", jpegOfSize(1000, 1)), titled("two", jpegOfSize(2000, 2))}));
    ASSERT_TRUE(waitFor([&] { return page().failed() == 2; }));
    ASSERT_TRUE(share({titled("three", jpegOfSize(3'000'000, 3))}));
    ASSERT_TRUE(waitToRead("Uploading"));
    EXPECT_EQ(rowText(0, UploadsModel::TitleRole), text("three")) << "what runs stands first";
    EXPECT_EQ(rowText(1, UploadsModel::TitleRole), text("two")) << "then the newest";
    EXPECT_TRUE(user->reads(text("not recognised"))) << "why it failed";
    EXPECT_TRUE(waitToRead("3.0 MB")) << "how much there is of it";
    EXPECT_TRUE(waitToRead("Failed (2)"));

    user->taps(text("Retry “one”"));
    ASSERT_TRUE(waitFor([&] { return valueOf(0, "state") == text("done"); }));
    const auto isInList = [&] {
        const QString name = user->nameOfFocused();
        return name.contains(text(", Flickr · ")) || name.startsWith(text("Remove “"));
    };
    for (int i = 0; i < 20 && !isInList(); ++i)
        user->presses(Qt::Key_Tab);
    for (const auto key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down})
        user->presses(key);
    ASSERT_TRUE(user->nameOfFocused().startsWith(text("two, Flickr · Failed"))) << qPrintable(user->nameOfFocused());
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return page().done() == 2; }));
    server.release();
    ASSERT_TRUE(waitToRead("Shared (3)"));
    EXPECT_EQ(server.photos().size(), 3U);

    user->clicks(text("Clear what is shared"));
    ASSERT_TRUE(waitToRead("Nothing is being uploaded"));
    EXPECT_TRUE(uploads().isEmpty());
    user->presses(Qt::Key_Escape);
    EXPECT_TRUE(waitForEnd());
}

TEST_F(UploadsPage, PausesAndAsksBeforeItRemovesWhatHasNotArrived) {
    openPage();
    ASSERT_TRUE(waitUntilConnected());
    user->clicks(text("Pause"));
    ASSERT_TRUE(waitToRead("Uploads are paused."));
    ASSERT_TRUE(share({titled("one", jpegOfSize(1000, 1)), titled("two", jpegOfSize(2000, 2))}));

    for (const int answer : {Qt::Key_Escape, Qt::Key_Tab}) {
        user->taps(text("Remove “one”"));
        ASSERT_TRUE(waitToRead("“one” has not arrived on Flickr yet"));
        EXPECT_EQ(user->nameOfFocused(), text("Keep")) << "the harmless answer is the one at hand";
        EXPECT_EQ(uploads().size(), 2) << "it is only asked";
        user->presses(answer);
    }
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return uploads().size() == 1 && page().model()->rowCount() == 1; }));

    user->clicks(text("Resume"));
    ASSERT_TRUE(waitForRow(0, UploadsModel::StateRole, "done"));
    EXPECT_TRUE(waitToReadNoMore("paused"));
    user->clicks(text("Remove “two”"));
    ASSERT_TRUE(waitFor([&] { return uploads().isEmpty(); })) << "what has arrived goes unasked";
}

TEST_F(UploadsPage, LeadsToTheSettingsForAMissingAccount) {
    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.account->identifier()));
    ASSERT_TRUE(share({titled("one", jpegOfSize(1000))}));
    openPage();
    EXPECT_TRUE(waitToRead("There is no Flickr account. Sign in on Korvane's settings page."));
    EXPECT_FALSE(user->reads(text("korvane accounts"))) << "which is for the command line";
}

TEST_F(UploadsPage, ShowsThumbnailsOfWhatStandsInAFile) {
    ask("Pause");
    const auto video = VimeoPost::init();
    video->assetURL = NSURL::fileURLWithPath(home.file("gone.mp4", "no video"));
    ASSERT_TRUE(shareVideo(video));
    ASSERT_TRUE(share({titled("noise", jpegOfSize(90'000)),
                       titled("picture", dataBytes("display-p3.jpg") + QByteArray(70'000, 'x'))}));
    openPage();
    ASSERT_TRUE(waitFor([&] { return page().model()->rowCount() == 3; }));
    const auto tileOf = [&](const char *title) {
        const QQuickItem *row = user->find(text("Remove “%1”").arg(text(title)))->parentItem();
        const auto items = row->findChildren<QQuickItem *>();
        return *std::ranges::find_if(items, [](auto *item) { return item->property("isShown").isValid(); });
    };
    const auto isShown = [&](const char *title) { return tileOf(title)->property("isShown").toBool(); };
    const auto hasAnswer = [&](const char *title) { return tileOf(title)->property("isLoaded").toBool(); };
    EXPECT_TRUE(waitFor([&] { return isShown("picture"); })) << "the second in its spool file";
    ASSERT_TRUE(waitFor([&] { return hasAnswer("noise") && hasAnswer("Video without a title"); }));
    EXPECT_FALSE(isShown("noise"));
    EXPECT_FALSE(isShown("Video without a title"));
}

TEST_F(UploadsPage, OutlivesAServiceThatDiesAndOneThatHangs) {
    server.on("upload").hang(3);
    openPage();
    ASSERT_TRUE(waitUntilConnected());
    ASSERT_TRUE(share({titled("one", jpegOfSize(500'000, 1))}));
    ASSERT_TRUE(waitToRead("Uploading"));
    killService(SIGKILL);
    ASSERT_TRUE(waitFor([&] { return servicePid() != 0; })) << "something is left to upload, so it is started again";
    ASSERT_TRUE(waitToRead("Under way (1)"));
    ASSERT_TRUE(waitToRead("Uploading"));

    const pid_t service = pid_t(servicePid());
    ASSERT_EQ(::kill(service, SIGSTOP), 0);
    user->clicks(text("Pause"));
    EXPECT_TRUE(waitToRead("does not answer just now"));
    QElapsedTimer time;
    time.start();
    user->clicks(text("Failed (0)"));
    EXPECT_TRUE(waitFor([&] { return user->isChecked(text("Failed (0)")); }));
    EXPECT_LT(time.elapsed(), 3000) << "the window goes on meanwhile";
    time.restart();
    close();
    EXPECT_LT(time.elapsed(), 3000) << "and can be closed";
    ASSERT_EQ(::kill(service, SIGCONT), 0);
    server.release();
}

TEST_F(UploadsPage, SaysWhenThereIsNothingLeftAndWhenTheServiceCannotBeStarted) {
    ASSERT_TRUE(share({titled("one", jpegOfSize(1000, 1))}));
    ASSERT_TRUE(waitForState("done", 1));
    openPage();
    ASSERT_TRUE(waitToRead("Shared (1)"));
    killService(SIGTERM);
    ASSERT_TRUE(waitToRead("there is nothing left to upload"));
    EXPECT_EQ(servicePid(), 0) << "and it is left alone";
    EXPECT_EQ(rowText(0, UploadsModel::TitleRole), text("one")) << "what was there is still to be read";
    home.file("state/korvane/queue.sqlite", "no database at all");
    user->clicks(text("Ask again"));
    ASSERT_TRUE(waitToRead("cannot be reached"));
    for (const char *file : {"", "-wal", "-shm"})
        QFile::remove(home.path("state/korvane/queue.sqlite") + QLatin1String(file));
    ASSERT_TRUE(waitUntilConnected()) << "it is asked again by itself";
    EXPECT_TRUE(waitToRead("Nothing is being uploaded"));
}

TEST_F(UploadsPage, LeavesAServiceAloneThatHasEndedWhileItIsScrolled) {
    fillQueue(400, UploadState::Done);
    openPage();
    ASSERT_TRUE(waitToRead("photo 400"));
    killService(SIGTERM);
    ASSERT_TRUE(waitToRead("there is nothing left to upload"));
    const int before = page().model()->rowCount();
    QMetaObject::invokeMethod(list(), "positionViewAtEnd");
    EXPECT_FALSE(waitFor([&] { return servicePid() != 0; }, 500)) << "neither for more rows nor for their pictures";
    EXPECT_LT(page().model()->rowCount(), 400);
    QMetaObject::invokeMethod(list(), "positionViewAtBeginning");
    user->clicks(text("Failed (1)"));
    ASSERT_TRUE(waitForRow(0, UploadsModel::TitleRole, "photo 1")) << "which is asked for";
    user->clicks(text("All (400)"));
    ASSERT_TRUE(waitToRead("photo 400"));
    QMetaObject::invokeMethod(list(), "positionViewAtEnd");
    EXPECT_TRUE(waitFor([&] { return page().model()->rowCount() > before; })) << "now more comes";
}

TEST_F(UploadsPage, TellsHowFastAVideoGoesAndWhatAPhotoWaitsFor) {
    setEnvironment("KORVANE_RETRY_DELAYS", "600000");
    server.on("chunk").delay(300, 1000);
    server.on("upload").fail(503, 100);
    ASSERT_TRUE(shareVideo(video("film.mp4", variedBytes(80'000'000))));
    ASSERT_TRUE(share({titled("two", jpegOfSize(2000, 2))}));
    openPage();
    ASSERT_TRUE(waitToRead("Waiting for the next try, at the latest"));
    ASSERT_TRUE(waitToRead("MB/s"));
    EXPECT_TRUE(waitToRead(" left")) << "how long it still takes";
    EXPECT_TRUE(waitToRead("Vimeo · Uploading · "));
    EXPECT_TRUE(waitToRead(" of 80.0 MB"));
    EXPECT_GT(page().model()->index(0).data(UploadsModel::ProgressRole).toDouble(), 0);

    server.clearFaults();
    user->clicks(text("Retry all"));
    ASSERT_TRUE(waitFor([&] { return valueOf(1, "state") == text("done"); })) << "also what only waits";
    ASSERT_TRUE(waitForState("done", 2));
    ASSERT_TRUE(waitToRead("Shared (2)"));
}

TEST_F(UploadsPage, ShowsAHundredThousandUploadsAtOnceAndKeepsFewOfThem) {
    constexpr int count = 100'000;
    fillQueue(count, UploadState::Queued);
    startService();
    QElapsedTimer time;
    time.start();
    openPage();
    ASSERT_TRUE(waitToRead("photo 100000"));
    EXPECT_LT(time.elapsed(), 4000);
    EXPECT_LE(page().model()->rowCount(), 200);
    EXPECT_EQ(page().pending(), count - 100);

    for (int i = 0; i < 5; ++i) {
        const int before = page().model()->rowCount();
        QMetaObject::invokeMethod(list(), "positionViewAtEnd");
        ASSERT_TRUE(waitFor([&] { return page().model()->rowCount() > before; })) << "more comes when scrolled to";
    }
    EXPECT_LE(page().model()->rowCount(), 2500);
    QMetaObject::invokeMethod(list(), "positionViewAtBeginning");
    time.restart();
    user->clicks(text("Failed (100)"));
    ASSERT_TRUE(waitForRow(0, UploadsModel::TitleRole, "photo 99001"));
    EXPECT_LT(time.elapsed(), 4000);
    ASSERT_TRUE(waitFor([&] { return page().model()->rowCount() == 100; }));
    EXPECT_EQ(rowText(99, UploadsModel::TitleRole), text("photo 1"));
}
