// Whole shares through the window, and what arrives.
#include "Tests/ShareSheet/ShareWindow.h"

#include <QQuickWindow>

using namespace korvane;
using namespace korvane::test;

TEST_F(ShareWindow, APhotoIsPostedByKeysAlone) {
    open({"flickr", photo("sea.jpg")});
    EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Title (optional)"));
    user->types(QStringLiteral("Am Meer"));
    ASSERT_TRUE(waitUntilPostable());
    std::optional<bool> isSaid; // in the first frame that shows the hand-over
    qint64 service = 0;         // by then
    QObject::connect(application->window(), &QQuickWindow::frameSwapped, application->window(), [&] {
        if (isSaid || !sheet().isHandingOver()) return;
        isSaid = user->reads(QStringLiteral("Handing over"));
        service = servicePid();
    });
    user->presses(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(isSaid, true) << "seen before the hand-over lets nothing be drawn";
    EXPECT_EQ(service, 0) << "nothing is handed over by then";
    EXPECT_EQ(*status, 0);
    EXPECT_FALSE(application->window()->isVisible());
    ASSERT_TRUE(waitForState("done", 1)) << qPrintable(errorOf(0));
    EXPECT_EQ(titleOf(0), "Am Meer");
    EXPECT_EQ(server.photos().at(0).sha256, sha256Of(jpegOfSize(20'000)));
}

TEST_F(ShareWindow, PhotosGoToTheChosenAlbumAndAudience) {
    openFully({"flickr", photo("a b.jpg", 1),
               "file://" + QByteArray(home.file("grün.jpg", jpegOfSize(9000))).toPercentEncoding("/"),
               home.file("third.png", dataBytes("quarters.png"))});
    EXPECT_TRUE(user->reads(QStringLiteral("3 photos")));
    EXPECT_TRUE(user->sees(QStringLiteral("1 of 3: a b.jpg")));

    user->taps(QStringLiteral("Audience, Public"));
    user->taps(QStringLiteral("Friends"));
    EXPECT_TRUE(user->isChecked(QStringLiteral("Friends")));
    EXPECT_FALSE(user->isChecked(QStringLiteral("Public")));
    EXPECT_EQ(user->roleOf(QStringLiteral("Friends")), QAccessible::RadioButton);
    user->swipes({8, 300}, {220, 310});
    user->waitsUntilStill();
    EXPECT_FALSE(sheet().option());

    choose("Album, No album", "Family & friends");
    EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Album, Family & friends")) << "the keyboard is where it was";
    postUntilDone(3);
    EXPECT_EQ(server.albums().at(1).photos.size(), 3u);
    for (const auto &arrived : server.photos())
        EXPECT_EQ(standin::valueOf(arrived.parameters, "is_friend"), "1");
}

TEST_F(ShareWindow, AVideoWithTagsEnteredByKeys) {
    openFully({"vimeo", makeFilm(home, "film.mp4").toUtf8()});
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
    const auto comesTo = [&](const char *tag) {
        return waitFor([&] {
            return user->nameOfFocused() == QStringLiteral("Tags") &&
                   user->focused()->property("text").toString() == QLatin1String(tag);
        });
    };
    for (const char *tag : {"sea", "sun", "gone", "wind"}) {
        ASSERT_TRUE(comesTo(""));
        user->types(QLatin1String(tag));
        user->presses(Qt::Key_Return);
    }
    ASSERT_TRUE(comesTo(""));
    EXPECT_EQ(sheet().option()->count(), usual + 4);
    for (const char *tag : {"wind", "gone"}) {
        user->presses(Qt::Key_Up);
        ASSERT_TRUE(comesTo(tag));
    }
    for (int i = 0; i < 4; ++i)
        user->presses(Qt::Key_Backspace);
    EXPECT_EQ(sheet().option()->count(), usual + 4) << "an empty row goes when it is left";
    user->presses(Qt::Key_Tab);
    EXPECT_TRUE(waitFor([&] { return sheet().option()->count() == usual + 3; }));
    ASSERT_TRUE(comesTo("wind"));
    user->types(QStringLiteral("y"));

    user->clicks(QStringLiteral("Only Me"));
    user->presses(Qt::Key_Escape);
    user->waitsUntilStill();
    EXPECT_FALSE(sheet().option());
    postUntilDone();
    const auto video = server.videos().at(0);
    EXPECT_EQ(video.title, QStringLiteral("Film"));
    EXPECT_EQ(video.description, QStringLiteral("Am Meer"));
    EXPECT_EQ(video.tags.join(u' '), QStringLiteral("sea sun windy"));
    EXPECT_EQ(video.privacy, QStringLiteral("nobody"));
}

TEST_F(ShareWindow, ATitleThatIsTooLongIsNotTakenHoweverItIsEntered) {
    openFully({"vimeo", makeFilm(home, "film.mp4").toUtf8()});
    const auto shown = [&] { return user->focused()->property("text").toString(); };
    const auto holds = [&](const QString &text) { return sheet().text() == text && shown() == text; };
    const QString most = QString(126, u'x');
    user->composes({}, QString(129, u'y'));
    EXPECT_TRUE(holds({}));
    EXPECT_TRUE(user->sees(QStringLiteral("That does not fit, room for 128 more bytes")));
    user->composes({}, most);
    EXPECT_TRUE(user->sees(QStringLiteral("Almost full, room for 2 more bytes")));
    user->types(QStringLiteral("€"));
    EXPECT_TRUE(holds(most)) << "three bytes do not fit";
    EXPECT_EQ(user->focused()->property("cursorPosition").toInt(), 126) << "the cursor stays";
    user->types(QStringLiteral("ü"));
    EXPECT_TRUE(holds(most + u'ü'));
    EXPECT_TRUE(user->reads(QStringLiteral("Full")));
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
    user->composes({}, QString(129, u'y'));
    user->presses(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(holds(u'と' + most.mid(1))) << "what was refused takes nothing from what can be undone";
    user->presses(Qt::Key_A, Qt::ControlModifier);
    user->presses(Qt::Key_Backspace);
    user->types(QStringLiteral("Film"));
    user->composes({}, QString(129, u'y'));
    EXPECT_TRUE(holds(QStringLiteral("Film"))) << "typed letter by letter";
    user->presses(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(holds({}));
    user->presses(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(holds(QStringLiteral("Film")));

    user->presses(Qt::Key_A, Qt::ControlModifier);
    user->presses(Qt::Key_Backspace);
    EXPECT_FALSE(user->isEnabled(QStringLiteral("Post")));
    user->composes(QStringLiteral("Film"));
    EXPECT_TRUE(user->isEnabled(QStringLiteral("Post")));
    user->composes({});
    EXPECT_FALSE(user->isEnabled(QStringLiteral("Post")));
    user->composes(QStringLiteral("Film am Abend"));
    EXPECT_EQ(sheet().text(), QString());
    postUntilDone();
    EXPECT_EQ(server.videos().at(0).title, QStringLiteral("Film am Abend")) << "with what was still being composed";
}

TEST_F(ShareWindow, FiveHundredPhotosHaveThumbnailsOnlyWhereTheyAreSeen) {
    QByteArrayList arguments{"flickr"};
    for (int i = 0; i < 500; ++i)
        arguments.append(home.file(QStringLiteral("p%1.jpg").arg(i), dataBytes("orientation-6.jpg")));
    openFully(arguments);
    QQuickItem *strip = user->find(QStringLiteral("500 photos"));
    const auto tiles = [&] { return application->window()->contentItem()->findChildren<QQuickItem *>().size(); };
    const auto hasPicture = [&](const QString &name) {
        const QQuickItem *tile = user->find(name);
        return tile && std::ranges::any_of(tile->findChildren<QQuickItem *>(), [](const QQuickItem *item) {
                   return item->property("paintedWidth").toDouble() > 0 && item->property("status").toInt() == 1;
               });
    };
    EXPECT_TRUE(waitFor([&] { return hasPicture(QStringLiteral("1 of 500: p0.jpg")); }));
    strip->forceActiveFocus();
    strip->setProperty("currentIndex", 499);
    EXPECT_TRUE(waitFor([&] { return hasPicture(QStringLiteral("500 of 500: p499.jpg")); }));
    EXPECT_LT(tiles(), 400) << "those that are out of sight are gone";
}
