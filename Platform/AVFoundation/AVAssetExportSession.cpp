// The export of a video to an MP4 file.
#include "Platform/AVFoundation/AVAssetExportSession.h"

#include "Platform/AVFoundation/AVError.h"
#include "Platform/AVFoundation/ExportPlan.h"
#include "Platform/AVFoundation/ExportProgress.h"
#include "Platform/AVFoundation/MediaProgram.h"
#include "Platform/Foundation/LocalizedText.h"

#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

namespace korvane {

const QString AVAssetExportPresetLowQuality = QStringLiteral("AVAssetExportPresetLowQuality");
const QString AVAssetExportPresetMediumQuality = QStringLiteral("AVAssetExportPresetMediumQuality");
const QString AVAssetExportPresetHighestQuality = QStringLiteral("AVAssetExportPresetHighestQuality");
const QString AVFileTypeMPEG4 = QStringLiteral("public.mpeg-4");

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds longestLook(1000);
constexpr float almostDone = 0.999F;

NSError damaged(const QString &name) {
    return avError(AVErrorFileFailedToParse, localizedText("“%1” ends too early: it is damaged or incomplete. Check "
                                                           "that it plays to its end, or copy it again from where "
                                                           "it was made.",
                                                           name));
}

NSError notUnderstood(const QString &name) {
    return avError(AVErrorExportFailed,
                   localizedText("What ffmpeg says of “%1” is not understood. Check the package “ffmpeg”.", name));
}

// Whether a program that failed to copy did not blame the source.
bool isRefusal(const ChildProcess::Result &result) {
    return !result.succeeded() && !result.standardError.contains("corrupt") &&
           !result.standardError.contains("partial file");
}

// Notices when a program has not got on for a while. Moving the index to the front of a large file takes minutes
// without a word, but the file's time changes.
class StallWatch {
public:
    StallWatch(const FileDescriptor &output, std::chrono::milliseconds limit) : _output(output), _limit(limit) {}

    bool goesOn(qint64 microseconds) {
        const auto file = FileIdentity::ofDescriptor(_output.get());
        const auto now = Clock::now();
        if (microseconds != _microseconds || file != _file) _changed = now;
        _microseconds = microseconds;
        _file = file;
        return now - _changed < _limit;
    }

private:
    const FileDescriptor &_output;
    std::chrono::milliseconds _limit;
    Clock::time_point _changed = Clock::now();
    qint64 _microseconds = 0;
    std::optional<FileIdentity> _file;
};

} // namespace

std::shared_ptr<AVAssetExportSession> AVAssetExportSession::exportSessionWithAsset(AVAsset asset,
                                                                                   std::optional<QString> presetName) {
    return std::shared_ptr<AVAssetExportSession>(new AVAssetExportSession(std::move(asset), std::move(presetName)));
}

AVAssetExportSession::AVAssetExportSession(AVAsset asset, std::optional<QString> presetName)
    : _asset(std::move(asset)), _presetName(std::move(presetName)) {}

void AVAssetExportSession::exportAsynchronouslyWithCompletionHandler(std::function<void()> handler) {
    const std::lock_guard lock(_mutex);
    if (!_queue) _queue = std::make_unique<SerialQueue>();
    if (_status == AVAssetExportSessionStatusUnknown) _status = AVAssetExportSessionStatusWaiting;
    _queue->async([self = shared_from_this(), handler = std::move(handler)] {
        if (self->status() == AVAssetExportSessionStatusWaiting) self->_run();
        handler();
        self->_output.reset();
    });
}

AVAssetExportSessionStatus AVAssetExportSession::status() const {
    const std::lock_guard lock(_mutex);
    return _status;
}

std::optional<NSError> AVAssetExportSession::error() const {
    const std::lock_guard lock(_mutex);
    return _error;
}

void AVAssetExportSession::_run() {
    {
        const std::lock_guard lock(_mutex);
        _status = AVAssetExportSessionStatusExporting;
    }
    const std::stop_callback onCancelledJob(_context ? _context->cancellation() : std::stop_token(),
                                            [this] { cancelExport(); });
    _end(_export());
}

std::optional<NSError> AVAssetExportSession::_export() {
    if (_cancellation.stop_requested()) return exportCancelledError();
    if (const auto error = _checkRequest()) return error;
    std::optional<NSError> error;
    const auto info = MediaInfo::ofAsset(_asset, _stallLimit, _cancellation.get_token(), &error);
    if (!info) return error;
    if ((error = _claimOutput())) return error;
    error = _write(*info);
    if (error) {
        ::unlink(_outputURL->fileSystemRepresentation().constData());
        _output.reset();
    }
    return error;
}

