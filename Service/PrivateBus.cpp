// A message bus of the service's own, where the environment has none.
#include "Service/PrivateBus.h"

#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/SessionBus.h"

#include <QFile>

#include <sys/prctl.h>

#include <csignal>

namespace korvane {
namespace {

constexpr int startMilliseconds = 5000;

} // namespace

PrivateBus::~PrivateBus() {
    if (_daemon.state() == QProcess::NotRunning) return;
    _daemon.terminate();
    _daemon.waitForFinished(startMilliseconds);
}

std::optional<QString> PrivateBus::start(std::optional<NSError> *error) {
    const QString socket = SessionBus::privateSocket();
    QFile::remove(socket); // what is left of a bus whose service was killed
    // The main thread lives as long as the process, so its end is the process's.
    _daemon.setChildProcessModifier([] {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        sigset_t none;
        sigemptyset(&none);
        ::sigprocmask(SIG_SETMASK, &none, nullptr); // the signals that this process takes from a descriptor
    });
    _daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    _daemon.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                   QStringLiteral("--address=unix:path=") + socket, QStringLiteral("--print-address")});
    if (_daemon.waitForReadyRead(startMilliseconds)) return QString::fromLocal8Bit(_daemon.readLine()).trimmed();
    setError(error, NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorUnreachable,
                                                  localizedText("dbus-daemon could not be started at %1", socket)));
    return std::nullopt;
}

} // namespace korvane
