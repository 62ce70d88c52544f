// The window's page of uploads, which a tapped notification opens.
#include "Service/UploadsWindow.h"

#include <QProcess>

#include <csignal>

namespace korvane {
namespace {

// The kernel gives children what main() sets for the event loop.
void forgetOurSignals() {
    for (const int signal : {SIGPIPE, SIGIO})
        ::signal(signal, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

// A child of a unit would share its limits (the browser of a sign-in could not use its sandbox) and end with it.
bool isUnit() {
    return qgetenv("SYSTEMD_EXEC_PID").toLongLong() == ::getpid();
}

} // namespace

void UploadsWindow::open(const QString &program) {
    const QString page = QStringLiteral("--uploads");
    QProcess window;
    window.setChildProcessModifier(forgetOurSignals);
    window.setProgram(program);
    window.setArguments({page});
    if (isUnit()) {
        window.setProgram(QStringLiteral("/bin/sh"));
        window.setArguments(
            {QStringLiteral("-c"),
             QStringLiteral("systemd-run --user --quiet --collect -- \"$0\" \"$1\" || exec \"$0\" \"$1\""), program,
             page});
    }
    window.startDetached();
}

} // namespace korvane
