// Keeps the machine from going to sleep while work is under way.
#include "Platform/Power/PowerAssertion.h"

#include "Platform/Foundation/NSLog.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QTimer>

#include <algorithm>

namespace korvane {
namespace {

// The reason differs from bus to bus and from mode to mode: one line a process is enough.
void logRefusal(const QString &reason) {
    static bool logged = false;
    if (!logged) NSLog("The machine may go to sleep during uploads: %@", reason);
    logged = true;
}

QDBusMessage inhibitCall(const QString &identifier, bool block) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    // Idling can only be blocked, not delayed.
    call.setArguments({block ? QStringLiteral("sleep:idle") : QStringLiteral("sleep"), QStringLiteral("Korvane"),
                       identifier, block ? QStringLiteral("block") : QStringLiteral("delay")});
    return call;
}

} // namespace

std::shared_ptr<PowerAssertion> PowerAssertionCreate(const QString &identifier, double timeoutSeconds) {
    const auto assertion = std::make_shared<PowerAssertion>(identifier);
    assertion->_ask(true);
    const int milliseconds = int(std::clamp(timeoutSeconds * 1000, 0.0, 2e9));
    QTimer::singleShot(milliseconds, QCoreApplication::instance(), [weak = assertion->weak_from_this()] {
        if (const auto self = weak.lock()) self->_timeOut();
    });
    return assertion;
}

void PowerAssertion::_ask(bool block) {
    QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.isConnected()) return logRefusal(QStringLiteral("there is no system bus"));
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(inhibitCall(_identifier, block)));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [weak = weak_from_this(), watcher, block] {
        // An answer that nobody waits for any more gives its lock back with the watcher.
        if (const auto self = weak.lock()) self->_answered(*watcher, block);
        watcher->deleteLater();
    });
}

void PowerAssertion::_answered(const QDBusPendingCall &call, bool block) {
    if (_timedOut) return;
    const QDBusPendingReply<QDBusUnixFileDescriptor> reply = call;
    if (reply.isValid()) {
        _lock = FileDescriptor::duplicate(reply.value().fileDescriptor());
        return;
    }
    const QDBusError::ErrorType type = reply.error().type();
    if (block && (type == QDBusError::AccessDenied || type == QDBusError::Other)) return _ask(false);
    logRefusal(reply.error().message());
}

void PowerAssertion::_timeOut() {
    _timedOut = true;
    _lock.reset();
}

} // namespace korvane
