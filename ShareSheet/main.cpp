// korvane-sheet: the share sheet's window.
#include "FrontEnd/ExitStatus.h"
#include "ShareSheet/SheetApplication.h"

#include <QGuiApplication>

#include <cstdio>

using namespace korvane;

int main(int argc, char *argv[]) {
    QByteArrayList arguments; // a file's name need not be a text
    for (int i = 1; i < argc; ++i)
        arguments.append(argv[i]);
    QString problem;
    const auto request = SheetRequest::parse(arguments, problem);
    if (!request) {
        std::fprintf(stderr, "korvane-sheet: %s (see korvane-sheet --help)\n", qPrintable(problem));
        return ExitUsage;
    }
    if (request->page == SheetRequest::Help) {
        std::fputs(SheetRequest::helpText(), stdout);
        return ExitDone;
    }
    QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("korvane-sheet"));
    QGuiApplication::setDesktopFileName(QStringLiteral("korvane-sheet"));
    QGuiApplication::setQuitOnLastWindowClosed(false); // the end has a status
    SheetApplication sheet;
    QObject::connect(&sheet, &SheetApplication::finished, &application, &QCoreApplication::exit);
    return sheet.open(*request) ? QCoreApplication::exec() : ExitUploadFailed;
}
