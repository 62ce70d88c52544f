// The status interface on the bus.
#include "Service/StatusInterface.h"

#include "Platform/Social/ServiceSettings.h"
#include "Platform/Social/UploadsInterface.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFile>

namespace korvane {
namespace {

const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

void answerWithProperty(const QDBusConnection &bus, const QDBusMessage &message, const QVariantMap &values,
                        const QString &name) {
    const auto value = values.constFind(name);
    bus.send(value == values.constEnd() ? message.createErrorReply(QDBusError::UnknownProperty, name)
                                        : message.createReply(QVariant::fromValue(QDBusVariant(*value))));
}

} // namespace

bool StatusInterface::registerFor(UploadQueue &queue) {
    _queue = &queue;
    return _bus.registerVirtualObject(UploadsInterface::path(), this, QDBusConnection::SingleNode);
}

bool StatusInterface::handleMessage(const QDBusMessage &message, const QDBusConnection &) {
    if (message.interface() == propertiesInterface) return _handleProperties(message);
    if (message.interface() == UploadsInterface::name() || message.interface().isEmpty())
        return _handleUploads(message);
    return false;
}

bool StatusInterface::_handleProperties(const QDBusMessage &message) {
    if (message.arguments().value(0).toString() != UploadsInterface::name()) return false;
    const bool one = message.member() == QLatin1String("Get") && message.signature() == QLatin1String("ss");
    const bool all = message.member() == QLatin1String("GetAll") && message.signature() == QLatin1String("s");
    if (!one && !all) return false;
    message.setDelayedReply(true);
    _answerWithProperties(message, one ? std::optional(message.arguments().at(1).toString()) : std::nullopt);
    return true;
}

void StatusInterface::_answerWithProperties(const QDBusMessage &message, const std::optional<QString> &only) {
    QVariantMap properties{{QStringLiteral("Version"), QStringLiteral(KORVANE_VERSION)}};
    // At once: by it callers see that the service is alive, however busy its queue and the folders are.
    if (only && properties.contains(*only)) return answerWithProperty(_bus, message, properties, *only);
    properties.insert(ServiceSettings::current().dictionary());
    properties.insert(QStringLiteral("Paused"), _queue->isPaused());
    _queue->counts([=, bus = _bus](const QVariant &counts) {
        QVariantMap values = properties;
        values.insert(QStringLiteral("Counts"), counts);
        if (only)
            answerWithProperty(bus, message, values, *only);
        else
            bus.send(message.createReply(values));
    });
}

bool StatusInterface::_handleUploads(const QDBusMessage &message) {
    const QString call = message.member() + u'(' + message.signature() + u')';
    const QVariantList arguments = message.arguments();
    const auto texts = [&] { return arguments.at(0).toStringList(); };
    message.setDelayedReply(true);
    if (call == QLatin1String("List(xu)"))
        _queue->list(arguments.at(0).toLongLong(), arguments.at(1).toUInt(), _replyTo(message));
    else if (call == QLatin1String("Recent(xuas)"))
        _queue->recent(arguments.at(0).toLongLong(), arguments.at(1).toUInt(), arguments.at(2).toStringList(),
                       _replyTo(message));
    else if (call == QLatin1String("Get(as)"))
        _queue->get(texts(), _replyTo(message));
    else if (call == QLatin1String("Sources(as)"))
        _queue->sources(texts(), _replyTo(message));
    else if (call == QLatin1String("OfMessage(s)"))
        _queue->idsOfMessage(arguments.at(0).toString(), _replyTo(message));
    else if (call == QLatin1String("Retry(as)"))
        _queue->retry(texts(), _replyTo(message));
    else if (call == QLatin1String("Remove(as)"))
        _queue->remove(texts(), _replyTo(message));
    else if (call == QLatin1String("Clear()"))
        _queue->clear(_replyTo(message));
    else if (call == QLatin1String("Pause()") || call == QLatin1String("Resume()"))
        _queue->setPaused(message.member() == QLatin1String("Pause"), _replyTo(message));
    else
        _bus.send(
            message.createErrorReply(QDBusError::UnknownMethod, QStringLiteral("There is no method %1.").arg(call)));
    return true;
}

UploadQueue::Answer StatusInterface::_replyTo(const QDBusMessage &message) const {
    return [message, bus = _bus](const QVariant &value) {
        bus.send(value.isValid() ? message.createReply(value) : message.createReply());
    };
}

QString StatusInterface::introspect(const QString &) const {
    QFile description(QStringLiteral(":/korvane/service/com.zorvex.korvane.Uploads.xml"));
    return description.open(QIODevice::ReadOnly) ? QString::fromUtf8(description.readAll()) : QString();
}

void StatusInterface::sendChanged(const QVariantMap &upload) const {
    _send(QStringLiteral("Changed"), {upload});
}

void StatusInterface::sendRemoved(const QString &id) const {
    _send(QStringLiteral("Removed"), {id});
}

void StatusInterface::sendProgress(const UploadProgress &progress) const {
    _send(QStringLiteral("Progress"), {progress.id, progress.bytesSent, progress.bytesConfirmed, progress.bytesTotal});
}

void StatusInterface::_send(const QString &signal, const QVariantList &arguments) const {
    auto message = QDBusMessage::createSignal(UploadsInterface::path(), UploadsInterface::name(), signal);
    message.setArguments(arguments);
    _bus.send(message);
}

} // namespace korvane
