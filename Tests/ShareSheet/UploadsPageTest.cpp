// The uploads page, driven by mouse, touch and keys while uploads run, fail, wait and are done.
#include "Service/UploadStore.h"
#include "ShareSheet/Uploads.h"
#include "Tests/EndToEnd/ServiceHarness.h"
#include "Tests/ShareSheet/PageWindow.h"

using namespace korvane;
using namespace korvane::test;

namespace {

class UploadsPage : public ServiceTest {
protected:
    void open(QSize size = {360, 640}) {
        uploads = std::make_unique<Uploads>();
        page = std::make_unique<PageWindow>(
            QStringLiteral("UploadsPage"),
            QVariantMap{{QStringLiteral("uploads"), QVariant::fromValue<QObject *>(uploads.get())}}, size);
    }
    void close() {
        page.reset();
        uploads.reset();
    }
    void TearDown() override {
        if (HasFailure() && page) printf("on the page: %s\n", qPrintable(page->texts().join(u'|')));
        close();
        ServiceTest::TearDown();
    }

    std::shared_ptr<FlickrPost> titled(const char *title, const QByteArray &bytes) const {
        const auto made = post(bytes);
        made->title = QLatin1String(title);
        return made;
    }
    bool waitToShow(const QString &text) {
        return waitFor([&] { return page->shows(text); });
    }
    bool waitToHide(const QString &text) {
        return waitFor([&] { return !page->shows(text); });
    }
    QString rowText(int row, UploadsModel::Role role) { return uploads->model()->index(row).data(role).toString(); }

    std::unique_ptr<Uploads> uploads;
    std::unique_ptr<PageWindow> page;
};

QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

} // namespace

TEST_F(UploadsPage, FollowsPhotosThatRunFailAndAreRetriedByTouchAndByKey) {
    flickr.server.on("upload")
        .answer(200, "text/xml", R"(<rsp stat="fail"><err code="5" msg="Filetype was not recognised"/></rsp>)", 2)
        .hang();
    open();
    ASSERT_TRUE(waitToShow(text("Nothing is being uploaded")));
    ASSERT_TRUE(share({titled("one", jpegOfSize(1000, 1)), titled("two", jpegOfSize(2000, 2))}));
    ASSERT_TRUE(waitFor([&] { return uploads->failed() == 2; }));
    ASSERT_TRUE(share({titled("three", jpegOfSize(3'000'000, 3))}));
    ASSERT_TRUE(waitToShow(text("Uploading")));
    EXPECT_EQ(rowText(0, UploadsModel::TitleRole), text("three")) << "what runs stands first";
    EXPECT_EQ(rowText(1, UploadsModel::TitleRole), text("two")) << "then the newest";
    EXPECT_TRUE(page->shows(text("not recognised"))) << "why it failed";
    EXPECT_TRUE(waitToShow(text("3.0 MB")) || waitToShow(text("3 MB")));

    ASSERT_TRUE(page->tap(page->named(text("retry-1"))));
    ASSERT_TRUE(waitFor([&] { return valueOf(0, "state") == text("done"); }));
    ASSERT_TRUE(page->tabTo([](QQuickItem *item) { return item->property("uploadID").isValid(); })) << "into the list";
    for (int i = 0; i < 3 && page->focused()->property("uploadID") != text("2"); ++i)
        page->press(Qt::Key_Down);
    page->press(Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return uploads->done() == 2; }));
    flickr.server.release();
    ASSERT_TRUE(waitFor([&] { return uploads->done() == 3 && rowText(0, UploadsModel::StateRole) == text("done"); }));
    EXPECT_FALSE(page->shows(text("Failed (1)")));
    EXPECT_EQ(flickr.server.photos().size(), 3U);

    ASSERT_TRUE(page->click(text("Clear what is shared")));
    ASSERT_TRUE(waitToShow(text("Nothing is being uploaded")));
    EXPECT_TRUE(ServiceHarness::uploads().isEmpty());
}

TEST_F(UploadsPage, PausesAndAsksBeforeItRemovesWhatHasNotArrived) {
    open();
    ASSERT_TRUE(waitToShow(text("Nothing is being uploaded")));
    ASSERT_TRUE(page->click(text("Pause")));
    ASSERT_TRUE(waitToShow(text("Uploads are paused.")));
    ASSERT_TRUE(share({titled("one", jpegOfSize(1000, 1)), titled("two", jpegOfSize(2000, 2))}));
    ASSERT_TRUE(waitFor([&] { return page->named(text("remove-1")) && page->named(text("remove-2")); }));

    ASSERT_TRUE(page->tap(page->named(text("remove-1"))));
    ASSERT_TRUE(waitToShow(text("“one” has not arrived on Flickr yet")));
    page->press(Qt::Key_Escape);
    ASSERT_TRUE(waitToHide(text("has not arrived")));
    EXPECT_EQ(ServiceHarness::uploads().size(), 2) << "it was only asked";

    ASSERT_TRUE(page->tap(page->named(text("remove-1"))));
    ASSERT_TRUE(waitToShow(text("has not arrived")));
    ASSERT_TRUE(page->tabTo(text("Remove")));
    page->press(Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return uploads->model()->rowCount() == 1; }));
    EXPECT_EQ(valueOf(0, "title"), text("two"));

    ASSERT_TRUE(page->click(text("Resume")));
    ASSERT_TRUE(waitFor([&] { return uploads->done() == 1 && rowText(0, UploadsModel::StateRole) == text("done"); }));
    EXPECT_FALSE(page->shows(text("paused")));
    ASSERT_TRUE(page->click(page->named(text("remove-2"))));
    ASSERT_TRUE(waitFor([&] { return ServiceHarness::uploads().isEmpty(); })) << "what has arrived goes unasked";
}

