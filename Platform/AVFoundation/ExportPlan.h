// How a video is exported: what is copied, what is encoded, and how.
#pragma once

#include "Platform/AVFoundation/MediaInfo.h"

#include <QByteArrayList>
#include <QSize>

namespace korvane {

// The best quality, and none given, copy what an MP4 file can carry already (H.264 of the usual kind, AAC) and encode
// the rest. The others always encode. A picture is made smaller to fit the preset, never larger; bit rates follow its
// size, and what the source itself spends on it.
class ExportPlan {
public:
    // presetName is one of the constants of AVAssetExportSession; null, or another name, counts as the best quality.
    ExportPlan(const MediaInfo &info, const std::optional<QString> &presetName, bool mayCopy = true);

    bool copiesVideo() const { return _copiesVideo; }
    bool copiesSound() const { return _copiesSound; }
    QSize size() const { return _size; } // pixels, even; the source's own where the video is copied

    // What ffmpeg has to do with its input to make an MP4 file; without input, output and diagnostics.
    QByteArrayList arguments() const;

    // Bytes of the MP4 file that comes out, as far as can be told; 0 where the source's length is unknown.
    qint64 estimatedLength() const;

private:
    MediaInfo _info;
    bool _copiesVideo = false;
    bool _copiesSound = false;
    QSize _size;
    qint64 _videoRate = 0; // bits per second
    qint64 _soundRate = 0; // bits per second
};

} // namespace korvane
