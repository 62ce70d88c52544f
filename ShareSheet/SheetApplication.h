// The window program: what it is asked to show, and the window that shows it.
#pragma once

#include "ShareSheet/SheetRequest.h"

#include <QQmlApplicationEngine>

namespace korvane {

// Thread: main.
class SheetApplication {
public:
    SheetApplication();

    // False, with a word on standard error, where there is nothing that can be shown.
    bool open(const SheetRequest &request);

private:
    // Shows a page of that name (the file's, without its ending) with these properties.
    bool _openWindow(const QString &page, const QVariantMap &properties);

    QQmlApplicationEngine _engine;
};

} // namespace korvane
