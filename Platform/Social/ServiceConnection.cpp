// A connection to the upload service, which means the same settings as this program.
#include "Platform/Social/ServiceConnection.h"

#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/ServicePulse.h"
#include "Platform/Social/ServiceSettings.h"
#include "Platform/Social/SessionBus.h"
#include "Platform/Social/UploadsInterface.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QUuid>

#include <algorithm>
#include <chrono>
#include <limits>
#include <thread>

namespace korvane {
namespace {

constexpr int noLimit = std::numeric_limits<int>::max(); // milliseconds
constexpr std::chrono::microseconds shortestPause(100);
constexpr std::chrono::microseconds longestPause(20'000);

void fail(std::optional<NSError> *error, const QString &text) {
    setError(error, NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorUnreachable, text));
}

} // namespace

ServiceConnection::ServiceConnection(QString serviceName)
    : _serviceName(std::move(serviceName)), _connectionName(QUuid::createUuid().toString()) {}

ServiceConnection::Outcome ServiceConnection::open(std::optional<NSError> *error) {
    close();
    const auto address = SessionBus::addressStartingService(error);
    if (!address) return Failed;
    _isOpen = true;
    const auto bus = QDBusConnection::connectToBus(*address, _connectionName);
    if (!bus.isConnected())
        fail(error, localizedText("The session bus cannot be reached: %1", bus.lastError().message()));
    const Outcome outcome = bus.isConnected() ? _agreeOnSettings(error) : Failed;
    if (outcome != Answered) close();
    return outcome;
}

ServiceConnection::Outcome ServiceConnection::_agreeOnSettings(std::optional<NSError> *error) const {
    QVariantList answer;
    const Outcome outcome = call(UploadsInterface::path(), QStringLiteral("org.freedesktop.DBus.Properties"),
                                 QStringLiteral("GetAll"), {UploadsInterface::name()}, &answer, error);
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
                                                   const QVariantList &arguments, QVariantList *answer,
                                                   std::optional<NSError> *error) const {
    auto message = QDBusMessage::createMethodCall(_serviceName, path, interface, member);
    message.setArguments(arguments);
    const auto reply = _replyTo(message);
    if (!reply) {
        fail(error, localizedText("The upload service (korvane-uploadd) does not answer. End it and try again: it goes "
                                  "on with its uploads when it is started anew."));
        return Silent;
    }
    if (reply->type() == QDBusMessage::ReplyMessage) {
        *answer = reply->arguments();
        return Answered;
    }
    fail(error, localizedText("The upload service (korvane-uploadd) cannot be reached: %1", reply->errorMessage()));
    const auto type = QDBusError(*reply).type();
    return type == QDBusError::NoReply || type == QDBusError::Disconnected ? Lost : Failed;
}

// Nothing but the reply wakes who waits for it, not even the connection's end, so this looks for it: soon after it
// came, and seldom where it takes long.
std::optional<QDBusMessage> ServiceConnection::_replyTo(const QDBusMessage &message) const {
    const QDBusPendingCall call = bus().asyncCall(message, noLimit);
    ServicePulse pulse(bus(), _serviceName);
    QElapsedTimer waited;
    waited.start();
    while (!call.isFinished()) {
        if (_isInterrupted) return QDBusMessage::createError(QDBusError::NoReply, localizedText("It was broken off."));
        if (pulse.isLost()) return std::nullopt;
        const std::chrono::nanoseconds pause(waited.nsecsElapsed() / 8);
        std::this_thread::sleep_for(std::clamp<std::chrono::nanoseconds>(pause, shortestPause, longestPause));
    }
    return call.reply();
}

} // namespace korvane
