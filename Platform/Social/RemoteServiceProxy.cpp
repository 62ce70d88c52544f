// Forwards messages to a service of another process.
#include "Platform/Social/RemoteServiceProxy.h"

#include "Platform/Social/HandOver.h"

#include <QUuid>

#include <thread>

namespace korvane {

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
            HandOver handOver(serviceName, interface, id); // lets go of its files before the caller goes on
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
