// The window program: what it is asked to show, and the window that shows it.
#pragma once

#include <QQmlApplicationEngine>
#include <QStringList>

namespace korvane {

// Thread: main.
class SheetApplication {
public:
    // arguments: as of the command line, without the program's name. False, with a word on standard error, where they
    // ask for nothing that can be shown.
    bool open(const QStringList &arguments);

private:
    QQmlApplicationEngine _engine;
};

} // namespace korvane
