// What holds for every control of every page: a name and a role, room for a finger, a way there with the Tab key.
#include "Tests/ShareSheet/ShareWindow.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QList>
#include <QScopeGuard>
#include <QSet>

using namespace korvane;
using namespace korvane::test;

namespace {

constexpr double fingertip = 44;

class Controls : public ShareWindow {
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
    // Of the page; while a question lies over it, of that.
    void check(const char *page) {
        SCOPED_TRACE(page);
        user->waitsUntilStill();
        QQuickItem *root = application->window()->contentItem();
        for (QQuickItem *layer : root->childItems())
            if (layer->inherits("QQuickOverlay") && layer->isVisible()) root = layer;
        QList<QQuickItem *> all;
        collect(root, all);
        ASSERT_FALSE(all.isEmpty());
        QSet<QQuickItem *> reached;
        for (qsizetype i = 0; i < all.size() + 20; ++i) {
            for (QQuickItem *item = user->focused(); item; item = item->parentItem())
                if (item == user->focused() || item->isFocusScope()) reached.insert(item);
            user->presses(Qt::Key_Tab);
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
    user->clicks(text("Remove the Flickr account “standin”"));
    check("before an account is removed");
    user->presses(Qt::Key_Escape);
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
    open({"--uploads"});
    user->clicks(text("Remove “Photo without a title”"));
    ASSERT_TRUE(waitToRead("has not arrived"));
    check("before an upload is removed");
    user->presses(Qt::Key_Escape);
    ASSERT_TRUE(share({post(jpegOfSize(1000, 2))}));
    ASSERT_TRUE(waitToRead("Shared (1)"));
    user->clicks(text("Pause"));
    ASSERT_TRUE(waitToRead("Uploads are paused."));
    check("two of them");
}

TEST_F(Controls, OfTheSheetsTheirScreensAndTheirQuestion) {
    struct {
        QByteArrayList arguments;
        std::vector<const char *> screens;
    } const sheets[]{{{"flickr", photo("a.jpg"), photo("b.jpg", 2)}, {"Album, No album", "Audience, Public"}},
                     {{"vimeo", makeFilm(home, "film.mp4").toUtf8()}, {"Details"}}};
    for (const auto &[arguments, screens] : sheets) {
        open(arguments);
        ASSERT_TRUE(waitFor([&] { return sheet().attachments()->isReady(); }));
        check(arguments[0]);
        for (const char *screen : screens) {
            user->clicks(text(screen));
            ASSERT_TRUE(user->find(text("Back")) && waitFor([&] { return sheet().option()->count() > 0; }));
            check(screen);
            user->clicks(text("Back"));
        }
    }
    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.account->identifier()));
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const auto back = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    open({"flickr", photo("a.jpg")});
    ASSERT_TRUE(waitFor([&] { return sheet().hasAlert(); }));
    check("the question");
    user->presses(Qt::Key_Escape);
    ASSERT_TRUE(waitFor([&] { return !sheet().hasAlert(); }));
    EXPECT_GT(user->focused()->property("cursorRectangle").toRectF().x(), 300) << "where the reading begins";
}
