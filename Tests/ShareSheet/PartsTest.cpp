// Parts of the window: arguments, changes of text, waiting for a frame, thumbnails.
#include "ShareSheet/FrameWait.h"
#include "ShareSheet/SharedFile.h"
#include "ShareSheet/SheetRequest.h"
#include "ShareSheet/TextChange.h"
#include "ShareSheet/ThumbnailMaker.h"
#include "Tests/Support/Film.h"
#include "Tests/Support/Testing.h"

#include <QSysInfo>

#include <atomic>
#include <optional>
#include <random>
#include <semaphore>
#include <vector>

using namespace korvane;
using namespace korvane::test;

TEST(Arguments, AreReadAsFileManagersPassThem) {
    const QByteArray thisHost = QSysInfo::machineHostName().toUtf8();
    struct {
        QByteArray argument;
        QByteArray path;
    } const cases[]{{"/a/b c.jpg", "/a/b c.jpg"},
                    {"c.jpg", "c.jpg"},
                    {"file:///a/b%20c.jpg", "/a/b c.jpg"},
                    {"file:///a/b c.jpg", "/a/b c.jpg"},
                    {"file:///a/gr%C3%BCn.jpg", "/a/gr\xC3\xBCn.jpg"},
                    {"file:///a/gr\xC3\xBCn.jpg", "/a/gr\xC3\xBCn.jpg"},
                    {"file:///a/%FF.jpg", "/a/\xFF.jpg"},
                    {"FILE:///a/B.jpg", "/a/B.jpg"},
                    {"file:/a/b%20c.jpg", "/a/b c.jpg"},
                    {"File:/a/b c.jpg", "/a/b c.jpg"},
                    {"FILE://LocalHost/a.jpg", "/a.jpg"},
                    {"file:a.jpg", "file:a.jpg"},
                    {"file://localhost/a.jpg", "/a.jpg"},
                    {"/run/user/1000/gvfs/sftp:host=far/a.jpg", "/run/user/1000/gvfs/sftp:host=far/a.jpg"},
                    {"file://" + thisHost + "/a%20b.jpg", "/a b.jpg"},
                    {"file://" + thisHost + "/a b.jpg", "/a b.jpg"},
                    {"file://far/a.jpg", ""},
                    {"sftp://far/a.jpg", ""},
                    {"https://example.org/a.jpg", ""}};
    for (const auto &[argument, path] : cases) {
        const SharedFile file = SharedFile::fromArgument(argument);
        EXPECT_EQ(file.path, path) << argument.constData();
        EXPECT_EQ(file.problem.isEmpty(), !path.isEmpty()) << argument.constData();
    }
    QString problem;
    EXPECT_EQ(SheetRequest::parse({"vimeo", "--", "-f.mp4"}, problem)->files, QByteArrayList{"-f.mp4"});
    for (const char *address :
         {"prefs:root=VIMEO", "PREFS:root=vimeo", "Prefs:ROOT=VIMEO/", "prefs:root=VIMEO&path=x"}) {
        const auto request = SheetRequest::parse({address}, problem);
        EXPECT_TRUE(request && request->settingsOf == SheetRequest::Vimeo) << address;
    }
    EXPECT_TRUE(problem.isEmpty());
    for (const char *address : {"prefs:root=OTHER", "prefs:", "PREFS:root="}) {
        const auto settings = SheetRequest::parse({address}, problem);
        EXPECT_TRUE(settings && settings->page == SheetRequest::Settings && !settings->settingsOf) << address;
    }
    EXPECT_FALSE(problem.isEmpty()) << "those at large, and not without a word";
    const QByteArrayList wrong[]{{},
                                 {"flickr"},
                                 {"smoke", "a.jpg"},
                                 {"--settings", "x"},
                                 {"--settings", "flickr", "x"},
                                 {"--uploads", "x"},
                                 {"prefs:root=FLICKR", "x"}};
    for (const QByteArrayList &bad : wrong)
        EXPECT_FALSE(SheetRequest::parse(bad, problem)) << bad.join(' ').constData();
}

