// The queue of uploads: taking over, scheduling and outcomes.
#include "Service/UploadQueue.h"

#include "Korvane/KRRemoteSession.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Preferences/KorvaneSettings.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/SystemConfiguration/SCNetworkReachability.h"
#include "Service/FlickrRunner.h"
#include "Service/JobAccount.h"
#include "Service/RecordCodec.h"
#include "Service/VimeoRunner.h"

#include <QDateTime>

#include <algorithm>

namespace korvane {
namespace {

constexpr qint64 messageMemory = 7 * 24 * 3'600'000LL; // how long a lost reply may be asked for again
constexpr qint64 recordAgainAfter = 10'000;
constexpr qint64 networkAgainAfter = 60'000; // nobody tells of a setting that is changed
constexpr qint64 accountHold = 60'000;       // an account that is added ends it

qint64 now() {
    return QDateTime::currentMSecsSinceEpoch();
}

} // namespace

UploadQueue::UploadQueue(QString folder, RetryPolicy policy, UploadQueueObserver observer)
    : _policy(std::move(policy)), _observer(std::move(observer)), _folder(std::move(folder)),
      _spool(_folder + QStringLiteral("/spool")) {}

UploadQueue::~UploadQueue() {
    _queue.sync([this] { _store.reset(); });
}

bool UploadQueue::open(bool fatalDeath, std::optional<NSError> *error) {
    bool opened = false;
    _queue.sync([&] {
        _store = std::make_unique<UploadStore>();
        opened = _store->open(_folder + QStringLiteral("/queue.sqlite"), error);
        if (!opened) return;
        _store->drawWaitsIn(now(), _policy.delays.back());
        for (UploadJob &job : _store->running())
            _recover(job, fatalDeath);
        _store->forgetMessagesBefore(now() - messageMemory);
        if (const auto known = _store->spoolFiles()) _spool.sweep(*known);
        _paused = _store->isPaused();
    });
    return opened;
}

// What was running is queued again. After a fatal death each of them is suspected; one suspected before is set aside.
void UploadQueue::_recover(UploadJob &job, bool fatalDeath) {
    job.state = UploadState::Queued;
    if (fatalDeath && ++job.deaths > 1) {
        NSLog("Upload %lli was set aside: the service ended fatally while it ran, twice.", job.id);
        const QString text = localizedText(
            "The upload service ended unexpectedly each time it tried this upload, so it was set aside. Check the "
            "file, then retry or remove the upload.");
        job.state = UploadState::Failed;
        job.finishedAt = now();
        job.error = NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorNotAvailable, text);
    }
    _record(job);
}

void UploadQueue::start() {
    _queue.async([this] {
        _started = true;
        _schedule();
        _armWake();
    });
}

void UploadQueue::takeOver(const QString &service, const QVariantList &records, const RemoteMessage &message,
                           const XPCTransferCompletion &reply) {
    if (records.isEmpty())
        return reply(false, NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorNothingToShare,
                                                          localizedText("There is nothing to share.")));
    ++_takeOvers;
    _queue.async([=, this] {
        if (!_store->knowsMessage(message.id)) return _prepare(service, records, message, reply);
        reply(true, std::nullopt); // whatever came with it this time
        _takeOverEnded();
    });
}

// Large data takes its time to reach the disk; the queue goes on meanwhile.
void UploadQueue::_prepare(const QString &service, const QVariantList &records, const RemoteMessage &message,
                           const XPCTransferCompletion &reply) {
    dispatchGlobal([=, this] {
        std::optional<NSError> error;
        const auto taken = TakeOver::prepare(service, records, message, _spool, *_accounts, &error);
        if (!taken) reply(false, error);
        _queue.async([=, this] {
            if (taken) _taken(message, *taken, reply);
            _takeOverEnded();
        });
    });
}

void UploadQueue::_takeOverEnded() {
    --_takeOvers;
    _endIfStopped();
}

// Who has given up waiting has told the user that nothing was shared, and the user shares anew.
void UploadQueue::_taken(const RemoteMessage &message, const TakenMessage &taken, const XPCTransferCompletion &reply) {
    std::optional<NSError> error;
    const bool known = _store->knowsMessage(message.id);
    const bool wanted = known || message.isAwaited();
    if (!wanted) NSLog("A message with %lli posts was not taken: its sender is gone.", qint64(taken.uploads.size()));
    const bool kept = !known && wanted && _store->take(message.id, taken.uploads, &error);
    if (!kept && !taken.spoolFile.isEmpty()) _spool.remove(taken.spoolFile);
    reply(known || kept, error);
    if (!kept) return;
    for (const QString &id : _store->idsOfMessage(message.id))
        if (const auto job = _store->job(id.toLongLong())) _announce(*job);
    _schedule();
}