TEST_F(UploadsPage, OutlivesAServiceThatDiesAndOneThatHangs) {
    flickr.server.on("upload").hang(3);
    open();
    ASSERT_TRUE(share({titled("one", jpegOfSize(500'000, 1))}));
    ASSERT_TRUE(waitToShow(text("Uploading")));
    killService(SIGKILL);
    ASSERT_TRUE(waitFor([&] { return servicePid() != 0 && uploads->connection() == text("connected"); }))
        << "something is left to upload, so it is started again";
    ASSERT_TRUE(waitToShow(text("Uploading")));

    ASSERT_EQ(::kill(pid_t(servicePid()), SIGSTOP), 0);
    ASSERT_TRUE(page->click(text("Pause")));
    ASSERT_TRUE(waitToShow(text("does not answer just now")));
    QElapsedTimer sinceClick;
    sinceClick.start();
    ASSERT_TRUE(page->click(page->named(text("filter-failed"))));
    page->waitForFrame();
    EXPECT_LT(sinceClick.elapsed(), 1000) << "the window goes on meanwhile";
    close();
    EXPECT_LT(sinceClick.elapsed(), 3000) << "and can be closed";
    ASSERT_EQ(::kill(pid_t(servicePid()), SIGCONT), 0);
    flickr.server.release();
}

TEST_F(UploadsPage, SaysWhenThereIsNothingLeftAndWhenTheServiceCannotBeStarted) {
    ASSERT_TRUE(share({titled("one", jpegOfSize(1000, 1))}));
    ASSERT_TRUE(waitForState("done", 1));
    open();
    ASSERT_TRUE(waitToShow(text("Shared")));
    killService(SIGTERM);
    ASSERT_TRUE(waitToShow(text("there is nothing left to upload")));
    EXPECT_EQ(servicePid(), 0) << "and it is left alone";
    EXPECT_TRUE(page->shows(text("one"))) << "what was there is still to be read";
    home.file("state/korvane/queue.sqlite", "no database at all");
    ASSERT_TRUE(page->click(text("Ask again")));
    ASSERT_TRUE(waitToShow(text("cannot be reached")));
    QFile::remove(home.path("state/korvane/queue.sqlite"));
    ASSERT_TRUE(waitFor([&] { return uploads->connection() == text("connected"); })) << "it is asked again by itself";
    EXPECT_TRUE(waitToShow(text("Nothing is being uploaded")));
}

TEST_F(UploadsPage, ShowsAHundredThousandUploadsAtOnceAndKeepsFewOfThem) {
    constexpr int count = 100'000;
    QDir().mkpath(home.path("state/korvane"));
    {
        UploadStore store;
        std::optional<NSError> error;
        ASSERT_TRUE(store.open(home.path("state/korvane/queue.sqlite"), &error));
        store.setPaused(true);
        std::vector<NewUpload> many;
        for (int i = 0; i < count; ++i) {
            NewUpload one;
            one.job.service = flickrServiceID;
            one.job.title = QStringLiteral("photo %1").arg(i + 1);
            one.job.state = i % 1000 == 0 ? UploadState::Failed : UploadState::Queued;
            one.job.bytesTotal = 1000 + i;
            many.push_back(one);
        }
        ASSERT_TRUE(store.take(QStringLiteral("many"), many, &error));
    }
    startService();
    QElapsedTimer time;
    time.start();
    open();
    ASSERT_TRUE(waitToShow(text("photo 100000")));
    EXPECT_LT(time.elapsed(), 2000);
    EXPECT_LE(uploads->model()->rowCount(), 200);
    EXPECT_EQ(uploads->pending(), count - 100);

    QQuickItem *list = page->named(text("uploadList"));
    for (int i = 0; i < 5; ++i) {
        const int before = uploads->model()->rowCount();
        QMetaObject::invokeMethod(list, "positionViewAtEnd");
        ASSERT_TRUE(waitFor([&] { return uploads->model()->rowCount() > before; })) << "more comes when scrolled to";
    }
    EXPECT_LE(uploads->model()->rowCount(), 1000);
    time.restart();
    ASSERT_TRUE(page->click(page->named(text("filter-failed"))));
    ASSERT_TRUE(waitToShow(text("photo 99001")));
    EXPECT_LT(time.elapsed(), 2000);
    ASSERT_TRUE(waitFor([&] { return uploads->model()->rowCount() == 100; }));
    EXPECT_EQ(rowText(99, UploadsModel::TitleRole), text("photo 1"));
}
