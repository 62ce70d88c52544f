// Forwards messages to a service of another process.
#include "Platform/Social/RemoteServiceProxy.h"

#include "Platform/Social/HandOver.h"

#include <QUuid>

#include <semaphore>
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

bool waitForReply(const std::function<void(const XPCTransferCompletion &reply)> &send, std::optional<NSError> *error) {
    std::binary_semaphore replied(0);
    bool succeeded = false;
    std::optional<NSError> replyError;
    send([&](std::optional<bool> success, const std::optional<NSError> &failure) {
        succeeded = success.value_or(false);
        replyError = failure;
        replied.release();
    });
    replied.acquire();
    setError(error, replyError);
    return succeeded;
}

} // namespace korvane
