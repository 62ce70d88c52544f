// The export of a video to an MP4 file.
#pragma once

#include "Platform/AVFoundation/AVAsset.h"
#include "Platform/Foundation/ChildProcess.h"
#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/NSURL.h"
#include "Platform/Foundation/UploadContext.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>

namespace korvane {

class ExportPlan;
struct MediaInfo;

extern const QString AVAssetExportPresetLowQuality;     // 360 lines, 600 kbit/s
extern const QString AVAssetExportPresetMediumQuality;  // 720 lines, 2.5 Mbit/s
extern const QString AVAssetExportPresetHighestQuality; // as it is, else up to 1080 lines, 10 Mbit/s

extern const QString AVFileTypeMPEG4;

enum AVAssetExportSessionStatus {
    AVAssetExportSessionStatusUnknown = 0,
    AVAssetExportSessionStatusWaiting = 1,
    AVAssetExportSessionStatusExporting = 2,
    AVAssetExportSessionStatusCompleted = 3,
    AVAssetExportSessionStatusFailed = 4,
    AVAssetExportSessionStatusCancelled = 5,
};

// Makes one MP4 file (H.264, AAC, index first) with ffmpeg, in a process that ends with this one. A file that was not
// finished is removed. Set up by one thread before the start; everything else may be called by any.
class AVAssetExportSession : public std::enable_shared_from_this<AVAssetExportSession> {
public:
    // presetName is one of the constants above; null, and any other name, counts as the best quality. An asset without
    // a file gives a session that fails with the asset's error.
    static std::shared_ptr<AVAssetExportSession> exportSessionWithAsset(AVAsset asset,
                                                                        std::optional<QString> presetName);

    void setOutputFileType(const QString &type) { _outputFileType = type; } // only AVFileTypeMPEG4 can be made
    // The file to make. One that is there already is replaced, unless another session is at it: from its start until
    // its handler has returned.
    void setOutputURL(const NSURL &url) { _outputURL = url; }
    // Ends the export when the job is cancelled; a job that is cancelled already starts none.
    void setUploadContext(std::shared_ptr<UploadContext> context) { _context = std::move(context); }
    // The program is given up when neither its word nor the file has changed for so long. 120 seconds unless set.
    void setStallLimit(std::chrono::milliseconds limit) { _stallLimit = limit; }

    // Returns at once; to be called once. The handler runs exactly once, on the session's own queue, when the status is
    // one of the last three; the session lives until then.
    void exportAsynchronouslyWithCompletionHandler(std::function<void()> handler);
    // Kills the program; the session ends as cancelled if it was not finished. Also before the start.
    void cancelExport() { _cancellation.request_stop(); }

    float progress() const { return _progress; } // 0.0 to 1.0, the latter only when completed
    AVAssetExportSessionStatus status() const;
    // Set when failed (AVFoundationErrorDomain) or cancelled (NSURLErrorDomain, NSURLErrorCancelled), else null.
    std::optional<NSError> error() const;

private:
    AVAssetExportSession(AVAsset asset, std::optional<QString> presetName);
    void _run();
    std::optional<NSError> _export();
    std::optional<NSError> _checkRequest() const;
    std::optional<NSError> _claimOutput();
    std::optional<NSError> _write(const MediaInfo &info);
    std::optional<NSError> _encode(const MediaInfo &info, const ExportPlan &plan,
                                   std::optional<ChildProcess::Result> &result);
    std::optional<NSError> _checkOutput(const MediaInfo &info, qint64 microsecondsWritten) const;
    void _end(const std::optional<NSError> &error);

    const AVAsset _asset;
    const std::optional<QString> _presetName;
    QString _outputFileType;
    std::optional<NSURL> _outputURL;
    std::shared_ptr<UploadContext> _context; // may be null
    std::chrono::milliseconds _stallLimit = std::chrono::seconds(120);

    FileDescriptor _output; // locked, which keeps other sessions from the file; of the own queue alone
    std::stop_source _cancellation;
    std::atomic<float> _progress = 0;
    mutable std::mutex _mutex;
    AVAssetExportSessionStatus _status = AVAssetExportSessionStatusUnknown;
    std::optional<NSError> _error;
    std::unique_ptr<SerialQueue> _queue;
};

} // namespace korvane
