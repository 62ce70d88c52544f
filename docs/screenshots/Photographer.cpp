// Takes pictures of the window.
#include "docs/screenshots/Photographer.h"

#include "Tests/Support/WaitFor.h"

#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

namespace korvane::screenshots {
namespace {

struct Size {
    const char *name;
    QSize size;
};
constexpr Size sizes[]{{"phone", {360, 640}}, {"desktop", {640, 720}}};
constexpr int timeLimit = 60'000; // milliseconds

// Thumbnails, that is; those of files that show nothing are there, too.
bool hasAllPictures(const QQuickItem *item) {
    if (!item->isVisible()) return true;
    const QVariant isLoaded = item->property("isLoaded");
    if (isLoaded.isValid() && !isLoaded.toBool() && !item->property("source").toUrl().isEmpty()) return false;
    return std::ranges::all_of(item->childItems(), hasAllPictures);
}

} // namespace

void require(const char *what, const std::function<bool()> &isSo) {
    if (!test::waitFor(isSo, timeLimit)) qFatal("There is no picture: nothing came of %s.", what);
}

void Photographer::take(const char *screen, const QByteArrayList &arguments, const Preparation &prepare) const {
    for (const Size &size : sizes) {
        SheetApplication application;
        QString problem;
        const auto request = SheetRequest::parse(arguments, problem);
        if (!request || !application.open(*request)) qFatal("%s cannot be shown. %s", screen, qPrintable(problem));
        QQuickWindow &window = *application.window();
        window.resize(size.size);
        window.requestActivate();
        require("the window", [&] { return window.isActive() && window.isExposed(); });
        if (prepare) prepare(application);
        require("the thumbnails", [&] { return hasAllPictures(window.contentItem()); });
        QImage picture, before;
        require("rest", [&] {
            before = std::exchange(picture, window.grabWindow());
            return picture == before && hasAllPictures(window.contentItem());
        });
        const QString name =
            QStringLiteral("%1/%2-%3%4.png").arg(_folder, QLatin1String(screen), QLatin1String(size.name), _ending);
        if (!picture.save(name)) qFatal("%s cannot be written", qPrintable(name));
    }
}

} // namespace korvane::screenshots
