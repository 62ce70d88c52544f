// The queue of uploads: what the status interface asks of it.
#include "Service/UploadQueue.h"

#include "Platform/AssetsLibrary/AssetLocation.h"
#include "Service/RecordCodec.h"

#include <QDateTime>
#include <QFile>

#include <algorithm>

namespace korvane {
namespace {

constexpr quint32 largestPage = 1000;

// What a run has sent and what is certain of it. A multipart body is a little longer than the photo, so the count is
// cut.
UploadProgress progressOf(const UploadJob &job, const UploadContext::Snapshot &request) {
    const qint64 total = job.bytesTotal != 0 ? job.bytesTotal : request.bytesTotal;
    if (job.photoID != 0) return {QString::number(job.id), total, total, total};
    if (job.video) {
        const qint64 stored =
            job.video->videoID.isValid() ? total : qint64(std::min(job.video->bytesStored, quint64(total)));
        return {QString::number(job.id), std::min(stored + request.bytesSent, total), stored, total};
    }
    return {QString::number(job.id), std::min(request.bytesSent, total), 0, total};
}

} // namespace

void UploadQueue::_answerWhenDone(std::function<QVariant()> work, const Answer &answer) {
    _queue.async([work = std::move(work), answer] { answer(work()); });
}

void UploadQueue::list(qint64 after, quint32 limit, const Answer &answer) {
    _answerWhenDone(
        [=, this] {
            QList<QVariantMap> page;
            for (const UploadJob &job : _store->jobsAfter(after, int(std::min(limit, largestPage))))
                page.append(_dictionary(job));
            return QVariant::fromValue(page);
        },
        answer);
}

void UploadQueue::recent(qint64 before, quint32 limit, const QStringList &states, const Answer &answer) {
    _answerWhenDone(
        [=, this] {
            std::vector<UploadState> wanted;
            for (const UploadState state : allUploadStates)
                if (states.contains(stateText(state))) wanted.push_back(state);
            QList<QVariantMap> page;
            if (wanted.empty() != states.isEmpty()) return QVariant::fromValue(page); // only states that there are not
            for (const UploadJob &job : _store->jobsBefore(before, int(std::min(limit, largestPage)), wanted))
                page.append(_dictionary(job));
            return QVariant::fromValue(page);
        },
        answer);
}

void UploadQueue::get(const QStringList &ids, const Answer &answer) {
    _answerWhenDone(
        [=, this] {
            QList<QVariantMap> found;
            for (const QString &id : ids)
                if (const auto job = _store->job(id.toLongLong())) found.append(_dictionary(*job));
            return QVariant::fromValue(found);
        },
        answer);
}

void UploadQueue::sources(const QStringList &ids, const Answer &answer) {
    _answerWhenDone(
        [=, this] {
            QList<QVariantMap> found;
            for (const QString &id : ids)
                if (const auto job = _store->job(id.toLongLong()))
                    if (const auto source = _sourceOf(*job)) found.append(*source);
            return QVariant::fromValue(found);
        },
        answer);
}

std::optional<QVariantMap> UploadQueue::_sourceOf(const UploadJob &job) const {
    const auto spoolFile = job.spoolFile.isEmpty() ? nullptr : _spool.open(job.spoolFile);
    const QVariantMap record = RecordCodec::decode(_store->record(job.id), spoolFile);
    QVariantMap source{{QStringLiteral("id"), QString::number(job.id)}};
    for (const QVariant &value : record) {
        const auto data = value.value<NSData>();
        if (!data.file()) continue;
        source.insert(QStringLiteral("url"), _spool.urlOf(job.spoolFile).absoluteString());
        source.insert(QStringLiteral("offset"), data.fileOffset());
        source.insert(QStringLiteral("length"), data.length());
        return source;
    }
    const auto url = NSURL::URLWithString(record.value(QStringLiteral("assetURL")).toString());
    const auto asset = url ? AssetLocation::ofURL(*url) : std::nullopt;
    if (!asset && !(url && url->isFileURL())) return std::nullopt;
    const QByteArray path =
        asset ? QFile::encodeName(photoRoot(asset->folder)) + '/' + asset->path : url->fileSystemRepresentation();
    const auto file = FileIdentity::ofPath(path);
    if (!file) return std::nullopt;
    source.insert(QStringLiteral("url"), NSURL::fileURLWithPath(path).absoluteString());
    source.insert(QStringLiteral("offset"), qint64(0));
    source.insert(QStringLiteral("length"), file->size);
    return source;
}

void UploadQueue::idsOfMessage(const QString &messageID, const Answer &answer) {
    _answerWhenDone([=, this] { return QVariant(_store->idsOfMessage(messageID)); }, answer);
}

void UploadQueue::counts(const Answer &answer) {
    _answerWhenDone(
        [this] {
            auto counts = _store->counts();
            QVariantMap named;
            for (const UploadState state : allUploadStates)
                named.insert(stateText(state), counts[state]);
            return QVariant(named);
        },
        answer);
}

void UploadQueue::retry(const QStringList &ids, const Answer &answer) {
    _answerWhenDone(
        [=, this] {
            std::vector<UploadJob> jobs;
            for (const QString &id : ids) {
                auto job = _store->job(id.toLongLong());
                if (!job || (job->state != UploadState::Failed && job->state != UploadState::Waiting)) continue;
                job->failures = 0;
                job->failingSince = 0;
                // One that was set aside is tried alone again: one more fatal end sets it aside at once.
                job->deaths = std::min<qint64>(job->deaths, 1);
                if (job->video) {
                    job->video->commitSent = false;     // whoever asks has looked whether the video is there,
                    job->video->mayUseCellular.reset(); // and knows over which network it goes now
                }
                jobs.push_back(*job);
            }
            _holds.clear();
            _requeue(jobs);
            return QVariant(quint32(jobs.size()));
        },
        answer);
}

void UploadQueue::remove(const QStringList &ids, const Answer &answer) {
    _answerWhenDone(
        [=, this] {
            std::vector<UploadJob> jobs;
            for (const QString &id : ids) {
                const auto job = _store->job(id.toLongLong());
                if (!job) continue;
                jobs.push_back(*job);
            }
            if (!_forget(jobs)) return QVariant(quint32(0));
            for (const UploadJob &job : jobs) {
                _unrecorded.erase(job.id);
                const auto running = _running.find(job.id);
                if (running == _running.end()) continue;
                running->second.stopReason = StopReason::Remove;
                if (mayBeBrokenOff(running->second.job)) running->second.context->cancel();
            }
            if (_store->waiting(WaitReason::Network).empty()) _holds.clear();
            _schedule();
            _armWake();
            return QVariant(quint32(jobs.size()));
        },
        answer);
}

void UploadQueue::clear(const Answer &answer) {
    _answerWhenDone(
        [this] {
            const auto done = _store->done();
            return QVariant(quint32(_forget(done) ? done.size() : 0));
        },
        answer);
}

void UploadQueue::setPaused(bool paused, const Answer &answer) {
    _answerWhenDone(
        [=, this] {
            _paused = paused;
            _store->setPaused(paused);
            if (paused) {
                _pauseRunning();
            } else {
                _holds.clear();
                for (auto &[id, running] : _running)
                    if (running.stopReason == StopReason::Pause && !running.context->isCancelled())
                        running.stopReason = StopReason::None;
                _schedule();
            }
            return QVariant();
        },
        answer);
}

void UploadQueue::wake() {
    _queue.async([this] {
        _recordAgain();
        const auto due = _store->dueBefore(QDateTime::currentMSecsSinceEpoch());
        for (const UploadJob &job : due)
            if (job.waitReason == WaitReason::SignIn)
                _holds.erase(job.service); // it is its turn to look for an account
        _requeue(due);
    });
}

void UploadQueue::networkReturned() {
    _queue.async([this] {
        _holds.clear();
        _requeue(_store->waiting(WaitReason::Network));
    });
}

void UploadQueue::accountsChanged() {
    _queue.async([this] {
        _holds.clear();
        _requeue(_store->waiting(WaitReason::SignIn));
    });
}

void UploadQueue::stop(const std::function<void()> &stopped) {
    _queue.async([=, this] {
        _stopped = stopped;
        _pauseRunning();
        _endIfStopped();
    });
}

void UploadQueue::_pauseRunning() {
    for (auto &[id, running] : _running) {
        if (running.stopReason == StopReason::None) running.stopReason = StopReason::Pause;
        if (mayBeBrokenOff(running.job)) running.context->cancel();
    }
}

std::vector<UploadProgress> UploadQueue::progress() const {
    const std::lock_guard lock(_runningMutex);
    std::vector<UploadProgress> all;
    for (const auto &[id, running] : _running)
        all.push_back(_progressOfRun(running.job, running));
    return all;
}

// The bar does not go back while a chunk is verified. Under the mutex.
UploadProgress UploadQueue::_progressOfRun(const UploadJob &job, const Running &running) {
    UploadProgress progress = progressOf(job, running.context->snapshot());
    running.mostSent = progress.bytesSent = std::max(progress.bytesSent, running.mostSent);
    return progress;
}

QVariantMap UploadQueue::_dictionary(const UploadJob &job) const {
    UploadProgress bytes = progressOf(job, {});
    if (const auto running = _running.find(job.id); running != _running.end()) {
        const std::lock_guard lock(_runningMutex);
        bytes = _progressOfRun(job, running->second);
    }
    if (job.state == UploadState::Done) bytes.bytesSent = bytes.bytesConfirmed = bytes.bytesTotal;
    return dictionaryOfJob(job, bytes.bytesSent, bytes.bytesConfirmed, bytes.bytesTotal);
}

} // namespace korvane
