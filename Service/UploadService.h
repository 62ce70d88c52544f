// The upload service as a whole: one a user, on the bus under both of its names.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"
#include "Service/FlickrServiceSession.h"
#include "Service/Notifier.h"
#include "Service/PrivateBus.h"
#include "Service/StatusInterface.h"
#include "Service/UploadQueue.h"
#include "Service/VimeoServiceSession.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <memory>

namespace korvane {

class NetworkWatch;

// Thread: the main thread.
class UploadService : public QObject {
    Q_OBJECT
public:
    // privateBus: run a bus of its own, and end once nothing is left to upload.
    explicit UploadService(bool privateBus);
    ~UploadService() override;

    enum StartResult { Running, AlreadyRunning, Unable };
    // Takes the queue's lock, opens the queue and claims the names. AlreadyRunning: another service has the names. Says
    // in the log why it could not.
    StartResult start();
    // Stops uploads, keeping them queued, and then leaves the event loop with the status.
    void stop(int exitStatus);

private:
    enum Lock { Locked, TakenByAnother, Unusable };
    Lock _lockQueue();
    bool _otherIsOnOurBus();
    std::optional<QString> _busAddress(std::optional<NSError> *error);
    bool _openQueue(std::optional<NSError> *error);
    UploadQueueObserver _observer();
    bool _claimNames();
    void _watchSurroundings();
    void _sendProgress();
    void _endWhenIdle();
    Q_SLOT void _busLost();

    const QString _folder;
    const bool _hasPrivateBus;
    FileDescriptor _lock;
    PrivateBus _privateBus;
    QDBusConnection _bus;
    std::unique_ptr<StatusInterface> _status;
    std::unique_ptr<Notifier> _notifier;
    std::unique_ptr<UploadQueue> _queue;
    std::unique_ptr<FlickrServiceSession> _flickrSession;
    std::unique_ptr<VimeoServiceSession> _vimeoSession;
    std::unique_ptr<NetworkWatch> _network;
    QFileSystemWatcher _accountFiles;
    QTimer _wake;
    QTimer _progress;
    QTimer _powerRefresh;
    QTimer _idleCheck;
    bool _wasIdle = false;
    bool _stopping = false;
};

} // namespace korvane
