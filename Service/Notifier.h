// Desktop notifications of what became of uploads.
#pragma once

#include "Service/UploadJob.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

namespace korvane {

// Uploads that end close together are told of in one notification. Without a notification service nothing happens.
// Thread: the main thread.
class Notifier : public QObject {
    Q_OBJECT
public:
    explicit Notifier(QDBusConnection bus);
    void uploadFinished(const UploadJob &job);

private:
    void _tell();
    void _notify(const QString &summary, const QString &body) const;

    QDBusConnection _bus;
    QTimer _gathering;
    int _done = 0;
    int _failed = 0;
    QString _lastTitle;
    QString _lastReason;
};

} // namespace korvane
