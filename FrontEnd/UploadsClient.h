// The upload service's status interface, seen from a program that watches or steers uploads.
#pragma once

#include "FrontEnd/Upload.h"
#include "Platform/Social/ServiceConnection.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

class QDBusServiceWatcher;

namespace korvane {

// Calls block; the first of them connects, and starts the service where it is not running. Calls that fail place an
// error of RemoteServiceErrorDomain. Thread: the one it lives on;
// signals need its event loop.
class UploadsClient : public QObject {
    Q_OBJECT

public:
    UploadsClient();

    // Connects to the bus, anew if it was connected. False with the error placed.
    bool connectToBus(std::optional<NSError> *error);
    // Thread: any. Ends a call that is under way; it and all after it fail.
    void interrupt() { _connection.interrupt(); }

    // Uploads with an id above after, oldest first; empty at the end.
    std::optional<std::vector<Upload>> list(qint64 after, std::optional<NSError> *error);
    // Uploads with an id below before, newest first and at most limit; of these states, or of all where none is given.
    std::optional<std::vector<Upload>> recent(qint64 before, quint32 limit, const QStringList &states,
                                              std::optional<NSError> *error);
    // Goes through all uploads in pages, so that memory does not grow with their number. False with the error placed.
    bool forEach(const std::function<void(const Upload &upload)> &visit, std::optional<NSError> *error);
    // Those that exist, in the order of their ids.
    std::optional<std::vector<Upload>> get(const QStringList &ids, std::optional<NSError> *error);
    // Where photos and videos can be read for now, for thumbnails; those that stand in no file are left out.
    std::optional<std::vector<UploadSource>> sources(const QStringList &ids, std::optional<NSError> *error);
    std::optional<QStringList> idsOfMessage(const QString &messageID, std::optional<NSError> *error);
    // How many uploads these moved; null with the error placed.
    std::optional<quint32> retry(const QStringList &ids, std::optional<NSError> *error);
    std::optional<quint32> remove(const QStringList &ids, std::optional<NSError> *error);
    std::optional<quint32> clear(std::optional<NSError> *error);
    bool setPaused(bool paused, std::optional<NSError> *error);
    std::optional<bool> isPaused(std::optional<NSError> *error);
    std::optional<UploadCounts> counts(std::optional<NSError> *error);

    // From now on the signals below come. False with the error placed.
    bool subscribe(std::optional<NSError> *error);

Q_SIGNALS:
    void changed(const korvane::Upload &upload);
    void removed(const QString &id);
    void progressed(const QString &id, qint64 bytesSent, qint64 bytesTotal);
    void serviceStarted(); // it runs anew: signals may have been missed
    void serviceEnded();   // the next call starts it again
    void busLost();

private Q_SLOTS:
    void _changed(const QVariantMap &upload);
    void _progressed(const QString &id, qlonglong bytesSent, qlonglong bytesConfirmed, qlonglong bytesTotal);
    void _ownerChanged(const QString &name, const QString &oldOwner, const QString &newOwner);

private:
    std::optional<QVariant> _call(const QString &interface, const QString &member, const QVariantList &arguments,
                                  std::optional<NSError> *error);
    std::optional<QVariant> _uploads(const QString &member, const QVariantList &arguments,
                                     std::optional<NSError> *error);
    std::optional<QVariant> _property(const QString &name, std::optional<NSError> *error);
    std::optional<quint32> _count(const QString &member, const QStringList &ids, std::optional<NSError> *error);

    ServiceConnection _connection;
    QDBusServiceWatcher *_watcher = nullptr; // a child of this object
};

} // namespace korvane