std::optional<NSError> AVAssetExportSession::_checkRequest() const {
    if (_asset.error) return _asset.error;
    if (_outputFileType != AVFileTypeMPEG4)
        return avError(AVErrorInvalidOutputURLParameter, localizedText("Only MP4 files can be exported."));
    if (!_outputURL || !_outputURL->isFileURL() || _outputURL->fileSystemRepresentation().contains('\0'))
        return avError(AVErrorInvalidOutputURLParameter,
                       localizedText("There is no file to export “%1” to.", _asset.name));
    return std::nullopt;
}

std::optional<NSError> AVAssetExportSession::_claimOutput() {
    const QByteArray path = _outputURL->fileSystemRepresentation();
    const FileDescriptor earlier(::open(path.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    if (earlier && ::flock(earlier.get(), LOCK_EX | LOCK_NB) != 0)
        return avError(AVErrorFileAlreadyExists,
                       localizedText("Another export writes to %1. Try again.", _outputURL->path()));
    if (earlier) ::unlink(path.constData());
    FileDescriptor output(::open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!output && (errno == ENOSPC || errno == EDQUOT)) return diskFullError(_asset.name);
    if (!output || ::flock(output.get(), LOCK_EX | LOCK_NB) != 0)
        return avError(AVErrorInvalidOutputURLParameter,
                       NSError::errorWithErrno(errno, _outputURL->path()).localizedDescription());
    _output = std::move(output);
    return std::nullopt;
}

// What cannot be copied after all (timestamps that MP4 cannot hold, say) is encoded.
std::optional<NSError> AVAssetExportSession::_write(const MediaInfo &info) {
    const ExportPlan plan(info, _presetName);
    std::optional<ChildProcess::Result> result;
    const auto error = _encode(info, plan, result);
    const bool copies = plan.copiesVideo() || plan.copiesSound();
    if (!error || !copies || error->code() != AVErrorFileFailedToParse || !isRefusal(*result)) return error;
    return _encode(info, ExportPlan(info, _presetName, false), result);
}

std::optional<NSError> AVAssetExportSession::_encode(const MediaInfo &info, const ExportPlan &plan,
                                                     std::optional<ChildProcess::Result> &result) {
    auto encoder =
        MediaProgram::make("ffmpeg", _asset,
                           QByteArrayList{"-nostdin", "-nostats", "-xerror", "-progress", "pipe:1", "-y"} +
                               plan.arguments() + QByteArrayList{"file:" + _outputURL->fileSystemRepresentation()});
    ExportProgress progress;
    StallWatch stall(_output, _stallLimit);
    encoder.setOutputHandler([&](const QByteArray &piece) {
        progress.take(piece);
        if (info.microseconds > 0)
            _progress = std::min(almostDone, float(double(progress.microseconds()) / double(info.microseconds)));
    });
    encoder.setWatch(std::min(_stallLimit / 4, longestLook),
                     [&] { return progress.isUnderstood() && stall.goesOn(progress.microseconds()); });
    encoder.setCancellation(_cancellation.get_token());
    std::optional<NSError> reason;
    result = encoder.run(&reason);
    if (!progress.isUnderstood()) return notUnderstood(_asset.name);
    if (result && result->succeeded()) return _checkOutput(info, progress.microseconds());
    return MediaProgram::failure(_asset, result, reason);
}

std::optional<NSError> AVAssetExportSession::_checkOutput(const MediaInfo &info, qint64 microsecondsWritten) const {
    if (!_asset.file->isIntact())
        return avError(
            AVErrorContentIsUnavailable,
            localizedText("“%1” was changed while it was exported. Try again when it is complete.", _asset.name));
    struct stat status;
    if (::fstat(_output.get(), &status) != 0 || status.st_size == 0 || microsecondsWritten == 0)
        return damaged(_asset.name);
    // Some containers end quietly where the file was cut; lengths that they state are a little off at times.
    const bool isShort = microsecondsWritten < info.microseconds / 10 * 9 - 500'000;
    return isShort ? std::optional(damaged(_asset.name)) : std::nullopt;
}

void AVAssetExportSession::_end(const std::optional<NSError> &error) {
    const std::lock_guard lock(_mutex);
    _error = error;
    const bool isCancelled = error && error->domain() == NSURLErrorDomain && error->code() == NSURLErrorCancelled;
    if (!error) {
        _progress = 1;
        _status = AVAssetExportSessionStatusCompleted;
    } else {
        _status = isCancelled ? AVAssetExportSessionStatusCancelled : AVAssetExportSessionStatusFailed;
    }
}

} // namespace korvane
