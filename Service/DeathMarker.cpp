// Tells a death of the service's own making from one that came from outside.
#include "Service/DeathMarker.h"

#include <QByteArray>
#include <QFile>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace korvane {
namespace {

QByteArray &markerPath() {
    static QByteArray path;
    return path;
}
const char *markerPathForHandler = nullptr; // what a signal handler may touch

// Only async-signal-safe calls; the default action then ends the process.
void leaveMarker(int signal) {
    const int file = ::open(markerPathForHandler, O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ::fsync(file);
    ::raise(signal);
}

} // namespace

bool DeathMarker::isThere(const QString &path) {
    return QFile::exists(path);
}

void DeathMarker::remove(const QString &path) {
    QFile::remove(path);
}

void DeathMarker::watch(const QString &path) {
    markerPath() = QFile::encodeName(path);
    markerPathForHandler = markerPath().constData();
    // A stack of its own, for a death by stack overflow.
    static char stack[16384];
    const stack_t alternative{stack, 0, sizeof stack};
    ::sigaltstack(&alternative, nullptr);
    struct sigaction action {};
    action.sa_handler = leaveMarker;
    action.sa_flags = SA_RESETHAND | SA_ONSTACK | SA_NODEFER;
    for (const int signal : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL})
        ::sigaction(signal, &action, nullptr);
}

} // namespace korvane
