// The upload service as a whole.
#include "Service/UploadService.h"

#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Foundation/ProgramPath.h"
#include "Platform/Social/SessionBus.h"
#include "Platform/SystemConfiguration/NetworkWatch.h"
#include "Service/DeathMarker.h"
#include "Service/UploadsWindow.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDir>
#include <QFile>
#include <QThread>

#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>

namespace korvane {
namespace {

using namespace std::chrono_literals;

constexpr auto progressInterval = 250ms;
constexpr auto powerRefreshInterval = 120s;
constexpr auto idleInterval = 5s;
constexpr auto stopLimit = 45s;  // a commit may have to be waited for
constexpr int lockAttempts = 50; // a service that is just ending lets go within seconds
constexpr int lockAttemptMilliseconds = 100;

// Null where the window is not installed.
std::function<void()> uploadsPage() {
    const QString program = QFile::decodeName(pathOfProgram("korvane-sheet"));
    if (program.isEmpty()) return {};
    return [program] { UploadsWindow::open(program); };
}

} // namespace

UploadService::UploadService(bool privateBus)
    : _folder(stateFolder()), _hasPrivateBus(privateBus), _bus(QStringLiteral("unconnected")) {}

UploadService::~UploadService() = default;

UploadService::StartResult UploadService::start() {
    switch (_lockQueue()) {
    case Locked:
        break;
    case TakenByAnother:
        return _otherIsOnOurBus() ? AlreadyRunning : Unable;
    case Unusable:
        return Unable;
    }
    std::optional<NSError> error;
    const auto address = _busAddress(&error);
    if (address) _bus = QDBusConnection::connectToBus(*address, QStringLiteral("korvane-uploadd"));
    if (!address || !_bus.isConnected()) {
        NSLog("The session bus cannot be reached: %@",
              error ? error->localizedDescription() : _bus.lastError().message());
        return Unable;
    }
    if (!_openQueue(&error)) {
        NSLog("%@", error->localizedDescription());
        return Unable;
    }
    if (!_claimNames()) return Unable;
    _watchSurroundings();
    _queue->start();
    return Running;
}

UploadService::Lock UploadService::_lockQueue() {
    const QByteArray path = QFile::encodeName(_folder + QStringLiteral("/queue.lock"));
    _lock = FileDescriptor(::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    if (!_lock) {
        NSLog("%@", NSError::errorWithErrno(errno, QStringLiteral("The folder %1 cannot be used").arg(_folder)));
        return Unusable;
    }
    for (int attempt = 0; attempt < lockAttempts; ++attempt) {
        if (::flock(_lock.get(), LOCK_EX | LOCK_NB) == 0) return Locked;
        QThread::msleep(lockAttemptMilliseconds);
    }
    return TakenByAnother;
}

// A second service on the same bus is no trouble; one on another bus cannot be reached from here, so this start has
// failed.
bool UploadService::_otherIsOnOurBus() {
    const auto address = SessionBus::address();
    if (address) _bus = QDBusConnection::connectToBus(*address, QStringLiteral("korvane-uploadd"));
    const bool reachable = _bus.isConnected() && _bus.interface()->isServiceRegistered(FlickrRemoteServiceName);
    NSLog(reachable ? "Another upload service is running for this user."
                    : "Another upload service is running for this user, on another session bus. End it first.");
    return reachable;
}

std::optional<QString> UploadService::_busAddress(std::optional<NSError> *error) {
    return _hasPrivateBus ? _privateBus.start(error) : SessionBus::address();
}

bool UploadService::_openQueue(std::optional<NSError> *error) {
    const QString marker = _folder + QStringLiteral("/death-marker");
    DeathMarker::watch(marker);
    QDir(_folder + QStringLiteral("/tmp")).removeRecursively();
    setTemporaryDirectory(_folder + QStringLiteral("/tmp"));
    _status = std::make_unique<StatusInterface>(_bus);
    _notifier = std::make_unique<Notifier>(_bus, uploadsPage());
    _queue = std::make_unique<UploadQueue>(_folder, RetryPolicy::fromEnvironment(), _observer());
    if (!_queue->open(DeathMarker::isThere(marker), error)) return false;
    DeathMarker::remove(marker);
    return true;
}

UploadQueueObserver UploadService::_observer() {
    return {[this](const QVariantMap &upload) { _status->sendChanged(upload); },
            [this](const QString &id) { _status->sendRemoved(id); },
            [this](const UploadJob &job) { dispatchMain([this, job] { _notifier->uploadFinished(job); }); },
            [this](qint64 milliseconds) {
                dispatchMain([this, milliseconds] { _wake.start(std::chrono::milliseconds(milliseconds)); });
            }};
}

// The objects stand on the bus before the names do, so that the first caller finds them.
bool UploadService::_claimNames() {
    _flickrSession = std::make_unique<FlickrServiceSession>(*_queue);
    _vimeoSession = std::make_unique<VimeoServiceSession>(*_queue);
    _queue->setAccountStore(_flickrSession->accountStore());
    if (!_status->registerFor(*_queue) || !_flickrSession->registerOn(_bus) || !_vimeoSession->registerOn(_bus)) {
        NSLog("The upload service's objects cannot be put on the bus: %@", _bus.lastError().message());
        return false;
    }
    for (const QString &name : {FlickrRemoteServiceName, VimeoRemoteServiceName}) {
        if (_bus.registerService(name)) continue;
        NSLog("The name %@ is taken on the bus.", name);
        return false;
    }
    return _bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                        SLOT(_busLost()));
}

void UploadService::_watchSurroundings() {
    _wake.setSingleShot(true);
    connect(&_wake, &QTimer::timeout, this, [this] { _queue->wake(); });
    connect(&_progress, &QTimer::timeout, this, &UploadService::_sendProgress);
    _progress.start(progressInterval);
    connect(&_powerRefresh, &QTimer::timeout, this, [] { KRRemoteSession::refreshPowerAssertion(); });
    _powerRefresh.start(powerRefreshInterval);
    _network = std::make_unique<NetworkWatch>([this] { _queue->networkReturned(); });
    makePrivateFolder(configFolder());
    _accountFiles.addPath(configFolder()); // files are replaced, so it is the folder that is watched
    connect(&_accountFiles, &QFileSystemWatcher::directoryChanged, this, [this] { _queue->accountsChanged(); });
    if (!_hasPrivateBus) return;
    connect(&_idleCheck, &QTimer::timeout, this, &UploadService::_endWhenIdle);
    _idleCheck.start(idleInterval);
}

void UploadService::_sendProgress() {
    for (const UploadProgress &progress : _queue->progress())
        _status->sendProgress(progress);
}

// Two looks in a row, so that a client that has just arrived finds the service.
void UploadService::_endWhenIdle() {
    _queue->counts([this](const QVariant &value) {
        const QVariantMap counts = value.toMap();
        qint64 pending = 0;
        for (const UploadState state : {UploadState::Queued, UploadState::Running, UploadState::Waiting})
            pending += counts.value(stateText(state)).toLongLong();
        dispatchMain([this, idle = pending == 0] {
            if (idle && _wasIdle) stop(0);
            _wasIdle = idle;
        });
    });
}

// Nobody can reach a service without a bus; the next one starts with the next bus and goes on with the queue.
void UploadService::_busLost() {
    NSLog("The session bus is gone; the upload service ends and goes on when it is started again.");
    stop(1);
}

void UploadService::stop(int exitStatus) {
    if (std::exchange(_stopping, true)) return;
    _queue->stop([exitStatus] { dispatchMain([exitStatus] { QCoreApplication::exit(exitStatus); }); });
    // All that counts is on disk; what still runs then is not worth waiting for.
    QTimer::singleShot(stopLimit, this, [exitStatus] { ::_exit(exitStatus); });
}

} // namespace korvane
