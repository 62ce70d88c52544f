// Runs one Vimeo upload.
#include "Service/VimeoRunner.h"

#include "Korvane/VimeoPost.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/NSLog.h"
#include "Service/FailureClassifier.h"
#include "Service/JobAccount.h"
#include "Service/PostCheck.h"
#include "Service/Spool.h"
#include "Service/TicketCheck.h"
#include "Service/VerifyWatch.h"

#include <QDir>

#include <cerrno>

namespace korvane {
namespace {

// In a row, before a ticket is given up, and with it what is stored: three quarters of an hour.
constexpr qint64 triesOfEndpoint = 7;

// One step follows another, each handed over from thread to thread, so nothing here needs a lock.
class VimeoRun : public VimeoPostDelegate, public std::enable_shared_from_this<VimeoRun> {
public:
    explicit VimeoRun(UploadRun run)
        : _run(std::move(run)), _watch(_run.job.video ? _run.job.video->bytesStored : 0),
          _temporaryFolder(NSTemporaryDirectory() + QStringLiteral("/video-%1").arg(_run.job.id)) {}

    void begin();

    void vimeoPostWarningDuringUpload(const std::shared_ptr<VimeoPost> &, qint64) override {
        NSLog("Upload %lli: the Vimeo account has no quota for high definition left; the video goes on.", _run.job.id);
    }
    void vimeoPostUploadFailedWithError(const std::shared_ptr<VimeoPost> &, const NSError &error) override {
        dispatchMain([self = shared_from_this(), error] { self->_finished(error); });
    }
    void vimeoPostUploadSucceeded(const std::shared_ptr<VimeoPost> &) override {
        dispatchMain([self = shared_from_this()] { self->_finished(std::nullopt); });
    }

private:
    void _reached(const VimeoCheckpoint &checkpoint, const std::function<void()> &proceed);
    void _keepExport();
    std::optional<Verdict> _reasonToBreakOff(const VimeoCheckpoint &checkpoint);
    void _finished(const std::optional<NSError> &error);
    void _resume();
    void _endpointUnreachable(Verdict verdict);
    void _end(const Verdict &verdict);
    void _endWithOutcome(const RunOutcome &outcome);

