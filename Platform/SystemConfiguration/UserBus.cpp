// Whether there is a session bus to talk to.
#include "Platform/SystemConfiguration/UserBus.h"

#include <QFile>

namespace korvane {

bool UserBus::isPresent() {
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty()) return !address.startsWith("autolaunch:");
    const QByteArray runtimeFolder = qgetenv("XDG_RUNTIME_DIR");
    return !runtimeFolder.isEmpty() && QFile::exists(QFile::decodeName(runtimeFolder) + QStringLiteral("/bus"));
}

} // namespace korvane