TEST(TextChanges, AreTheSmallestOnesAtTheCursor) {
    struct {
        QString before, after;
        qint64 cursor;
        NSRange range;
        QString replacement;
    } const cases[]{{u"aa"_qs, u"aaa"_qs, 1, {0, 0}, u"a"_qs},
                    {u"aa"_qs, u"aaa"_qs, 3, {2, 0}, u"a"_qs},
                    {u"aaa"_qs, u"aa"_qs, 1, {1, 1}, {}},
                    {u"abc"_qs, u"aXc"_qs, 2, {1, 1}, u"X"_qs},
                    {u"abc"_qs, {}, 0, {0, 3}, {}},
                    {u"😀"_qs, u"😁"_qs, 2, {0, 2}, u"😁"_qs},
                    {u"a😀b"_qs, u"a🐀b"_qs, 3, {1, 2}, u"🐀"_qs}};
    for (const auto &[before, after, cursor, range, replacement] : cases) {
        const auto change = TextChange::between(before, after, cursor);
        ASSERT_TRUE(change);
        EXPECT_EQ(change->range.location, range.location) << qPrintable(before + u'>' + after);
        EXPECT_EQ(change->range.length, range.length) << qPrintable(before + u'>' + after);
        EXPECT_EQ(change->replacement, replacement);
    }
    EXPECT_FALSE(TextChange::between(u"a"_qs, u"a"_qs, 0));
    std::mt19937 random(7);
    for (int run = 0; run < 5000; ++run) {
        QString texts[2];
        for (QString &text : texts)
            for (auto length = random() % 7; length > 0; --length)
                text += random() % 3 ? QString(QChar(u'a' + char16_t(random() % 2))) : u"😀"_qs;
        const auto cursor = qint64(random() % quint64(texts[1].size() + 1));
        const auto change = TextChange::between(texts[0], texts[1], cursor);
        const QString made =
            change ? stringByReplacingCharactersInRange(texts[0], change->range, change->replacement) : texts[0];
        ASSERT_EQ(made, texts[1]) << "run " << run;
        ASSERT_TRUE(!change ||
                    (change->replacement.isValidUtf16() && texts[0].first(change->range.location).isValidUtf16()));
    }
}

TEST(FrameWait, EndsWithAFrameOrWhereThereIsNothingToSee) {
    bool isDone = false;
    const auto done = [&] { return isDone; };
    QQuickWindow hidden;
    afterNextFrame(hidden, [&] { isDone = true; });
    EXPECT_TRUE(waitFor(done));

    struct SlowWindow : QQuickWindow {
        bool isSlow = false;
        bool event(QEvent *event) override {
            return (isSlow && event->type() == QEvent::UpdateRequest) || QQuickWindow::event(event);
        }
    } window;
    window.show();
    ASSERT_TRUE(waitFor([&] { return window.isExposed(); }));
    isDone = false;
    window.isSlow = true;
    afterNextFrame(window, [&] { isDone = true; });
    EXPECT_FALSE(waitFor(done, 700)) << "before it is seen";
    window.isSlow = false;
    window.update();
    EXPECT_TRUE(waitFor(done));
}

TEST(Thumbnails, AreMadeTwoAtATimeAndNotForThoseWhoHaveGone) {
    std::counting_semaphore<100> go(0);
    std::atomic_int running = 0, most = 0, made = 0, told = 0, pictures = 0;
    std::optional<ThumbnailQueue> queue;
    queue.emplace([&](const ThumbnailQueue::Order &order, const std::stop_token &) {
        most = std::max<int>(most, ++running);
        go.acquire();
        --running;
        ++made;
        return QImage(order.edge, order.edge, QImage::Format_RGB32);
    });
    std::stop_source stays, leaves;
    const auto answer = [&](const QImage &image) {
        ++told;
        if (!image.isNull()) ++pictures;
    };
    for (int i = 0; i < 20; ++i)
        queue->ask({.path = QByteArray::number(i), .isVideo = false, .edge = 10}, (i < 5 ? stays : leaves).get_token(),
                   answer);
    ASSERT_TRUE(waitFor([&] { return running == 2; }));
    leaves.request_stop();
    go.release(5);
    ASSERT_TRUE(waitFor([&] { return told == 20; }));
    EXPECT_EQ(most, 2);
    EXPECT_EQ(made, 5);
    EXPECT_EQ(pictures, 5);
    queue->ask({.path = "3", .isVideo = false, .edge = 10}, stays.get_token(), answer);
    EXPECT_EQ(told, 21) << "known already";
    for (int i = 0; i < 9; ++i)
        queue->ask({.path = "at the end", .isVideo = false, .edge = 10}, stays.get_token(), answer);
    ASSERT_TRUE(waitFor([&] { return running == 2; }));
    go.release(9);
    queue.reset();
    EXPECT_EQ(told, 30) << "nobody is left waiting";
}

