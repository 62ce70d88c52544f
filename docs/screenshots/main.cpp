// Pictures of the window's screens: korvane-screenshots FOLDER VIDEO PHOTO...
// The language is the environment's; KORVANE_SCREENSHOTS is a list of "dark", "large" (texts of twice the size) and
// "mirrored" (from right to left).
#include "docs/screenshots/Photographer.h"
#include "docs/screenshots/Uploading.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QStyleHints>
#include <QTest>

using namespace korvane;
using namespace korvane::screenshots;

namespace {

void type(EditTarget &target, int row, const QString &text) {
    target.userReplaces(row, {target.editedText(row).size(), 0}, text);
}

Photographer::Preparation sheetWith(const std::function<void(SheetModel &)> &work) {
    return [work](SheetApplication &application) {
        SheetModel &sheet = *application.sheet();
        require("the end of preparing", [&] { return !sheet.attachments()->isPreparing(); });
        if (!sheet.attachments()->isReady())
            qFatal("There is no picture: %s", qPrintable(sheet.attachments()->problems()));
        work(sheet);
    };
}

// As a person does: each tag in the row that the one before it has made.
void fillDetails(SheetModel &sheet) {
    sheet.tapItem(0);
    require("the details", [&] { return sheet.option() && sheet.option()->count() > 1; });
    TableModel &details = *sheet.option();
    type(details, 0, QStringLiteral("Filmed from the pier."));
    for (const char *tag : {"sea", "evening", "pier"}) {
        int row = 1;
        while (!details.editedText(row).isEmpty())
            ++row;
        type(details, row, QLatin1String(tag));
        require("the next tag's row", [&] { return details.count() > row + 1; });
    }
    details.userEndsEditing(3);
}

void openAlbums(SheetModel &sheet) {
    sheet.tapItem(0);
    require("the albums", [&] { return sheet.option() && sheet.option()->count() > 1; });
    sheet.option()->select(1);
}

Photographer::Preparation settingsWith(const std::function<void(ServiceAccess &)> &work) {
    return [work](SheetApplication &application) {
        ServiceAccess &flickr = *application.settings()->flickr();
        ServiceAccess &vimeo = *application.settings()->vimeo();
        require("the keys", [&] { return !flickr.keys()->isBusy() && !vimeo.keys()->isBusy(); });
        flickr.signIn()->setOpener([](const QString &) { return true; });
        work(flickr);
    };
}

void signIn(ServiceAccess &access, bool typesCode) {
    access.addAccount(typesCode);
    require("the sign-in", [&] { return !access.signIn()->pageAddress().isEmpty(); });
}

void showUploads(SheetApplication &application) {
    UploadsModel &model = *application.uploads()->model();
    require("the uploads", [&] { return model.rowCount() == 5; });
    require("a speed", [&] { return !model.index(0).data(UploadsModel::PaceTextRole).toString().isEmpty(); });
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const QByteArrayList style = qgetenv("KORVANE_SCREENSHOTS").split(' ');
    const bool isDark = style.contains("dark");
    if (isDark) QGuiApplication::setPalette(QPalette(QColor(40, 40, 44)));
    if (style.contains("mirrored")) QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QFont font = QGuiApplication::font();
    if (style.contains("large")) font.setPointSizeF(font.pointSizeF() * 2);
    QGuiApplication::setFont(font);

    QGuiApplication::styleHints()->setCursorFlashTime(0); // it would be seen in some pictures only

    qputenv("KORVANE_SECRETS", "file");
    test::ServiceHarness service({.albums = 12});
    const Photographer photographer(QString::fromLocal8Bit(argv[1]),
                                    isDark ? QStringLiteral("-dark") : QStringLiteral("-light"));
    QByteArrayList photos;
    for (int i = 3; i < argc; ++i)
        photos.append(argv[i]);
    const QByteArrayList flickr = QByteArrayList{"flickr"} + photos;
    const QByteArrayList vimeo{"vimeo", argv[2]};
    const auto titled = sheetWith([](SheetModel &sheet) { type(sheet, 0, QStringLiteral("An evening by the sea")); });
    photographer.take("sheet-flickr", flickr, titled);
    photographer.take("sheet-vimeo", vimeo, titled);
    photographer.take("audience", flickr, sheetWith([](SheetModel &sheet) { sheet.tapItem(1); }));
    photographer.take("albums", flickr, sheetWith(openAlbums));
    photographer.take("albums-trouble", flickr, sheetWith([&service](SheetModel &sheet) {
                          service.flickr.server.on("getList").fail(503);
                          sheet.tapItem(0);
                          require("the trouble",
                                  [&] { return sheet.option() && !sheet.option()->problem().isEmpty(); });
                      }));
    photographer.take("details", vimeo, sheetWith(fillDetails));
    photographer.take(
        "unusable", flickr + QByteArrayList{service.home.file("notes.txt", "words")}, [](SheetApplication &window) {
            const AttachmentsModel &attachments = *window.sheet()->attachments();
            require("the problem", [&] { return !attachments.isPreparing() && !attachments.problems().isEmpty(); });
        });

    shareInEveryState(service, photos, QString::fromLocal8Bit(argv[2]));
    photographer.take("uploads", {"--uploads"}, showUploads);
    photographer.take("uploads-question", {"--uploads"}, [](SheetApplication &window) {
        showUploads(window);
        QTest::keyClick(window.window(), Qt::Key_Delete);
    });

    service.setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    photographer.take("failed", flickr, sheetWith([](SheetModel &sheet) {
                          require("the button", [&] { return sheet.canPost(); });
                          sheet.post();
                          require("the failure", [&] { return !sheet.failure().isEmpty(); });
                      }));

    const ApplicationKeys keys{QString::fromUtf8(standin::StandIn::flickrCredential().consumerKey),
                               QString::fromUtf8(standin::StandIn::flickrCredential().consumerSecret)};
    photographer.take("settings", {"--settings", "flickr"}, settingsWith([](ServiceAccess &) {}));
    if (!keys.store(service.flickr.account->accountType())) qFatal("the keys are not stored");
    photographer.take("settings-keys", {"--settings", "flickr"}, settingsWith([](ServiceAccess &) {}));
    photographer.take("settings-uploads", {"--settings"}, [](SheetApplication &window) {
        settingsWith([](ServiceAccess &) {})(window);
        QTest::keyClick(window.window(), Qt::Key_Backtab);
    });
    photographer.take("settings-sign-in", {"--settings", "flickr"},
                      settingsWith([](ServiceAccess &access) { signIn(access, false); }));
    photographer.take("settings-code", {"--settings", "flickr"},
                      settingsWith([](ServiceAccess &access) { signIn(access, true); }));
    ACAccountStore().removeAccount(service.flickr.account->identifier());
    photographer.take("alert", flickr, [](SheetApplication &window) {
        require("the alert", [&] { return window.sheet()->hasAlert(); });
    });
    return 0;
}
