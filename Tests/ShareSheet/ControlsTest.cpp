// What holds for every control of every page: a name and a role, room for a finger, a way there with the Tab key.
#include "Tests/ShareSheet/SheetHarness.h"

#include <QAccessible>
#include <QList>
#include <QSet>

using namespace korvane;
using namespace korvane::test;

namespace {

constexpr double fingertip = 44;

class Controls : public SheetTest {
protected:
    // What can be used just now.
    static void collect(QQuickItem *item, QList<QQuickItem *> &found) {
        if (!item->isVisible() || !item->isEnabled()) return;
        if (item->inherits("QQuickText")) {
            EXPECT_EQ(item->property("textFormat").toInt(), Qt::PlainText)
                << "names from elsewhere are not marked up: " << qPrintable(item->property("text").toString());
        }
        if (item->activeFocusOnTab() || item->inherits("QQuickAbstractButton")) found.append(item);
        for (QQuickItem *child : item->childItems())
            collect(child, found);
    }
    static std::string described(QQuickItem *item) {
        return QStringLiteral("%1 \"%2\", %3 x %4")
            .arg(QLatin1String(item->metaObject()->className()), WindowUser::nameOf(item))
            .arg(item->width())
            .arg(item->height())
            .toStdString();
    }
    void check(const char *page) {
        SCOPED_TRACE(page);
        user->waitsUntilStill();
        QList<QQuickItem *> all;
        collect(application->window()->contentItem(), all);
        ASSERT_FALSE(all.isEmpty());
        QSet<QQuickItem *> reached;
        for (qsizetype i = 0; i < all.size() + 20; ++i) {
            user->presses(Qt::Key_Tab);
            for (QQuickItem *item = user->focused(); item; item = item->parentItem())
                if (item == user->focused() || item->isFocusScope()) reached.insert(item);
        }
        for (QQuickItem *item : all) {
            SCOPED_TRACE(described(item));
            EXPECT_FALSE(WindowUser::nameOf(item).isEmpty());
            EXPECT_NE(QAccessible::queryAccessibleInterface(item)->role(), QAccessible::NoRole);
            EXPECT_GE(item->width(), fingertip);
            EXPECT_GE(item->height(), fingertip);
            // Of a list one row is a stop of the Tab key; the arrow keys lead to the others. Within a row it may be
            // a button that gets the keyboard.
            EXPECT_TRUE(!item->activeFocusOnTab() || reached.contains(item)) << "not reached";
        }
    }
};

} // namespace

TEST_F(Controls, OfTheSettings) {
    open({"--settings"});
    Settings &page = *application->settings();
    const auto isReady = [&] { return !page.flickr()->keys()->isBusy() && !page.vimeo()->keys()->isBusy(); };
    ASSERT_TRUE(waitFor(isReady));
    check("without keys");
    const auto known = standin::StandIn::flickrCredential();
    page.flickr()->keys()->store(QString::fromUtf8(known.consumerKey), QString::fromUtf8(known.consumerSecret));
    ASSERT_TRUE(waitFor([&] { return page.flickr()->keys()->areStored() && isReady(); }));
    check("with keys");
    page.flickr()->signIn()->setOpener([](const QString &) { return false; });
    page.flickr()->addAccount(true);
    ASSERT_TRUE(waitToRead("The browser did not open"));
    check("while a code is awaited");
}

TEST_F(Controls, OfTheUploads) {
    server.on("upload").fail(400, 1);
    ASSERT_TRUE(share({post(jpegOfSize(1000, 1))}));
    ASSERT_TRUE(waitForState("failed", 1));
    ASSERT_TRUE(share({post(jpegOfSize(1000, 2))}));
    ASSERT_TRUE(waitForState("done", 1));
    open({"--uploads"});
    ASSERT_TRUE(waitToRead("Shared (1)"));
    user->clicks(text("Pause"));
    ASSERT_TRUE(waitToRead("Uploads are paused."));
    check("two of them");
}

TEST_F(Controls, OfTheSheetsAndOfTheirQuestion) {
    open({"flickr", photo("a.jpg"), photo("b.jpg", 2)});
    ASSERT_TRUE(waitUntilPostable());
    check("photos");
    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.vimeoAccount->identifier()));
    open({"vimeo", home.file("a.mp4", variedBytes(1000))});
    ASSERT_TRUE(waitFor([&] { return sheet().hasAlert(); }));
    user->waitsUntilStill();
    for (const char *name : {"Settings", "Not now", "Settings"}) {
        EXPECT_EQ(user->nameOfFocused(), text(name)) << "nothing else is reached";
        user->presses(Qt::Key_Tab);
    }
    user->presses(Qt::Key_Escape);
    EXPECT_TRUE(waitFor([&] { return !sheet().hasAlert(); }));
}
