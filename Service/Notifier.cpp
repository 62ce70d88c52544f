// Desktop notifications of what became of uploads.
#include "Service/Notifier.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

#include <chrono>

namespace korvane {

Notifier::Notifier(QDBusConnection bus) : _bus(std::move(bus)) {
    _gathering.setSingleShot(true);
    _gathering.setInterval(std::chrono::seconds(2));
    connect(&_gathering, &QTimer::timeout, this, &Notifier::_tell);
}

void Notifier::uploadFinished(const UploadJob &job) {
    ++(job.state == UploadState::Done ? _done : _failed);
    _lastTitle = job.title;
    if (job.error) _lastReason = job.error->localizedDescription();
    _gathering.start();
}

void Notifier::_tell() {
    const auto photos = [](int count) {
        return count == 1 ? QStringLiteral("1 photo") : QStringLiteral("%1 photos").arg(count);
    };
    if (_done > 0)
        _notify(QStringLiteral("%1 shared to Flickr").arg(photos(_done)), _done == 1 ? _lastTitle : QString());
    if (_failed > 0) _notify(QStringLiteral("%1 could not be shared").arg(photos(_failed)), _lastReason);
    _done = 0;
    _failed = 0;
}

void Notifier::_notify(const QString &summary, const QString &body) const {
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    // The body is markup to some servers: titles must not be.
    call.setArguments({QStringLiteral("Korvane"), 0U, QStringLiteral("korvane"), summary, body.toHtmlEscaped(),
                       QStringList(), QVariantMap(), -1});
    _bus.asyncCall(call);
}

} // namespace korvane
