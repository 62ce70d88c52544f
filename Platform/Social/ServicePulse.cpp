// Whether the upload service is there to answer.
#include "Platform/Social/ServicePulse.h"

#include "Platform/Social/UploadsInterface.h"

#include <QDBusMessage>

#include <algorithm>

namespace korvane {
namespace {

constexpr qint64 interval = 1000;   // milliseconds
constexpr qint64 longestStep = 100; // of time in which this program has run itself, and could have seen an answer

} // namespace

ServicePulse::ServicePulse(QDBusConnection bus, QString serviceName)
    : _bus(std::move(bus)), _serviceName(std::move(serviceName)) {
    _sinceLook.start();
}

bool ServicePulse::isLost() {
    _waited += std::min(_sinceLook.restart(), longestStep);
    if (_question && _question->isFinished()) {
        _question.reset();
        _waited = 0;
    }
    if (_question) return _waited > patience;
    if (_waited < interval) return false;
    auto question =
        QDBusMessage::createMethodCall(_serviceName, UploadsInterface::path(),
                                       QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question.setArguments({UploadsInterface::name(), QStringLiteral("Version")});
    question.setAutoStartService(false);
    _question = _bus.asyncCall(question);
    _waited = 0;
    return false;
}

} // namespace korvane
