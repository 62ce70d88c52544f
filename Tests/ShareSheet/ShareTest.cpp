// Whole shares through the window, and what arrives.
#include "Korvane/FlickrComposeViewController.h"
#include "Korvane/VimeoComposeViewController.h"
#include "Tests/ShareSheet/SheetHarness.h"

#include <QProcess>
#include <QQuickWindow>
#include <QTest>

using namespace korvane;
using namespace korvane::test;

namespace {

struct ShareWindow : SheetTest {
    QString film(const char *name = "film.mp4") {
        const QString path = home.path(name);
        const QString arguments = QStringLiteral("-v error -f lavfi -i testsrc2=s=320x180 -t 1 %1").arg(path);
        EXPECT_EQ(QProcess::execute(QStringLiteral("ffmpeg"), arguments.split(u' ')), 0);
        return path;
    }
    QString value(int item) const { return sheet().items().at(item).toMap().value(QStringLiteral("value")).toString(); }
    QByteArray titleOf(size_t upload) const { return standin::valueOf(server.photos().at(upload).parameters, "title"); }
};

} // namespace

TEST_F(ShareWindow, APhotoIsPostedByKeysAlone) {
    open({"flickr", photo("sea.jpg")});
    EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Title (optional)"));
    user->types(QStringLiteral("Am Meer"));
    ASSERT_TRUE(waitUntilPostable());
    QStringList order;
    QObject::connect(&sheet(), &SheetModel::isHandingOverChanged, [&] { order.append(QStringLiteral("said")); });
    QObject::connect(application->window(), &QQuickWindow::frameSwapped, application->window(), [&] {
        if (sheet().isHandingOver() && order.last() != QStringLiteral("drawn")) order.append(QStringLiteral("drawn"));
    });
    QObject::connect(&sheet(), &SheetModel::finished, [&] { order.append(QStringLiteral("done")); });
    user->presses(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(order.join(u' '), QStringLiteral("said drawn done")) << "seen before the hand-over lets nothing be drawn";
    EXPECT_EQ(*status, 0);
    EXPECT_FALSE(application->window()->isVisible());
    ASSERT_TRUE(waitForState("done", 1)) << qPrintable(errorOf(0));
    EXPECT_EQ(titleOf(0), "Am Meer");
    EXPECT_EQ(server.photos().at(0).sha256, sha256Of(jpegOfSize(20'000)));
}

TEST_F(ShareWindow, PhotosGoToTheChosenAlbumAndAudience) {
    open({"flickr", photo("a b.jpg", 1),
          "file://" + QByteArray(home.file("grün.jpg", jpegOfSize(9000))).toPercentEncoding("/"),
          home.file("third.png", dataBytes("quarters.png"))});
    ASSERT_TRUE(waitUntilPostable());
    EXPECT_TRUE(user->reads(QStringLiteral("3 photos")));
    EXPECT_TRUE(user->sees(QStringLiteral("1 of 3: a b.jpg")));

    user->taps(QStringLiteral("Audience, Public"));
    EXPECT_TRUE(user->isChecked(QStringLiteral("Public")));
    user->taps(QStringLiteral("Friends"));
    EXPECT_TRUE(user->isChecked(QStringLiteral("Friends")));
    EXPECT_FALSE(user->isChecked(QStringLiteral("Public")));
    user->swipes({8, 300}, {220, 310});
    user->waitsUntilStill();
    EXPECT_FALSE(sheet().option());
    EXPECT_EQ(value(FlickrComposeItemAudience), QStringLiteral("Friends"));

    user->clicks(QStringLiteral("Album, No album"));
    user->clicks(QStringLiteral("Family & friends"));
    EXPECT_TRUE(user->isChecked(QStringLiteral("Family & friends")));
    user->clicks(QStringLiteral("Back"));
    EXPECT_TRUE(user->sees(QStringLiteral("Album, Family & friends")));
    EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Album, Family & friends")) << "the keyboard is where it was";
    user->taps(QStringLiteral("Post"));
    ASSERT_TRUE(waitForEnd());
    ASSERT_TRUE(waitForState("done", 3)) << qPrintable(errorOf(0));
    EXPECT_EQ(server.albums().at(1).photos.size(), 3u);
    for (const auto &arrived : server.photos())
        EXPECT_EQ(standin::valueOf(arrived.parameters, "is_friend"), "1");
}

TEST_F(ShareWindow, AVideoWithTagsEnteredByKeys) {
    const QString path = film();
    open({"vimeo", path.toUtf8()});
    ASSERT_TRUE(waitFor([&] { return sheet().itemsAreEnabled(); }));
    EXPECT_FALSE(user->isEnabled(QStringLiteral("Post"))) << "a video needs a title";
    user->types(QStringLiteral("Film"));
    EXPECT_TRUE(user->isEnabled(QStringLiteral("Post")));

    user->presses(Qt::Key_Tab);
    EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Details"));
    user->presses(Qt::Key_Space);
    user->waitsUntilStill();
    ASSERT_TRUE(sheet().option());
    EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Description"));
    user->types(QStringLiteral("Am Meer"));
    user->presses(Qt::Key_Tab);
    const int usual = sheet().option()->count();
    for (const char *tag : {"sea", "sun", "gone", "wind"}) {
        EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Tags"));
        user->types(QLatin1String(tag));
        user->presses(Qt::Key_Return);
        QTest::qWait(30);
    }
    EXPECT_EQ(sheet().option()->count(), usual + 4);
    user->presses(Qt::Key_Up);
    user->presses(Qt::Key_Up);
    QTest::qWait(30);
    for (int i = 0; i < 4; ++i)
        user->presses(Qt::Key_Backspace);
    EXPECT_EQ(sheet().option()->count(), usual + 4) << "an empty row goes when it is left";
    user->presses(Qt::Key_Tab);
    EXPECT_TRUE(waitFor([&] { return sheet().option()->count() == usual + 3; }));
    EXPECT_EQ(user->focused()->property("text").toString(), QStringLiteral("wind"));
    user->types(QStringLiteral("y"));

    user->clicks(QStringLiteral("Only Me"));
    EXPECT_TRUE(user->isChecked(QStringLiteral("Only Me")));
    user->presses(Qt::Key_Escape);
    user->waitsUntilStill();
    EXPECT_FALSE(sheet().option());
    EXPECT_FALSE(UIResponder::firstResponder() && !sheet().isEditing());
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitForEnd());
    ASSERT_TRUE(waitForState("done", 1)) << qPrintable(errorOf(0));
    const auto video = server.videos().at(0);
    EXPECT_EQ(video.title, QStringLiteral("Film"));
    EXPECT_EQ(video.description, QStringLiteral("Am Meer"));
    EXPECT_EQ(video.tags.join(u' '), QStringLiteral("sea sun windy"));
    EXPECT_EQ(video.privacy, QStringLiteral("nobody"));
}

TEST_F(ShareWindow, ATitleThatIsTooLongIsNotTakenHoweverItIsEntered) {
    open({"vimeo", film().toUtf8()});
    const auto shown = [&] { return user->focused()->property("text").toString(); };
    const auto holds = [&](const QString &text) { return sheet().text() == text && shown() == text; };
    const QString most = QString(126, u'x');
    user->composes({}, most);
    EXPECT_EQ(sheet().room(), 2);
    user->types(QStringLiteral("€"));
    EXPECT_TRUE(holds(most)) << "three bytes do not fit";
    EXPECT_EQ(user->focused()->property("cursorPosition").toInt(), 126) << "the cursor stays";
    user->types(QStringLiteral("ü"));
    EXPECT_TRUE(holds(most + u'ü'));
    user->presses(Qt::Key_Backspace);
    user->presses(Qt::Key_Home, Qt::ControlModifier);
    user->presses(Qt::Key_Right, Qt::ShiftModifier);
    user->composes(QStringLiteral("と"));
    user->composes({}, QStringLiteral("と"));
    EXPECT_TRUE(holds(u'と' + most.mid(1))) << "a composed character in place of a selection";
    user->composes({}, QStringLiteral("く"));
    EXPECT_TRUE(holds(u'と' + most.mid(1)));
    user->presses(Qt::Key_A, Qt::ControlModifier);
    user->composes({}, QString(129, u'y'));
    EXPECT_TRUE(holds(u'と' + most.mid(1))) << "the selection comes back";

    user->presses(Qt::Key_A, Qt::ControlModifier);
    user->composes({}, QStringLiteral("Film"));
    user->presses(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(sheet().text(), shown()) << "undone in both or in none";
    user->presses(Qt::Key_A, Qt::ControlModifier);
    user->composes({}, QStringLiteral("Film "));
    ASSERT_TRUE(waitUntilPostable());
    user->composes(QStringLiteral("am Abend"));
    EXPECT_EQ(sheet().text(), QStringLiteral("Film "));
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitForEnd());
    ASSERT_TRUE(waitForState("done", 1)) << qPrintable(errorOf(0));
    EXPECT_EQ(server.videos().at(0).title, QStringLiteral("Film am Abend")) << "with what was still being composed";
}

TEST_F(ShareWindow, ARefusedHandOverKeepsWhatWasEnteredForAnotherTry) {
    startService();
    standin::StandIn other;
    ASSERT_TRUE(other.start());
    home.setEnvironment("KORVANE_FLICKR_URL", other.url().toUtf8());
    open({"flickr", photo("sea.jpg")});
    user->types(QStringLiteral("Am Meer"));
    ASSERT_TRUE(waitUntilPostable());
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitFor([&] { return !sheet().failure().isEmpty(); }));
    EXPECT_TRUE(user->reads(QStringLiteral("Nothing was shared.")));
    EXPECT_EQ(sheet().text(), QStringLiteral("Am Meer"));
    EXPECT_FALSE(status);
    home.setEnvironment("KORVANE_FLICKR_URL", server.url().toUtf8());
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 0);
    ASSERT_TRUE(waitForState("done", 1));
    EXPECT_EQ(titleOf(0), "Am Meer");

    home.setEnvironment("KORVANE_FLICKR_URL", other.url().toUtf8());
    open({"flickr", photo("sea.jpg")});
    ASSERT_TRUE(waitUntilPostable());
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitFor([&] { return !sheet().failure().isEmpty(); }));
    user->presses(Qt::Key_Escape);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 4) << "why it was given up";
}

