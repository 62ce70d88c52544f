// The programs ffmpeg and ffprobe, run on one media file.
#include "Platform/AVFoundation/MediaProgram.h"

#include "Platform/AVFoundation/AVError.h"
#include "Platform/Foundation/LocalizedText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

namespace korvane {
namespace {

constexpr int politeness = 10;

// Containers only: no playlists (hls, concat, dash), no network sessions (sdp, rtsp), no still pictures.
const QByteArray containers = "mov,mp4,m4a,3gp,3g2,mj2,matroska,webm,avi,mpegts,mpeg,mpegvideo,asf,flv,ogg,mxf,dv";

bool saysOneOf(const QByteArray &text, std::initializer_list<const char *> phrases) {
    return std::any_of(phrases.begin(), phrases.end(), [&](const char *phrase) { return text.contains(phrase); });
}

NSError notStarted(const std::optional<NSError> &error) {
    if (error && error->domain() == NSPOSIXErrorDomain && error->code() == ENOENT)
        return avError(AVErrorEncoderNotFound,
                       localizedText("Videos cannot be read without the programs ffmpeg and ffprobe. Install the "
                                     "package “ffmpeg” and try again."));
    return avError(AVErrorExportFailed, localizedText("The program for videos cannot be started: %1",
                                                      error ? error->localizedDescription() : QString()));
}

NSError endedBadly(const AVAsset &asset, const ChildProcess::Result &result) {
    const bool tooLarge = result.ending == ChildProcess::Signalled && result.status == SIGXFSZ;
    if (tooLarge ||
        saysOneOf(result.standardError, {"No space left on device", "Disk quota exceeded", "File too large"}))
        return diskFullError(asset.name);
    if (result.ending != ChildProcess::Exited)
        return avError(AVErrorExportFailed, localizedText("The export of “%1” broke off (%2). Try again.", asset.name,
                                                          result.description()));
    if (result.standardError.contains("Unknown encoder"))
        return avError(AVErrorEncoderNotFound,
                       localizedText("The installed ffmpeg cannot write H.264 and AAC. Install a package “ffmpeg” "
                                     "with libx264 and try again."));
    return avError(AVErrorFileFailedToParse,
                   localizedText("“%1” is damaged or incomplete. Check that it plays to its end, or copy it again "
                                 "from where it was made (%2).",
                                 asset.name, result.description()));
}

} // namespace

ChildProcess MediaProgram::make(const QByteArray &program, const AVAsset &asset, const QByteArrayList &options) {
    const QByteArray other = qgetenv("KORVANE_" + program.toUpper());
    // Opened by number the file has a position of its own, can be sought in, and is the one that was looked up.
    ChildProcess child(other.isEmpty() ? program : other,
                       QByteArrayList{"-hide_banner", "-v", "error", "-protocol_whitelist", "file", "-format_whitelist",
                                      containers, "-i", "file:/proc/self/fd/0"} +
                           options);
    child.setStandardInput(asset.file->file()->get());
    child.setNiceness(politeness);
    return child;
}

NSError MediaProgram::failure(const AVAsset &asset, const std::optional<ChildProcess::Result> &result,
                              const std::optional<NSError> &error) {
    if (!result) return notStarted(error);
    if (result->ending == ChildProcess::Cancelled) return exportCancelledError();
    return endedBadly(asset, *result);
}

} // namespace korvane
