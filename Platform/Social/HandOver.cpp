// One message to a service, from its check to its reply.
#include "Platform/Social/HandOver.h"

#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/ServiceSettings.h"

#include <QDBusArgument>
#include <QDBusUnixFileDescriptor>

namespace korvane {

HandOver::HandOver(const QString &serviceName, NSXPCInterface interface, QString id)
    : _serviceName(serviceName), _interface(std::move(interface)), _id(std::move(id)), _connection(serviceName) {}

void HandOver::run(const QVariantList &records) {
    auto outcome = _attempt(records);
    const bool wasLost = outcome == ServiceConnection::Lost;
    if (wasLost) {
        _message.reset(); // its file may have a name in the spool by now, and would be refused
        outcome = _attempt(records);
    }
    const bool isRefusal = outcome == ServiceConnection::Failed && !wasLost;
    if (outcome == ServiceConnection::Answered || isRefusal || !_wasSent) return;
    error = NSError::errorWithDescription(
        RemoteServiceErrorDomain, RemoteServiceErrorUnknownEnd,
        localizedText("The upload service may have taken over what was shared, but its answer was lost. Look at the "
                      "uploads before you share it again. (%1)",
                      error->localizedDescription()));
}

// The data goes into a file beside the service's spool, so both must have agreed on the folder before.
ServiceConnection::Outcome HandOver::_attempt(const QVariantList &records) {
    const auto opened = _connection.open(&error);
    if (opened != ServiceConnection::Answered) return opened;
    if (!_message) _message = WireRecord::encode(records, ServiceSettings::current().spoolFolder, &error);
    return _message ? _send() : ServiceConnection::Failed;
}

ServiceConnection::Outcome HandOver::_send() {
    QList<QDBusUnixFileDescriptor> files;
    if (_message->dataFile) files.append(QDBusUnixFileDescriptor(_message->dataFile.get()));
    const QVariant argument = _interface.argument == NSXPCInterface::Records ? QVariant::fromValue(_message->records)
                                                                             : _message->records.value(0);
    QVariantList reply;
    _wasSent = true;
    const auto outcome = _connection.call(objectPathOfService(_serviceName), _serviceName, _interface.operation,
                                          {_id, argument, QVariant::fromValue(files)}, &reply, &error);
    if (outcome != ServiceConnection::Answered) return outcome;
    success = reply.value(0).toBool();
    const auto dictionary = qdbus_cast<QVariantMap>(reply.value(1));
    error = dictionary.isEmpty() ? std::nullopt : std::optional(errorOfDictionary(dictionary));
    return outcome;
}

} // namespace korvane