void UploadQueue::_schedule() {
    if (!_started || _paused || _stopped || _suspectRuns || !_unrecorded.empty()) return;
    _awaitsOtherNetwork = !KorvaneSettings::uploadsOverCellular() && isDefaultRouteCellular();
    if (_awaitsOtherNetwork) return;
    // What may have ended the service before is tried alone, so that its end names the culprit.
    const auto suspect = _mayHaveSuspects ? _store->suspect() : std::nullopt;
    _mayHaveSuspects = suspect.has_value();
    if (suspect) {
        if (_running.empty() && _holds[suspect->service].until <= now()) _start(*suspect);
        return;
    }
    _scheduleService(flickrServiceID, KorvaneSettings::flickrParallelUploads());
    _scheduleService(vimeoServiceID, KorvaneSettings::vimeoParallelUploads());
}

void UploadQueue::_scheduleService(const QString &service, int limit) {
    const qint64 free = limit - qint64(_runningOf(service));
    if (free <= 0 || _holds[service].until > now()) return;
    for (const UploadJob &job : _store->queued(service, int(free)))
        if (!_start(job)) return _armWake();
}

// False where the service's uploads must wait for something.
bool UploadQueue::_start(UploadJob job) {
    if (!_pinAccount(job)) return false;
    job.state = UploadState::Running;
    ++job.attempts;
    job.error.reset();
    if (!_store->update(job, false)) {
        job.state = UploadState::Queued;
        _unrecorded[job.id] = job;
        return false;
    }
    _suspectRuns = job.deaths > 0;
    const auto context = std::make_shared<UploadContext>();
    {
        const std::lock_guard lock(_runningMutex);
        _running[job.id] = {job, context};
    }
    const auto data = job.spoolFile.isEmpty() ? nullptr : _spool.open(job.spoolFile);
    UploadRun run{job, RecordCodec::decode(_store->record(job.id), data), context, _accounts, &_spool};
    run.reached = [this](const UploadJob &reached, bool durably, const std::function<void(bool)> &recorded) {
        _queue.async([=, this] {
            const bool isRecorded = _reached(reached, durably);
            if (recorded) recorded(isRecorded);
        });
    };
    run.ended = [this](const Verdict &verdict, const UploadJob &reached) {
        _queue.async([=, this] { _ended(verdict, reached); });
    };
    dispatchMain([] { KRRemoteSession::incrementPowerAssertion(); });
    job.service == flickrServiceID ? FlickrRunner::start(std::move(run)) : VimeoRunner::start(std::move(run));
    _announce(job);
    return true;
}

// A post taken over while there was no account goes to the first that appears. Without one it waits, and this is false.
bool UploadQueue::_pinAccount(UploadJob &job) {
    if (!job.accountID.isEmpty()) return true;
    if (const auto account = _accounts->accountInUse(accountTypeOfService(job.service))) {
        job.accountID = account->identifier();
        job.accountName = account->username();
        return true;
    }
    _waitForSignIn(job);
    return false;
}

void UploadQueue::_waitForSignIn(UploadJob &job) {
    const QString text = localizedText("There is no %1 account.", nameOfService(job.service));
    _apply({UploadState::Waiting, WaitReason::SignIn,
            NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorNotAvailable, text)},
           job);
    _holds[job.service].until = now() + accountHold; // the others need not all find that out
    _record(job);
    _announce(job);
}

bool UploadQueue::_reached(const UploadJob &reached, bool durably) {
    const auto found = _running.find(reached.id);
    if (found == _running.end()) return false;
    {
        const std::lock_guard lock(_runningMutex);
        found->second.job = reached;
    }
    if (reached.failures == 0) _holds[reached.service].failures = 0;
    // What was spared during its commit can be stopped where Vimeo has refused it.
    if (found->second.stopReason != StopReason::None && mayBeBrokenOff(reached)) found->second.context->cancel();
    return _store->updateReached(reached, durably);
}

void UploadQueue::_ended(const Verdict &verdict, const UploadJob &reached) {
    const auto found = _running.find(reached.id);
    if (found == _running.end()) return;
    const StopReason stopReason = found->second.stopReason;
    {
        const std::lock_guard lock(_runningMutex);
        _running.erase(found);
    }
    _suspectRuns = false;
    UploadJob job = reached;
    job.deaths = 0;
    if (stopReason == StopReason::Remove) {
        _dropSpoolFiles(job);
    } else if (stopReason == StopReason::Pause && verdict.state == UploadState::Waiting) {
        job.state = UploadState::Queued;
        _record(job);
        _announce(job);
    } else {
        _conclude(verdict, std::move(job));
    }
    _schedule();
    _armWake();
    // After the next run has begun, so that the device stays awake between the two.
    dispatchMain([] { KRRemoteSession::decrementPowerAssertion(); });
    _endIfStopped();
}

