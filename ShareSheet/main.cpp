// korvane-sheet: the share sheet's window.
#include "ShareSheet/SheetApplication.h"

#include <QGuiApplication>

int main(int argc, char *argv[]) {
    QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("korvane-sheet"));
    korvane::SheetApplication sheet;
    return sheet.open(QCoreApplication::arguments().mid(1)) ? QCoreApplication::exec() : 2;
}
