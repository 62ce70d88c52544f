// What a video file holds.
#pragma once

#include "Platform/AVFoundation/AVAsset.h"

#include <QSize>

#include <chrono>
#include <optional>
#include <stop_token>

namespace korvane {

// Of a file's streams the first video that is no cover picture, and the first sound that can be decoded.
struct MediaInfo {
    struct Video {
        int index = 0; // of the stream in the file
        QString codec; // as ffmpeg calls it: "h264"
        QString pixelFormat;
        QSize size; // upright, in pixels
        bool squarePixels = true;
        qint64 bitsPerSecond = 0;
    };
    struct Sound {
        int index = 0;
        QString codec;
        int channels = 0;
        qint64 bitsPerSecond = 0; // 0 if unknown
    };

    Video video;
    std::optional<Sound> sound;
    qint64 microseconds = 0; // 0 if the file does not say
    qint64 fileBytes = 0;

    // Asks ffprobe; blocks for about a tenth of a second, and until the limit at most. Null, with the error placed, for
    // what is no video, has no pictures or no length. Thread: any.
    static std::optional<MediaInfo> ofAsset(const AVAsset &asset, std::chrono::milliseconds limit,
                                            const std::stop_token &cancellation, std::optional<NSError> *error);
};

} // namespace korvane
