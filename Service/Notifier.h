// Desktop notifications of what became of uploads.
#pragma once

#include "Service/UploadJob.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <map>

namespace korvane {

// Uploads that end close together are told of in one notification for each web service. Without a notification service
// nothing happens. Thread: the main thread.
class Notifier : public QObject {
    Q_OBJECT
public:
    explicit Notifier(QDBusConnection bus);
    void uploadFinished(const UploadJob &job);

private:
    struct Tally {
        int done = 0;
        int failed = 0;
        QString lastTitle;
        QString lastReason;
    };
    void _tell();
    void _notify(const QString &summary, const QString &body) const;

    QDBusConnection _bus;
    QTimer _gathering;
    std::map<QString, Tally> _tallies; // by service
};

} // namespace korvane
