// Desktop notifications of what became of uploads.
#include "Service/Notifier.h"

#include "Platform/Foundation/LocalizedText.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <algorithm>
#include <chrono>

namespace korvane {

namespace {

constexpr size_t mostRemembered = 50;
const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");

} // namespace

Notifier::Notifier(QDBusConnection bus, std::function<void()> showUploads)
    : _bus(std::move(bus)), _showUploads(std::move(showUploads)) {
    if (_showUploads)
        _bus.connect(service, path, service, QStringLiteral("ActionInvoked"), this,
                     SLOT(_actionInvoked(uint, QString)));
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
        const bool isPhoto = service == flickrServiceID;
        if (tally.done > 0)
            _notify(isPhoto ? localizedCount("%n photo(s) shared to Flickr", tally.done)
                            : localizedCount("%n video(s) shared to Vimeo", tally.done),
                    tally.done == 1 ? tally.lastTitle : QString());
        if (tally.failed > 0)
            _notify(isPhoto ? localizedCount("%n photo(s) could not be shared", tally.failed)
                            : localizedCount("%n video(s) could not be shared", tally.failed),
                    tally.lastReason);
    }
    _tallies.clear();
}

void Notifier::_notify(const QString &summary, const QString &body) {
    auto call = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("Notify"));
    QStringList actions;
    if (_showUploads)
        for (const QString &action : {QStringLiteral("default"), QStringLiteral("show-uploads")})
            actions += {action, localizedText("Show uploads")};
    // The body is markup to some servers: titles must not be.
    call.setArguments({QStringLiteral("Korvane"), 0U, QStringLiteral("korvane"), summary, body.toHtmlEscaped(), actions,
                       QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("korvane-sheet")}}, -1});
    const auto watcher = new QDBusPendingCallWatcher(_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        if (const QDBusPendingReply<uint> reply = *watcher; reply.isValid()) _ours.push_back(reply.value());
        if (_ours.size() > mostRemembered) _ours.pop_front();
        watcher->deleteLater();
    });
}

// Every program hears of every notification's actions.
void Notifier::_actionInvoked(uint notification, const QString &) {
    if (std::ranges::find(_ours, notification) != _ours.end()) _showUploads();
}

} // namespace korvane
