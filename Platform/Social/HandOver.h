// One message to a service, from its check to its reply.
#pragma once

#include "Platform/Social/NSXPCInterface.h"
#include "Platform/Social/ServiceConnection.h"
#include "Platform/Social/WireRecord.h"

#include <QVariantList>

#include <optional>

namespace korvane {

// Thread: the one that made it, alone.
class HandOver {
public:
    // id: by which the service knows the message when it comes again.
    HandOver(const QString &serviceName, NSXPCInterface interface, QString id);

    // Sends the records and waits for the reply as long as the service is alive; sends them once more where a reply was
    // lost.
    void run(const QVariantList &records);

    // The reply; null and an error where none came: RemoteServiceErrorUnknownEnd if the message may have been taken.
    std::optional<bool> success;
    std::optional<NSError> error;

private:
    ServiceConnection::Outcome _attempt(const QVariantList &records);
    ServiceConnection::Outcome _send();

    const QString _serviceName;
    const NSXPCInterface _interface;
    const QString _id;
    ServiceConnection _connection;
    std::optional<WireRecord::Message> _message;
    bool _wasSent = false;
};

} // namespace korvane
