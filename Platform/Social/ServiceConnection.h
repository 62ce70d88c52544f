// A connection to the upload service, which means the same settings as this program.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QVariantList>

#include <atomic>
#include <optional>

namespace korvane {

// On a connection of its own, so that the end of the bus is an error and no hang. Errors are of
// RemoteServiceErrorDomain. Thread: the one that made it, alone; calls block as long as the service is alive.
class ServiceConnection {
public:
    enum Outcome {
        Answered,
        Failed, // with the error placed; the service has not acted on the call
        Lost,   // with the error placed: service or bus went away, and nobody knows how far the call came
        Silent  // the same, but the service is there and says nothing
    };

    // serviceName: the bus name under which the service is reached and started.
    explicit ServiceConnection(QString serviceName);
    ~ServiceConnection() { close(); }
    ServiceConnection(const ServiceConnection &) = delete;
    ServiceConnection &operator=(const ServiceConnection &) = delete;

    // Connects, anew if it was connected, starting the service where it is not running. A service with another queue or
    // other hosts is not the one that the caller means: Failed, naming the difference.
    Outcome open(std::optional<NSError> *error);
    void close();
    bool isOpen() const { return _isOpen; }
    // A call that is under way ends as Lost, and so do all after it. Thread: any.
    void interrupt() { _isInterrupted = true; }
    QDBusConnection bus() const { return QDBusConnection(_connectionName); }

    Outcome call(const QString &path, const QString &interface, const QString &member, const QVariantList &arguments,
                 QVariantList *answer, std::optional<NSError> *error) const;

private:
    Outcome _agreeOnSettings(std::optional<NSError> *error) const;
    std::optional<QDBusMessage> _replyTo(const QDBusMessage &message) const; // null if the service is not alive

    const QString _serviceName;
    const QString _connectionName;
    bool _isOpen = false;
    std::atomic<bool> _isInterrupted = false;
};

} // namespace korvane