TEST_F(ShareWindow, WithoutAnAccountTheSettingsAreOffered) {
    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.account->identifier()));
    open({"flickr", photo("sea.jpg")});
    EXPECT_TRUE(user->find(QStringLiteral("No Flickr Account")));
    EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Settings"));
    user->presses(Qt::Key_Tab);
    EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Not now")) << "nothing else is reached";
    user->clicks(QStringLiteral("Settings"));
    ASSERT_TRUE(waitFor([&] { return application->settings(); }));
    EXPECT_FALSE(user->sees(QStringLiteral("No Flickr Account")));
    QTest::qWait(300);
    user->clicks(QStringLiteral("Close"));
    EXPECT_TRUE(user->find(QStringLiteral("No Flickr Account"))) << "the settings were left as they were";
    QTest::qWait(300);
    user->clicks(QStringLiteral("Not now"));
    user->types(QStringLiteral("t"));
    ASSERT_TRUE(waitUntilPostable());
    user->presses(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(user->find(QStringLiteral("No Flickr Account"))) << "asked for again";
    EXPECT_EQ(servicePid(), 0);
    user->presses(Qt::Key_Escape);
    EXPECT_FALSE(sheet().hasAlert());
    user->clicks(QStringLiteral("Cancel"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 3);
}

TEST_F(ShareWindow, FilesThatCannotBeUsedAreNamedAndLeftOutOnRequest) {
    open({"flickr", photo("sea.jpg"), home.file("notes.txt", "words"), home.path("gone.jpg").toUtf8(),
          "sftp://far/away.jpg", home.path().toUtf8()});
    ASSERT_TRUE(waitFor([&] { return !sheet().attachments()->isPreparing(); }));
    EXPECT_FALSE(sheet().canPost());
    EXPECT_EQ(sheet().attachments()->problems().split(u'\n').size(), 4)
        << qPrintable(sheet().attachments()->problems());
    EXPECT_TRUE(user->reads(QStringLiteral("notes.txt: the file is not a picture")));
    EXPECT_TRUE(user->reads(QStringLiteral("gone.jpg: there is no such file")));
    user->taps(QStringLiteral("Leave them out"));
    EXPECT_TRUE(sheet().canPost());
    EXPECT_EQ(sheet().attachments()->count(), 1);
    close();

    const QString first = film();
    open({"vimeo", first.toUtf8(), first.toUtf8()});
    ASSERT_TRUE(waitFor([&] { return !sheet().attachments()->isPreparing(); }));
    EXPECT_TRUE(user->reads(QStringLiteral("only one video at a time")));
    close();

    open({"vimeo", photo("sea.jpg")});
    ASSERT_TRUE(waitFor([&] { return !sheet().attachments()->isPreparing(); }));
    user->presses(Qt::Key_Escape);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 2);
}

