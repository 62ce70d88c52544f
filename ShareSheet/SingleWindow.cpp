// Sees to it that a window is open only once for each session.
#include "ShareSheet/SingleWindow.h"

#include "Platform/Social/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace korvane {
namespace {

constexpr int patienceMilliseconds = 3'000;
const QString name = QStringLiteral("com.zorvex.korvane.UploadsWindow");
const QString path = QStringLiteral("/com/zorvex/korvane/UploadsWindow");

} // namespace

bool SingleWindow::begin() {
    const auto address = SessionBus::address();
    if (!address) return true;
    auto bus = QDBusConnection::connectToBus(*address, name);
    bus.registerObject(path, this, QDBusConnection::ExportScriptableSlots);
    if (!bus.isConnected() || bus.registerService(name)) return true;
    auto call = QDBusMessage::createMethodCall(name, path, QStringLiteral("org.freedesktop.Application"),
                                               QStringLiteral("Activate"));
    call.setArguments({QVariantMap()});
    return bus.call(call, QDBus::Block, patienceMilliseconds).type() != QDBusMessage::ReplyMessage;
}

void SingleWindow::Activate(const QVariantMap &) {
    Q_EMIT activated();
}

} // namespace korvane
