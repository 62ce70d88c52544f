// The programs ffmpeg and ffprobe, run on one media file.
#pragma once

#include "Platform/AVFoundation/AVAsset.h"
#include "Platform/Foundation/ChildProcess.h"

namespace korvane {

namespace MediaProgram {

// The program ("ffmpeg" or "ffprobe") with the asset, which must have a file, as its only input, ready for run(). It is
// held to the usual video containers and to that one file, so that a file which is really a list of other files or of
// addresses leads nowhere. KORVANE_FFMPEG and KORVANE_FFPROBE name other programs.
ChildProcess make(const QByteArray &program, const AVAsset &asset, const QByteArrayList &options);

// Why the program could not be started or did not succeed. error is what run() placed where there is no result.
NSError failure(const AVAsset &asset, const std::optional<ChildProcess::Result> &result,
                const std::optional<NSError> &error);

} // namespace MediaProgram

} // namespace korvane
