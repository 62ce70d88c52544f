// The mark that shows in the desktop's launcher while uploads are under way.
#include "Platform/Power/SystemProgressIndicator.h"

#include "Platform/SystemConfiguration/UserBus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QTimer>
#include <QVariantMap>

#include <chrono>

namespace korvane {
namespace {

void sendUpdate(bool on) {
    if (!UserBus::isPresent()) return;
    QDBusMessage update =
        QDBusMessage::createSignal(QStringLiteral("/com/zorvex/korvane/LauncherEntry"),
                                   QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    update.setArguments({QStringLiteral("application://korvane-sheet.desktop"),
                         QVariantMap{{QStringLiteral("progress-visible"), on}, {QStringLiteral("progress"), 0.0}}});
    QDBusConnection::sessionBus().send(update);
}

} // namespace

void setSystemProgressIndicator(bool on, int timeoutSeconds) {
    static quint64 latest = 0;
    static bool isShown = false;
    const quint64 call = ++latest;
    if (on != isShown) sendUpdate(on);
    isShown = on;
    if (!on) return;
    QTimer::singleShot(std::chrono::seconds(timeoutSeconds), QCoreApplication::instance(), [call] {
        if (call != latest) return;
        isShown = false;
        sendUpdate(false);
    });
}

} // namespace korvane
