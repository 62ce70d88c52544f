// Forwards messages to a service of another process.
#include "Platform/Social/RemoteServiceProxy.h"

#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/ServiceSettings.h"
#include "Platform/Social/SessionBus.h"
#include "Platform/Social/UploadsInterface.h"
#include "Platform/Social/WireRecord.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QUuid>

#include <climits>
#include <thread>

namespace korvane {
namespace {

// One message from its check to its reply, on its own thread.
class HandOver {
public:
    HandOver(QString serviceName, NSXPCInterface interface, QString id)
        : _serviceName(std::move(serviceName)), _interface(std::move(interface)), _id(std::move(id)) {}
    ~HandOver() { _disconnect(); }

    void run(const QVariantList &records) {
        if (_attempt(records) != Lost) return;
        _message.reset(); // its file may have a name in the spool by now, and would be refused
        _attempt(records);
    }

    std::optional<bool> success;
    std::optional<NSError> error;

private:
    // Lost: the service or the bus went away, and nobody knows how far the message came.
    enum Outcome { Ended, Lost };

    Outcome _attempt(const QVariantList &records) {
        if (!_connect()) return Ended;
        if (const auto disagreement = _agreeOnSettings()) return *disagreement;
        if (!_message) _message = WireRecord::encode(records, ServiceSettings::current().spoolFolder, &error);
        return _message ? _send() : Ended;
    }

    bool _connect() {
        _disconnect();
        const auto address = SessionBus::addressStartingService(&error);
        if (!address) return false;
        _connectionName = QUuid::createUuid().toString();
        const auto bus = QDBusConnection::connectToBus(*address, _connectionName);
        if (bus.isConnected()) return true;
        return _fail(QStringLiteral("The session bus cannot be reached: %1").arg(bus.lastError().message()));
    }

    void _disconnect() {
        if (!_connectionName.isEmpty()) QDBusConnection::disconnectFromBus(std::exchange(_connectionName, QString()));
    }

    // The data goes into a file beside the service's spool, so both must mean the same folder, and the same web
    // services. Null: they agree.
    std::optional<Outcome> _agreeOnSettings() {
        auto call =
            QDBusMessage::createMethodCall(_serviceName, UploadsInterface::path(),
                                           QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("GetAll"));
        call << UploadsInterface::name();
        const auto reply = QDBusConnection(_connectionName).call(call, QDBus::Block, INT_MAX);
        if (reply.type() != QDBusMessage::ReplyMessage)
            return _failed(reply, QStringLiteral("The upload service cannot be reached: %1"));
        const auto service = ServiceSettings::fromDictionary(qdbus_cast<QVariantMap>(reply.arguments().value(0)));
        const auto difference = ServiceSettings::current().difference(service);
        if (!difference) return std::nullopt;
        error = NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorOtherSettings, *difference);
        return Ended;
    }

    Outcome _send() {
        auto call = QDBusMessage::createMethodCall(_serviceName, objectPathOfService(_serviceName), _serviceName,
                                                   _interface.operation);
        QList<QDBusUnixFileDescriptor> files;
        if (_message->dataFile) files.append(QDBusUnixFileDescriptor(_message->dataFile.get()));
        call << _id;
        if (_interface.argument == NSXPCInterface::Records)
            call << QVariant::fromValue(_message->records);
        else
            call << _message->records.value(0);
        call << QVariant::fromValue(files);
        const auto reply = QDBusConnection(_connectionName).call(call, QDBus::Block, INT_MAX);
        if (reply.type() != QDBusMessage::ReplyMessage)
            return _failed(reply, QStringLiteral("The upload service did not take the posts: %1"));
        success = reply.arguments().value(0).toBool();
        const auto dictionary = qdbus_cast<QVariantMap>(reply.arguments().value(1));
        error = dictionary.isEmpty() ? std::nullopt : std::optional(errorOfDictionary(dictionary));
        return Ended;
    }

    Outcome _failed(const QDBusMessage &reply, const QString &text) {
        _fail(text.arg(reply.errorMessage()));
        const auto type = QDBusError(reply).type();
        return type == QDBusError::NoReply || type == QDBusError::Disconnected ? Lost : Ended;
    }

    bool _fail(const QString &text) {
        error = NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorUnreachable, text);
        return false;
    }

    const QString _serviceName;
    const NSXPCInterface _interface;
    const QString _id;
    QString _connectionName;
    std::optional<WireRecord::Message> _message;
};

} // namespace

QString objectPathOfService(const QString &serviceName) {
    QString path = serviceName;
    return u'/' + path.replace(u'.', u'/');
}

void RemoteServiceProxy::send(const QVariantList &records, const XPCTransferCompletion &reply) {
    WireRecord::registerTypes();
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    {
        const std::lock_guard lock(_mutex);
        _lastMessageID = id;
    }
    std::thread([serviceName = _serviceName, interface = _interface, id, records, reply] {
        std::optional<bool> success;
        std::optional<NSError> error;
        {
            HandOver handOver(serviceName, interface, id);
            handOver.run(records);
            success = handOver.success;
            error = handOver.error;
        }
        reply(success, error);
    }).detach();
}

QString RemoteServiceProxy::lastMessageID() const {
    const std::lock_guard lock(_mutex);
    return _lastMessageID;
}

} // namespace korvane
