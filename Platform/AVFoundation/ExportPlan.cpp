// How a video is exported: what is copied, what is encoded, and how.
#include "Platform/AVFoundation/ExportPlan.h"

#include "Platform/AVFoundation/AVAssetExportSession.h"

#include <algorithm>
#include <cmath>

namespace korvane {
namespace {

struct Quality {
    QSize box; // of a wide picture; turned for a tall one
    qint64 videoRate;
    qint64 soundRate; // of two channels
};

constexpr Quality low = {{640, 360}, 600'000, 96'000};
constexpr Quality medium = {{1280, 720}, 2'500'000, 128'000};
constexpr Quality highest = {{1920, 1080}, 10'000'000, 192'000};

constexpr qint64 leastVideoRate = 100'000;
constexpr qint64 leastSoundRate = 32'000;
constexpr qint64 containerBytesPerSecond = 900; // tables of samples
constexpr qint64 containerBytes = 2'000;

const Quality &qualityNamed(const std::optional<QString> &presetName) {
    if (presetName == AVAssetExportPresetLowQuality) return low;
    return presetName == AVAssetExportPresetMediumQuality ? medium : highest;
}

int evenFloor(double side) {
    return std::max(2, int(side) / 2 * 2);
}

QSize sizeWithin(QSize box, QSize source) {
    if (source.width() < source.height()) box.transpose();
    const double factor = std::min({1.0, double(box.width()) / source.width(), double(box.height()) / source.height()});
    // A little more, so that a side which should come out whole is not cut by rounding.
    return {evenFloor(source.width() * factor + 0.01), evenFloor(source.height() * factor + 0.01)};
}

// Fewer pixels need fewer bits, but not in full proportion.
double shareOf(QSize part, QSize whole) {
    return std::pow(double(part.width()) * part.height() / (double(whole.width()) * whole.height()), 0.75);
}

// How many bits of H.264 show what one bit of the codec shows.
double worthOf(const QString &codec) {
    for (const char *modern : {"hevc", "vp9", "av1", "vvc"})
        if (codec == QLatin1String(modern)) return 1.7;
    return 1;
}

qint64 videoRateFor(const MediaInfo::Video &video, const Quality &quality, QSize size) {
    const double wanted = double(quality.videoRate) * shareOf(size, quality.box);
    if (video.bitsPerSecond <= 0) return std::max(leastVideoRate, qint64(wanted));
    const double spent = double(video.bitsPerSecond) * worthOf(video.codec) * shareOf(size, video.size);
    return std::max(leastVideoRate, qint64(std::min(wanted, spent)));
}

qint64 soundRateFor(const MediaInfo::Sound &sound, const Quality &quality) {
    const qint64 wanted = sound.channels == 1 ? quality.soundRate / 2 : quality.soundRate;
    return sound.bitsPerSecond <= 0 ? wanted : std::clamp(sound.bitsPerSecond, leastSoundRate, wanted);
}

bool isPlainH264(const MediaInfo::Video &video) {
    return video.codec == QLatin1String("h264") &&
           (video.pixelFormat == QLatin1String("yuv420p") || video.pixelFormat == QLatin1String("yuvj420p"));
}

} // namespace

ExportPlan::ExportPlan(const MediaInfo &info, const std::optional<QString> &presetName, bool mayCopy) : _info(info) {
    const Quality &quality = qualityNamed(presetName);
    mayCopy = mayCopy && &quality == &highest;
    _copiesVideo = mayCopy && isPlainH264(info.video);
    _copiesSound = mayCopy && info.sound && info.sound->codec == QLatin1String("aac");
    _size = _copiesVideo ? info.video.size : sizeWithin(quality.box, info.video.size);
    _videoRate = _copiesVideo ? info.video.bitsPerSecond : videoRateFor(info.video, quality, _size);
    if (info.sound) _soundRate = _copiesSound ? info.sound->bitsPerSecond : soundRateFor(*info.sound, quality);
}

QByteArrayList ExportPlan::arguments() const {
    const auto number = [](qint64 value) { return QByteArray::number(value); };
    QByteArrayList arguments{"-map", "0:" + number(_info.video.index)};
    if (_info.sound) arguments += {"-map", "0:" + number(_info.sound->index)};
    if (_copiesVideo) {
        arguments += {"-c:v", "copy"};
    } else {
        const QByteArray scale = "scale=" + number(_size.width()) + ':' + number(_size.height());
        const QByteArray peak = number(_videoRate * 3 / 2); // held over a second
        arguments += {"-vf", _info.video.squarePixels ? scale + ",setsar=1" : scale};
        arguments += {"-c:v", "libx264", "-preset", "veryfast", "-pix_fmt", "yuv420p"};
        arguments += {"-b:v", number(_videoRate), "-maxrate", peak, "-bufsize", peak};
    }
    if (_copiesSound)
        arguments += {"-c:a", "copy"};
    else if (_info.sound)
        arguments += {"-c:a", "aac", "-b:a", number(_soundRate), "-ac", number(std::min(2, _info.sound->channels))};
    return arguments += {"-max_muxing_queue_size", "4096", "-movflags", "+faststart", "-f", "mp4"};
}

qint64 ExportPlan::estimatedLength() const {
    const bool isCopy = _copiesVideo && (_copiesSound || !_info.sound);
    if (isCopy && (_info.sound && _soundRate == 0)) return _info.fileBytes;
    if (_info.microseconds <= 0) return isCopy ? _info.fileBytes : 0;
    const double seconds = double(_info.microseconds) / 1e6;
    const double media = double(_videoRate + _soundRate) / 8 + double(containerBytesPerSecond);
    const auto bytes = qint64(seconds * media) + containerBytes;
    return isCopy ? std::min(bytes, _info.fileBytes) : bytes;
}

} // namespace korvane
