// Forwards messages to a service of another process.
#pragma once

#include "Platform/Social/NSXPCInterface.h"

#include <QVariantList>

#include <mutex>

namespace korvane {

// Each message goes on a connection and a thread of its own and waits for its reply while the service lives. The reply
// block runs exactly once, on that thread, also when the service cannot be started, ends in between, says nothing any
// more, or the bus goes. Where a reply was lost the message is sent once more under its id, by which the service knows
// what it has already taken; it takes nothing from a sender that has stopped waiting. Thread: any.
class RemoteServiceProxy {
public:
    // serviceName: the bus name under which the service is reached and started.
    RemoteServiceProxy(QString serviceName, NSXPCInterface interface)
        : _serviceName(std::move(serviceName)), _interface(std::move(interface)) {}

    // Sends the interface's operation with the records; returns at once.
    void send(const QVariantList &records, const XPCTransferCompletion &reply);

    // The id of the message that was sent last; empty before the first.
    QString lastMessageID() const;

private:
    const QString _serviceName;
    const NSXPCInterface _interface;
    mutable std::mutex _mutex;
    QString _lastMessageID;
};

// Hands a reply block to send and blocks, without a time limit, until it has run. Returns what was replied; the error
// is placed also with a YES.
bool waitForReply(const std::function<void(const XPCTransferCompletion &reply)> &send, std::optional<NSError> *error);

} // namespace korvane