TEST_F(ShareWindow, FiveHundredPhotosHaveThumbnailsOnlyWhereTheyAreSeen) {
    QByteArrayList arguments{"flickr"};
    for (int i = 0; i < 500; ++i)
        arguments.append(home.file(QStringLiteral("p%1.jpg").arg(i), dataBytes("orientation-6.jpg")));
    open(arguments);
    ASSERT_TRUE(waitUntilPostable());
    EXPECT_TRUE(user->reads(QStringLiteral("500 photos")));
    QQuickItem *strip = user->find(QStringLiteral("500 photos"));
    ASSERT_TRUE(strip);
    const auto tiles = [&] { return application->window()->contentItem()->findChildren<QQuickItem *>().size(); };
    EXPECT_LT(tiles(), 400);
    const auto hasPicture = [&](const QString &name) {
        QQuickItem *tile = user->find(name);
        const auto *image = tile ? tile->childItems().value(0) : nullptr;
        return image && image->property("paintedWidth").toDouble() > 0 && image->property("status").toInt() == 1;
    };
    EXPECT_TRUE(waitFor([&] { return hasPicture(QStringLiteral("1 of 500: p0.jpg")); }));
    strip->forceActiveFocus();
    strip->setProperty("currentIndex", 499);
    EXPECT_TRUE(waitFor([&] { return hasPicture(QStringLiteral("500 of 500: p499.jpg")); }));
    EXPECT_LT(tiles(), 400) << "those that are out of sight are gone";
}
