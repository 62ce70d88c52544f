// Desktop notifications of what became of uploads.
#pragma once

#include "Service/UploadJob.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>
#include <map>

namespace korvane {

// Uploads that end close together are told of in one notification for each web service. Without a notification service
// nothing happens. Thread: the main thread.
class Notifier : public QObject {
    Q_OBJECT
public:
    // showUploads: what "Show uploads" does; without it the notification does not offer that.
    explicit Notifier(QDBusConnection bus, std::function<void()> showUploads = {});
    void uploadFinished(const UploadJob &job);

private Q_SLOTS:
    void _actionInvoked(uint notification, const QString &action);

private:
    struct Tally {
        int done = 0;
        int failed = 0;
        QString lastTitle;
        QString lastReason;
    };
    void _tell();
    void _notify(const QString &summary, const QString &body);

    QDBusConnection _bus;
    const std::function<void()> _showUploads;
    std::deque<uint> _ours; // ids of the latest notifications
    QTimer _gathering;
    std::map<QString, Tally> _tallies; // by service
};

} // namespace korvane
