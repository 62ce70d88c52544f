// Which message bus the programs meet on.
#include "Platform/Social/SessionBus.h"

#include "Platform/Foundation/FileDescriptor.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/ProgramPath.h"
#include "Platform/Social/RemoteServiceError.h"

#include <QFile>
#include <QProcess>
#include <QThread>

#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <csignal>
#include <cstring>

namespace korvane {
namespace {

constexpr int startAttempts = 200;
constexpr int attemptMilliseconds = 50;

QString runtimeFolder() {
    return QFile::decodeName(qgetenv("XDG_RUNTIME_DIR"));
}

bool answers(const QString &socketPath) {
    const QByteArray path = QFile::encodeName(socketPath);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.isEmpty() || path.size() >= qsizetype(sizeof address.sun_path)) return false;
    std::copy_n(path.constData(), path.size(), address.sun_path);
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    return ::connect(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
}

} // namespace

QString SessionBus::privateSocket() {
    const QString base = runtimeFolder().isEmpty() ? stateFolder() : runtimeFolder() + QStringLiteral("/korvane");
    makePrivateFolder(base);
    return base + QStringLiteral("/bus");
}

std::optional<QString> SessionBus::address() {
    const QByteArray named = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (!named.isEmpty()) return QString::fromLocal8Bit(named);
    const QString userBus = runtimeFolder() + QStringLiteral("/bus");
    for (const QString &socket : {userBus, privateSocket()})
        if (answers(socket)) return QStringLiteral("unix:path=") + socket;
    return std::nullopt;
}

std::optional<QString> SessionBus::addressStartingService(std::optional<NSError> *error) {
    if (const auto present = address()) return present;
    const QString program = QFile::decodeName(pathOfProgram("korvane-uploadd"));
    QProcess service;
    service.setProgram(program);
    service.setArguments({QStringLiteral("--private-bus")});
    service.setStandardOutputFile(QProcess::nullDevice()); // it must not hold on to this program's terminal or pipe
    service.setStandardErrorFile(stateFolder() + QStringLiteral("/korvane-uploadd.log"));
    qint64 pid = 0;
    const bool started = service.startDetached(&pid);
    for (int attempt = 0; started && attempt < startAttempts; ++attempt) {
        const bool isThere = ::kill(pid_t(pid), 0) == 0;
        if (const auto present = address()) return present;
        if (!isThere) break;
        QThread::msleep(attemptMilliseconds);
    }
    setError(error, NSError::errorWithDescription(
                        RemoteServiceErrorDomain, RemoteServiceErrorUnreachable,
                        localizedText("There is no session bus, and the upload service %1 could not be started. "
                                      "Its log says why: %2",
                                      program, stateFolder() + QStringLiteral("/korvane-uploadd.log"))));
    return std::nullopt;
}

} // namespace korvane
