// The queue of uploads: takes posts over, runs them, and keeps record of all that happens to them.
#pragma once

#include "Platform/Foundation/Dispatch.h"
#include "Platform/Social/RemoteServiceSession.h"
#include "Service/RetryPolicy.h"
#include "Service/Spool.h"
#include "Service/TakeOver.h"
#include "Service/UploadRun.h"
#include "Service/UploadStore.h"

#include <QVariantMap>

#include <atomic>
#include <map>
#include <mutex>

namespace korvane {

class ACAccountStore;

// What the queue tells; called on its own thread.
struct UploadQueueObserver {
    std::function<void(const QVariantMap &upload)> changed;
    std::function<void(const QString &id)> removed;
    std::function<void(const UploadJob &job)> finished; // done or failed just now
    std::function<void(qint64 milliseconds)> wakeAfter; // wants a call of wake() then; replaces an earlier wish
};

struct UploadProgress {
    QString id;
    qint64 bytesSent;
    qint64 bytesConfirmed;
    qint64 bytesTotal;
};

// Thread: any. The work is done on a serial queue of its own, where all but the list of running uploads lives; answers
// come from there. An id of the interface is a decimal number; unknown ones are passed over.
class UploadQueue {
public:
    // folder: where database and spool are.
    UploadQueue(QString folder, RetryPolicy policy, UploadQueueObserver observer);
    ~UploadQueue();

    // Opens the database and puts what was running in the last life back; nothing runs before start(). fatalDeath: the
    // last life ended by its own fault. Blocks. False, with the error placed, if the database is unusable.
    bool open(bool fatalDeath, std::optional<NSError> *error);
    void start();
    // Where the accounts are looked for; before start().
    void setAccountStore(std::shared_ptr<ACAccountStore> accounts) { _accounts = std::move(accounts); }

    // Answers once all posts are on disk, or none.
    void takeOver(const QString &service, const QVariantList &records, const RemoteMessage &message,
                  const XPCTransferCompletion &reply);

    using Answer = std::function<void(const QVariant &value)>;
    void list(qint64 after, quint32 limit, const Answer &answer);                               // QList<QVariantMap>
    void recent(qint64 before, quint32 limit, const QStringList &states, const Answer &answer); // QList<QVariantMap>
    void get(const QStringList &ids, const Answer &answer);                                     // QList<QVariantMap>
    void sources(const QStringList &ids, const Answer &answer);                                 // QList<QVariantMap>
    void idsOfMessage(const QString &messageID, const Answer &answer);                          // QStringList
    void counts(const Answer &answer);                                                          // QVariantMap
    void retry(const QStringList &ids, const Answer &answer);                                   // uint
    void remove(const QStringList &ids, const Answer &answer);                                  // uint
    void clear(const Answer &answer);                                                           // uint
    void setPaused(bool paused, const Answer &answer);
    bool isPaused() const { return _paused; }

    void wake();            // something may be due
    void networkReturned(); // what waits for the network is due
    void accountsChanged(); // what waits for a sign-in is due

    // Stops what runs, keeping it queued, and starts nothing more; stopped is called once nothing runs.
    void stop(const std::function<void()> &stopped);

    std::vector<UploadProgress> progress() const;

private:
    enum class StopReason { None, Pause, Remove };
    struct Running {
        UploadJob job;
        std::shared_ptr<UploadContext> context;
        StopReason stopReason = StopReason::None;
        mutable qint64 mostSent = 0; // bytes
    };

    // While a service cannot be reached, its queued uploads need not all find that out by themselves.
    struct Hold {
        qint64 until = 0; // no new runs before
        qint64 failures = 0;
    };

    void _prepare(const QString &service, const QVariantList &records, const RemoteMessage &message,
                  const XPCTransferCompletion &reply);
    void _takeOverEnded();
    void _taken(const RemoteMessage &message, const TakenMessage &taken, const XPCTransferCompletion &reply);
    void _recover(UploadJob &job, bool fatalDeath);
    void _schedule();
    void _scheduleService(const QString &service, int limit);
    bool _start(UploadJob job);
    bool _pinAccount(UploadJob &job);
    void _waitForSignIn(UploadJob &job);
    bool _reached(const UploadJob &reached, bool durably);
    void _ended(const Verdict &verdict, const UploadJob &reached);
    void _conclude(const Verdict &verdict, UploadJob job);
    void _apply(const Verdict &verdict, UploadJob &job);
    void _wait(UploadJob &job, const Verdict &verdict);
    bool _record(const UploadJob &job);
    void _recordAgain();
    bool _forget(const std::vector<UploadJob> &jobs);
    void _endIfStopped();
    void _dropSpoolFiles(const UploadJob &job);
    void _requeue(std::vector<UploadJob> jobs);
    void _pauseRunning();
    void _armWake();
    void _announce(const UploadJob &job);
    std::optional<QVariantMap> _sourceOf(const UploadJob &job) const;
    static UploadProgress _progressOfRun(const UploadJob &job, const Running &running);
    QVariantMap _dictionary(const UploadJob &job) const;
    size_t _runningOf(const QString &service) const;
    void _answerWhenDone(std::function<QVariant()> work, const Answer &answer);

    const RetryPolicy _policy;
    const UploadQueueObserver _observer;
    const QString _folder;
    const Spool _spool;
    std::unique_ptr<UploadStore> _store;
    std::shared_ptr<ACAccountStore> _accounts;
    std::map<QString, Hold> _holds;          // by service
    std::map<qint64, UploadJob> _unrecorded; // what the disk did not take; nothing new starts before it does
    std::atomic<int> _takeOvers = 0;         // under way
    std::function<void()> _stopped;
    bool _started = false;
    bool _mayHaveSuspects = true; // only what is queued again can be one
    bool _suspectRuns = false;
    bool _awaitsOtherNetwork = false; // than the cellular one, which nothing new may begin on
    std::atomic<bool> _paused = false;
    mutable std::mutex _runningMutex;
    std::map<qint64, Running> _running; // written on the queue's thread under the mutex
    SerialQueue _queue;                 // last: its thread ends before what it works on
};

} // namespace korvane
