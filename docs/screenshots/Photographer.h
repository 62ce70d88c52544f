// Takes pictures of the window.
#pragma once

#include "ShareSheet/SheetApplication.h"

#include <QByteArrayList>

#include <functional>

namespace korvane::screenshots {

// Waits for it; ends the program, naming it, where it does not come about.
void require(const char *what, const std::function<bool()> &isSo);

class Photographer {
public:
    // ending: of the pictures' names, before their ".png".
    Photographer(QString folder, QString ending) : _folder(std::move(folder)), _ending(std::move(ending)) {}

    // Opens the window once for each size of screen, gets it ready, and takes its picture once nothing moves in it and
    // all thumbnails are there.
    using Preparation = std::function<void(SheetApplication &application)>;
    void take(const char *screen, const QByteArrayList &arguments, const Preparation &prepare = {}) const;

private:
    const QString _folder;
    const QString _ending;
};

} // namespace korvane::screenshots
