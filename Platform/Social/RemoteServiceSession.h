// The service's end of a remote interface.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"
#include "Platform/Social/NSXPCInterface.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QVariantList>

#include <functional>
#include <memory>

namespace korvane {

// What came with a message beside its records.
struct RemoteMessage {
    QString id; // the same when a client asks again after a lost reply
    std::shared_ptr<const FileDescriptor>
        dataFile; // unnamed, own, nobody writes to it; null if all data is in the records
    // Whether its sender is still there to hear the answer. Blocks for a moment. Thread: any.
    std::function<bool()> isAwaited = [] { return true; };
};

// Registers itself on the bus under the service's name, checks what arrives and hands it to its derived class.
// Thread: the main thread.
class RemoteServiceSession : public QDBusVirtualObject {
    Q_OBJECT
public:
    RemoteServiceSession(QString serviceName, NSXPCInterface interface);

    // Puts the session's object on the bus; the caller then claims the service's name.
    bool registerOn(QDBusConnection bus);
    const QString &serviceName() const { return _serviceName; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &path) const override;

protected:
    // The records of one message, data in them as NSData. reply must be called once, from any thread.
    virtual void received(const QVariantList &records, const RemoteMessage &message,
                          const XPCTransferCompletion &reply) = 0;

private:
    const QString _serviceName;
    const NSXPCInterface _interface;
};

} // namespace korvane
