// Whether the upload service is there to answer.
#pragma once

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QString>

#include <optional>

namespace korvane {

// Asks the service's main thread something small now and then while an answer is awaited that may take any time.
// A service that is only being started counts as alive: the bus limits that. Thread: the one that made it, alone.
class ServicePulse {
public:
    static constexpr qint64 patience = 15'000; // milliseconds

    ServicePulse(QDBusConnection bus, QString serviceName);

    // Whether a question has stood without an answer for longer than patience; asks where it is time to. At once.
    bool isLost();

private:
    const QDBusConnection _bus;
    const QString _serviceName;
    std::optional<QDBusPendingCall> _question;
    QElapsedTimer _sinceLook;
    qint64 _waited = 0; // milliseconds since the question, or the answer, in which this program ran
};

} // namespace korvane
