// Pictures of the window's screens: korvane-screenshots FOLDER VIDEO PHOTO...
// The language is the environment's; KORVANE_SCREENSHOTS is a list of "dark", "large" (texts of twice the size) and
// "mirrored" (from right to left).
#include "ShareSheet/SheetApplication.h"
#include "Tests/Support/StandInAccount.h"
#include "Tests/Support/WaitFor.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QTest>

using namespace korvane;
using namespace korvane::test;

namespace {

struct Size {
    const char *name;
    QSize size;
};
constexpr Size sizes[]{{"phone", {360, 640}}, {"desktop", {640, 720}}};

class Photographer {
public:
    Photographer(const QString &folder, const QString &ending) : _folder(folder), _ending(ending) {}

    // Opens the window once for each size, gets it ready, and takes its picture.
    void take(const char *screen, const QByteArrayList &arguments, const std::function<void(SheetModel &)> &prepare) {
        for (const Size &size : sizes) {
            SheetApplication application;
            QString problem;
            application.open(*SheetRequest::parse(arguments, problem));
            QQuickWindow &window = *application.window();
            window.resize(size.size);
            window.requestActivate();
            waitFor([&] { return window.isActive() && window.isExposed(); });
            if (application.sheet()) {
                waitFor([&] { return application.sheet()->attachments()->isReady(); });
                prepare(*application.sheet());
            }
            QTest::qWait(1500); // pages slide in, thumbnails come
            const QString name =
                QStringLiteral("%1/%2-%3%4.png").arg(_folder, QLatin1String(screen), QLatin1String(size.name), _ending);
            if (!window.grabWindow().save(name)) qFatal("%s cannot be written", qPrintable(name));
        }
    }

private:
    const QString _folder;
    const QString _ending;
};

void type(EditTarget &target, int row, const QString &text) {
    target.userReplaces(row, {target.editedText(row).size(), 0}, text);
}

// As a person does: each tag in the row that the one before it has made.
void fillDetails(SheetModel &sheet) {
    sheet.tapItem(0);
    QTest::qWait(400);
    TableModel &details = *sheet.option();
    type(details, 0, QStringLiteral("Filmed from the pier."));
    for (const char *tag : {"sea", "evening", "pier"}) {
        int row = 1;
        while (!details.editedText(row).isEmpty())
            ++row;
        type(details, row, QLatin1String(tag));
        QTest::qWait(300);
    }
    details.userEndsEditing(3);
}

void openAlbums(SheetModel &sheet) {
    sheet.tapItem(0);
    waitFor([&] { return sheet.option()->count() > 1; });
    sheet.option()->select(1);
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

    TemporaryHome home;
    home.setEnvironment("KORVANE_SECRETS", "file");
    home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    StandInAccount service(home, {.albums = 12});
    Photographer photographer(QString::fromLocal8Bit(argv[1]),
                              isDark ? QStringLiteral("-dark") : QStringLiteral("-light"));
    QByteArrayList photos{"flickr"};
    for (int i = 3; i < argc; ++i)
        photos.append(argv[i]);
    const QByteArrayList video{"vimeo", argv[2]};
    const auto titled = [](SheetModel &sheet) { type(sheet, 0, QStringLiteral("An evening by the sea")); };
    photographer.take("sheet-flickr", photos, titled);
    photographer.take("sheet-vimeo", video, titled);
    photographer.take("audience", photos, [](SheetModel &sheet) { sheet.tapItem(1); });
    photographer.take("albums", photos, openAlbums);
    photographer.take("details", video, fillDetails);
    photographer.take("settings", {"--settings", "flickr"}, {});
    ACAccountStore().removeAccount(service.account->identifier());
    photographer.take("alert", photos, [](SheetModel &sheet) { waitFor([&] { return sheet.hasAlert(); }); });
    return 0;
}