TEST(Thumbnails, OfFiveHundredPhotosTakeLittleMemoryAndFollowTheirFiles) {
    std::atomic<qint64> held = 0, most = 0;
    std::atomic_int made = 0, told = 0;
    struct Pixels {
        std::atomic<qint64> &held;
        std::vector<uchar> bytes;
        ~Pixels() { held -= qint64(bytes.size()); }
    };
    ThumbnailQueue queue([&](const ThumbnailQueue::Order &order, const std::stop_token &) {
        ++made;
        const auto pixels = new Pixels{held, std::vector<uchar>(size_t(4 * order.edge * order.edge))};
        most = std::max<qint64>(most, held += qint64(pixels->bytes.size()));
        return QImage(
            pixels->bytes.data(), order.edge, order.edge, QImage::Format_RGB32,
            [](void *them) { delete static_cast<Pixels *>(them); }, pixels);
    });
    const auto ask = [&](const QByteArray &path) {
        const int before = told;
        queue.ask({.path = path, .isVideo = false, .edge = 512}, {}, [&](const QImage &) { ++told; });
        ASSERT_TRUE(waitFor([&] { return told > before; }));
    };
    for (int i = 0; i < 500; ++i)
        ask(QByteArray::number(i));
    EXPECT_GT(most, ThumbnailQueue::largestCache / 2) << "some are kept";
    EXPECT_LE(most, 60'000'000);

    TemporaryHome home;
    const QByteArray photo = home.file("photo.jpg", "before");
    ask(photo);
    ask(photo);
    EXPECT_EQ(made, 501);
    home.file("photo.jpg", "afterwards");
    ask(photo);
    EXPECT_EQ(made, 502) << "another picture under the same name";
}

TEST(Thumbnails, ShowPhotosUprightAndVideosByAFrame) {
    TemporaryHome home;
    const QImage photo =
        ThumbnailMaker::make({.path = dataPath("orientation-6.jpg"), .isVideo = false, .edge = 32}, {});
    ASSERT_FALSE(photo.isNull());
    EXPECT_EQ(std::max(photo.width(), photo.height()), 32);
    const QImage straight =
        ThumbnailMaker::make({.path = dataPath("orientation-1.jpg"), .isVideo = false, .edge = 32}, {});
    EXPECT_EQ(photo.size(), straight.size()) << "turned as the camera was";
    EXPECT_FALSE(ThumbnailMaker::make({.path = dataPath("quarters.heic"), .isVideo = false, .edge = 32}, {}).isNull());
    EXPECT_TRUE(
        ThumbnailMaker::make({.path = home.file("notes.txt", "words"), .isVideo = false, .edge = 32}, {}).isNull());
    EXPECT_TRUE(ThumbnailMaker::make({.path = home.path("gone").toUtf8(), .isVideo = true, .edge = 32}, {}).isNull());

    const QString film = makeFilm(home, "film.mp4", "color=red:s=320x180");
    const QImage frame = ThumbnailMaker::make({.path = film.toUtf8(), .isVideo = true, .edge = 64}, {});
    ASSERT_EQ(frame.size(), QSize(64, 36));
    EXPECT_GT(frame.pixelColor(32, 18).red(), 200);
    EXPECT_LT(frame.pixelColor(32, 18).blue(), 60);
}

TEST(Thumbnails, LargerThanAProgramMaySendAreNotShown) {
    TemporaryHome home;
    for (const qint64 size : {3 << 20, 5 << 20}) {
        const QByteArray picture = home.file("picture.jpg", dataBytes("orientation-1.jpg") + QByteArray(size, '\0'));
        const QByteArray program = home.file("bin/ffmpeg", "#!/bin/sh\nexec cat " + picture + '\n');
        ASSERT_TRUE(QFile::setPermissions(QFile::decodeName(program), QFileDevice::ReadUser | QFileDevice::ExeUser));
        home.setEnvironment("KORVANE_FFMPEG", program);
        const QImage image = ThumbnailMaker::make({.path = picture, .isVideo = true, .edge = 32}, {});
        EXPECT_EQ(image.isNull(), size > 4 << 20) << size;
    }
}
