// The status interface on the bus (docs/DBUS.md).
#pragma once

#include "Service/UploadQueue.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>

namespace korvane {

// Thread: the main thread, except for the signals.
class StatusInterface : public QDBusVirtualObject {
    Q_OBJECT
public:
    explicit StatusInterface(QDBusConnection bus) : _bus(std::move(bus)) {}

    // Puts the object on the bus; calls are answered from the queue from then on.
    bool registerFor(UploadQueue &queue);

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &path) const override;

    // Signals; from any thread.
    void sendChanged(const QVariantMap &upload) const;
    void sendRemoved(const QString &id) const;
    void sendProgress(const UploadProgress &progress) const;

private:
    bool _handleProperties(const QDBusMessage &message);
    bool _handleUploads(const QDBusMessage &message);
    void _answerWithProperties(const QDBusMessage &message, const std::optional<QString> &only);
    UploadQueue::Answer _replyTo(const QDBusMessage &message) const;
    void _send(const QString &signal, const QVariantList &arguments) const;

    QDBusConnection _bus;
    UploadQueue *_queue = nullptr;
};

} // namespace korvane