void UploadQueue::_conclude(const Verdict &verdict, UploadJob job) {
    _apply(verdict, job);
    const UploadJob before = job;
    if (job.state == UploadState::Done) {
        job.spoolFile.clear();
        job.exportFile.clear();
        _holds.erase(job.service);
    }
    const bool isWritten = _store->update(job, false);
    if (isWritten && job.state == UploadState::Done) _schedule(); // the next run need not wait for the disk
    const bool isRecorded = isWritten && _store->makeDurable();
    if (!isRecorded) _unrecorded[job.id] = job;
    if (isRecorded && job.state == UploadState::Done) _dropSpoolFiles(before);
    _announce(job);
    if (job.finishedAt != 0 && _observer.finished) _observer.finished(job);
}

void UploadQueue::_endIfStopped() {
    if (_stopped && _running.empty() && _takeOvers == 0) _stopped();
}

// An outcome that the disk does not take now is kept and written later.
bool UploadQueue::_record(const UploadJob &job) {
    if (_store->update(job, true)) return true;
    _unrecorded[job.id] = job;
    return false;
}

void UploadQueue::_recordAgain() {
    std::erase_if(_unrecorded, [this](const auto &entry) { return _store->update(entry.second, true); });
}

void UploadQueue::_apply(const Verdict &verdict, UploadJob &job) {
    job.state = verdict.state;
    job.waitReason = verdict.waitReason;
    job.error = verdict.error;
    if (verdict.state == UploadState::Waiting) return _wait(job, verdict);
    job.failures = 0;
    job.failingSince = 0;
    job.nextTryAt = 0;
    job.finishedAt = now();
}

void UploadQueue::_wait(UploadJob &job, const Verdict &verdict) {
    ++job.failures;
    if (job.failingSince == 0) job.failingSince = now();
    if (verdict.waitReason != WaitReason::SignIn && now() - job.failingSince > _policy.giveUpAfter) {
        const QString text =
            localizedText("Given up after %1 hours of trying. Last: %2 Retry when it is better.",
                          QString::number(_policy.giveUpAfter / 3'600'000), verdict.error->localizedDescription());
        job.error = NSError::errorWithDescription(verdict.error->domain(), verdict.error->code(), text);
        job.state = UploadState::Failed;
        job.waitReason = WaitReason::None;
        job.finishedAt = now();
        return;
    }
    job.nextTryAt = now() + _policy.delayAfter(job.failures);
    Hold &hold = _holds[job.service];
    if (verdict.waitReason == WaitReason::Network && verdict.holdsOthers && hold.until <= now())
        hold.until = now() + _policy.delayAfter(++hold.failures);
}

// False, and nothing is changed, where the disk does not take it.
bool UploadQueue::_forget(const std::vector<UploadJob> &jobs) {
    if (!_store->remove(jobs)) return false;
    for (const UploadJob &job : jobs) {
        if (!_running.contains(job.id)) _dropSpoolFiles(job);
        if (_observer.removed) _observer.removed(QString::number(job.id));
    }
    return true;
}

// A spool file holds the data of all posts of a message; the last of them takes it along.
void UploadQueue::_dropSpoolFiles(const UploadJob &job) {
    if (!job.exportFile.isEmpty()) _spool.remove(job.exportFile);
    if (!job.spoolFile.isEmpty() && !_store->spoolFileIsNeeded(job.spoolFile)) _spool.remove(job.spoolFile);
}

void UploadQueue::_requeue(std::vector<UploadJob> jobs) {
    _mayHaveSuspects = true;
    for (UploadJob &job : jobs) {
        job.state = UploadState::Queued;
        job.waitReason = WaitReason::None;
        job.nextTryAt = 0;
        job.finishedAt = 0;
        job.error.reset();
        if (!_store->update(job, false)) _unrecorded[job.id] = job;
        _announce(job);
    }
    _schedule();
    _armWake();
}

void UploadQueue::_armWake() {
    std::optional<qint64> due = _store->nextDue();
    for (const auto &[service, hold] : _holds)
        if (hold.until > now()) due = std::min(due.value_or(hold.until), hold.until);
    if (_awaitsOtherNetwork) due = std::min(due.value_or(now() + networkAgainAfter), now() + networkAgainAfter);
    if (!_unrecorded.empty()) due = now() + recordAgainAfter;
    if (due && _observer.wakeAfter) _observer.wakeAfter(std::max<qint64>(0, *due - now()));
}

void UploadQueue::_announce(const UploadJob &job) {
    if (_observer.changed) _observer.changed(_dictionary(job));
}

size_t UploadQueue::_runningOf(const QString &service) const {
    return size_t(std::count_if(_running.begin(), _running.end(),
                                [&](const auto &entry) { return entry.second.job.service == service; }));
}

} // namespace korvane
