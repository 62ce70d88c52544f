// Whether the upload service is there to answer.
#include "Platform/Social/ServicePulse.h"

#include "Platform/Social/UploadsInterface.h"

#include <QDBusMessage>

namespace korvane {
namespace {

constexpr qint64 interval = 1000; // milliseconds

} // namespace

ServicePulse::ServicePulse(QDBusConnection bus, QString serviceName)
    : _bus(std::move(bus)), _serviceName(std::move(serviceName)) {
    _timer.start();
}

bool ServicePulse::isLost() {
    if (_question && _question->isFinished()) {
        _question.reset();
        _timer.start();
    }
    if (_question) return _timer.hasExpired(patience);
    if (!_timer.hasExpired(interval)) return false;
    auto question =
        QDBusMessage::createMethodCall(_serviceName, UploadsInterface::path(),
                                       QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question.setArguments({UploadsInterface::name(), QStringLiteral("Version")});
    question.setAutoStartService(false);
    _question = _bus.asyncCall(question);
    _timer.start();
    return false;
}

} // namespace korvane