    UploadRun _run;
    std::shared_ptr<VimeoPost> _post;
    VerifyWatch _watch;
    bool _vimeoHasAnswered = false; // after the endpoint did not
    const QString _temporaryFolder;
};

// Whether there is more at Vimeo than there was.
bool hasAdvanced(const std::optional<VimeoCheckpoint> &before, const VimeoCheckpoint &now) {
    return before && (now.bytesStored > before->bytesStored || now.videoID.isValid());
}

// Whether it is the same ticket, of which there may be more at Vimeo now.
bool goesOn(const std::optional<VimeoCheckpoint> &before, VimeoCheckpoint now) {
    if (!before || !now.hasTicket()) return false;
    now.bytesStored = before->bytesStored;
    return now == *before;
}

void VimeoRun::begin() {
    _post = VimeoPost::initWithDictionary(_run.record);
    if (_run.job.video && _run.job.video->commitSent) return _end(FailureClassifier::verdictOnUnansweredCommit());
    if (const auto objection = PostCheck::prepare(*_post, _run.job))
        return _endWithOutcome(PostCheck::outcomeOfObjection(*objection));
    if (_run.job.video && _run.job.video->hasTicket())
        if (const auto objection = TicketCheck::objection(*_run.job.video))
            return _endWithOutcome({RunOutcome::Unusable, objection});
    const auto account = accountOfJob(_run.job, *_run.accounts);
    std::optional<NSError> reason;
    if (!account || !account->credential(&reason)) return _endWithOutcome(withoutAccount(_run.job, reason));
    account->setUploadContext(_run.context);
    if (!makePrivateFolder(_temporaryFolder))
        return _endWithOutcome({RunOutcome::Hindered, NSError::errorWithErrno(errno, _temporaryFolder)});
    _post->temporaryDirectory = _temporaryFolder;
    if (!_run.job.exportFile.isEmpty())
        _post->dataReader = KRDataReader::dataReaderWithURL(_run.spool->urlOf(_run.job.exportFile));
    if (!_post->dataReader) _run.job.exportFile.clear(); // it is gone; the next one will be kept
    _post->checkpointChanged = [self = shared_from_this()](const VimeoCheckpoint &checkpoint,
                                                           const std::function<void()> &proceed) {
        dispatchGlobal([=] { self->_reached(checkpoint, proceed); });
    };
    _post->setDelegate(weak_from_this());
    _post->account = account;
    _resume();
}

void VimeoRun::_resume() {
    std::optional<NSError> error;
    if (!_post->resumeUploadToAccount(_post->account, _run.job.video ? *_run.job.video : VimeoCheckpoint(), &error))
        dispatchMain([self = shared_from_this(), error] { self->_finished(error); });
}

// On a pool thread. Where something stands against going on, the upload is simply not told to proceed.
void VimeoRun::_reached(const VimeoCheckpoint &checkpoint, const std::function<void()> &proceed) {
    _keepExport();
    if (const auto reason = _reasonToBreakOff(checkpoint)) return _end(*reason);
    if (hasAdvanced(_run.job.video, checkpoint)) _run.job.failures = _run.job.failingSince = 0;
    const bool isOnlyFurther = goesOn(_run.job.video, checkpoint);
    _run.job.video = checkpoint;
    _run.job.bytesTotal = _post->postSize();
    if (isOnlyFurther) {
        // Vimeo is asked again how much it has, so the next chunk need not wait for the record.
        _run.reached(_run.job, false, {});
        return dispatchMain(proceed);
    }
    const bool mustNotComeTwice = checkpoint.commitSent || checkpoint.videoID.isValid();
    _run.reached(_run.job, mustNotComeTwice, [self = shared_from_this(), proceed](bool isRecorded) {
        if (isRecorded || !self->_run.job.video->commitSent) return dispatchMain(proceed);
        self->_run.job.video->commitSent = false;
        self->_end(FailureClassifier::verdictOnUnrecordedCommit());
    });
}

// The post removes its export when the run ends; the next run would have to make it again.
void VimeoRun::_keepExport() {
    if (!_post->exportedVideoURL || !_post->dataReader || !_run.job.exportFile.isEmpty()) return;
    std::optional<NSError> error;
    if (const auto name = _run.spool->adopt(_post->dataReader->readHandle->file()->get(), &error))
        _run.job.exportFile = *name;
    else
        NSLog("The export of upload %lli is not kept: %@", _run.job.id, error);
}

std::optional<Verdict> VimeoRun::_reasonToBreakOff(const VimeoCheckpoint &checkpoint) {
    if (checkpoint.videoID.isValid() && !checkpoint.commitSent) return std::nullopt; // what matters is there
    if (checkpoint.commitSent && _run.job.video && _run.job.video->commitSent)
        return FailureClassifier::verdictOnUnansweredCommit(); // answered, but without the video's id
    if (const auto changed = PostCheck::objectionToChange(*_post, _run.job)) return Verdict::failed(*changed);
    if (!checkpoint.hasTicket() && _post->uploadState() != VimeoUploadStateGettingTicket) return std::nullopt;
    if (!goesOn(_run.job.video, checkpoint))
        if (const auto objection = TicketCheck::objection(checkpoint)) return Verdict::failed(*objection);
    if (_post->uploadState() != VimeoUploadStateVerifyingChunk) return std::nullopt;
    return _watch.objection(_run.context->snapshot(), checkpoint.bytesStored, quint64(_post->postSize()));
}

void VimeoRun::_finished(const std::optional<NSError> &error) {
    const auto request = _run.context->snapshot();
    auto &video = _run.job.video;
    if (error && video && video->commitSent) {
        const auto fate = FailureClassifier::fateOfCommit(request);
        if (fate == FailureClassifier::CommitFate::Unknown) return _end(FailureClassifier::verdictOnUnansweredCommit());
        video->commitSent = false;
        if (fate == FailureClassifier::CommitFate::Refused) video.reset(); // a later try begins with a new ticket
    }
    const RunOutcome outcome{RunOutcome::Finished, error, request};
    if (error && video && video->videoID.isValid()) return _end(FailureClassifier::verdictAfterCommit(outcome, *_post));
    const Verdict verdict = FailureClassifier::verdictOnVimeoRun(outcome);
    const bool isAtEndpoint = _post->uploadState() == VimeoUploadStateUploadingChunk ||
                              _post->uploadState() == VimeoUploadStateVerifyingChunk;
    isAtEndpoint &&verdict.waitReason == WaitReason::Network ? _endpointUnreachable(verdict) : _end(verdict);
}

// The endpoint is a server of its own: that it is out of reach says nothing about Vimeo, nor about other videos. It is
// given up where it does not answer just after Vimeo has; only then is it not the network that was away.
void VimeoRun::_endpointUnreachable(Verdict verdict) {
    verdict.holdsOthers = false;
    if (_run.job.failures < triesOfEndpoint) return _end(verdict);
    if (_vimeoHasAnswered) {
        _run.job.video.reset();
        return _end(FailureClassifier::verdictOnDeadEndpoint(*verdict.error));
    }
    VimeoPost::getAvailableQuotaForAccount(
        _post->account, [self = shared_from_this(), verdict](qint64, bool, bool, const auto &quotaError) {
            if (quotaError) return self->_end(verdict);
            self->_vimeoHasAnswered = true;
            self->_resume();
        });
}

void VimeoRun::_endWithOutcome(const RunOutcome &outcome) {
    _end(FailureClassifier::verdictOnVimeoRun(outcome));
}

void VimeoRun::_end(const Verdict &verdict) {
    dispatchMain([self = shared_from_this(), verdict] {
        self->_post->checkpointChanged = nullptr;
        QDir(self->_temporaryFolder).removeRecursively();
        self->_run.ended(verdict, self->_run.job);
    });
}

} // namespace

void VimeoRunner::start(UploadRun run) {
    dispatchGlobal([shared = std::make_shared<VimeoRun>(std::move(run))] { shared->begin(); });
}

} // namespace korvane
