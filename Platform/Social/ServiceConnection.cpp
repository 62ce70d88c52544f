// A connection to the upload service, which means the same settings as this program.
#include "Platform/Social/ServiceConnection.h"

#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/ServiceSettings.h"
#include "Platform/Social/SessionBus.h"
#include "Platform/Social/UploadsInterface.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QUuid>

#include <algorithm>
#include <chrono>
#include <thread>

namespace korvane {
namespace {

constexpr std::chrono::microseconds shortestPause(100);
constexpr std::chrono::microseconds longestPause(20'000);

void fail(std::optional<NSError> *error, const QString &text) {
    setError(error, NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorUnreachable, text));
}

} // namespace

ServiceConnection::ServiceConnection(QString serviceName, bool mayBeInterrupted)
    : _serviceName(std::move(serviceName)), _mayBeInterrupted(mayBeInterrupted),
      _connectionName(QUuid::createUuid().toString()) {}

ServiceConnection::Outcome ServiceConnection::open(int milliseconds, std::optional<NSError> *error) {
    close();
    const auto address = SessionBus::addressStartingService(error);
    if (!address) return Failed;
    _isOpen = true;
    const auto bus = QDBusConnection::connectToBus(*address, _connectionName);
    if (!bus.isConnected())
        fail(error, localizedText("The session bus cannot be reached: %1", bus.lastError().message()));
    const Outcome outcome = bus.isConnected() ? _agreeOnSettings(milliseconds, error) : Failed;
    if (outcome != Answered) close();
    return outcome;
}

ServiceConnection::Outcome ServiceConnection::_agreeOnSettings(int milliseconds, std::optional<NSError> *error) const {
    QVariantList answer;
    const Outcome outcome = call(UploadsInterface::path(), QStringLiteral("org.freedesktop.DBus.Properties"),
                                 QStringLiteral("GetAll"), {UploadsInterface::name()}, milliseconds, &answer, error);
    if (outcome != Answered) return outcome;
    const auto service = ServiceSettings::fromDictionary(qdbus_cast<QVariantMap>(answer.value(0)));
    const auto difference = ServiceSettings::current().difference(service);
    if (!difference) return Answered;
    setError(error,
             NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorOtherSettings, *difference));
    return Failed;
}

void ServiceConnection::close() {
    if (std::exchange(_isOpen, false)) QDBusConnection::disconnectFromBus(_connectionName);
}

ServiceConnection::Outcome ServiceConnection::call(const QString &path, const QString &interface, const QString &member,
                                                   const QVariantList &arguments, int milliseconds,
                                                   QVariantList *answer, std::optional<NSError> *error) const {
    auto message = QDBusMessage::createMethodCall(_serviceName, path, interface, member);
    message.setArguments(arguments);
    const QDBusMessage reply = _mayBeInterrupted ? _replyUnlessInterrupted(message, milliseconds)
                                                 : bus().call(message, QDBus::Block, milliseconds);
    if (reply.type() == QDBusMessage::ReplyMessage) {
        *answer = reply.arguments();
        return Answered;
    }
    fail(error, localizedText("The upload service (korvane-uploadd) cannot be reached: %1", reply.errorMessage()));
    const auto type = QDBusError(reply).type();
    return type == QDBusError::NoReply || type == QDBusError::Disconnected ? Lost : Failed;
}

// Nothing but the reply wakes who waits for it, not even the connection's end.
QDBusMessage ServiceConnection::_replyUnlessInterrupted(const QDBusMessage &message, int milliseconds) const {
    const QDBusPendingCall call = bus().asyncCall(message, milliseconds);
    for (auto pause = shortestPause; !call.isFinished(); pause = std::min(2 * pause, longestPause)) {
        if (_isInterrupted) return QDBusMessage::createError(QDBusError::NoReply, localizedText("It was broken off."));
        std::this_thread::sleep_for(pause);
    }
    return call.reply();
}

} // namespace korvane
