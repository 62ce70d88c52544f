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
    Tally &tally = _tallies[job.service];
    ++(job.state == UploadState::Done ? tally.done : tally.failed);
    tally.lastTitle = job.title;
    if (job.error) tally.lastReason = job.error->localizedDescription();
    _gathering.start();
}

void Notifier::_tell() {
    for (const auto &[service, tally] : _tallies) {
        const QString what = service == flickrServiceID ? QStringLiteral("photo") : QStringLiteral("video");
        const auto counted = [&](int count) {
            return count == 1 ? QStringLiteral("1 ") + what : QStringLiteral("%1 %2s").arg(count).arg(what);
        };
        if (tally.done > 0)
            _notify(QStringLiteral("%1 shared to %2").arg(counted(tally.done), nameOfService(service)),
                    tally.done == 1 ? tally.lastTitle : QString());
        if (tally.failed > 0)
            _notify(QStringLiteral("%1 could not be shared").arg(counted(tally.failed)), tally.lastReason);
    }
    _tallies.clear();
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
