// korvane-sheet: the share sheet's window.
#include "FrontEnd/ExitStatus.h"
#include "FrontEnd/UploadText.h"
#include "ShareSheet/SheetApplication.h"
#include "ShareSheet/SingleWindow.h"

#include <QGuiApplication>
#include <QLocale>

#include <cstdio>

using namespace korvane;

int main(int argc, char *argv[]) {
    QByteArrayList arguments; // a file's name need not be a text
    for (int i = 1; i < argc; ++i)
        arguments.append(argv[i]);
    QString problem;
    const auto request = SheetRequest::parse(arguments, problem);
    if (!problem.isEmpty())
        std::fprintf(stderr, "korvane-sheet: %s (see korvane-sheet --help)\n",
                     qPrintable(UploadText::printable(problem)));
    if (!request) return ExitUsage;
    if (request->page == SheetRequest::Help) {
        std::fputs(SheetRequest::helpText(), stdout);
        return ExitDone;
    }
    if (request->page == SheetRequest::Version) {
        std::puts("korvane-sheet " KORVANE_VERSION);
        return ExitDone;
    }
    int count = 1; // all other arguments are ours, also where they look like Qt's
    QGuiApplication application(count, argv);
    QGuiApplication::setLayoutDirection(QLocale().textDirection());
    QCoreApplication::setApplicationName(QStringLiteral("korvane-sheet"));
    QGuiApplication::setDesktopFileName(QStringLiteral("korvane-sheet"));
    QGuiApplication::setQuitOnLastWindowClosed(false); // the end has a status
    SingleWindow uploads;
    if (request->page == SheetRequest::Uploads && !uploads.begin()) return ExitDone;
    SheetApplication sheet;
    QObject::connect(&uploads, &SingleWindow::activated, &sheet, [&sheet] {
        if (!sheet.window()) return;
        sheet.window()->raise();
        sheet.window()->requestActivate();
    });
    QObject::connect(&sheet, &SheetApplication::finished, &application, &QCoreApplication::exit);
    return sheet.open(*request) ? QCoreApplication::exec() : ExitUploadFailed;
}
