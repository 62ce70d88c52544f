// What a video file holds.
#include "Platform/AVFoundation/MediaInfo.h"

#include "Platform/AVFoundation/AVError.h"
#include "Platform/AVFoundation/MediaProgram.h"
#include "Platform/Foundation/LocalizedText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace korvane {
namespace {

constexpr qsizetype mostOutput = 4 * 1024 * 1024;
constexpr int largestSide = 32768;

// ffprobe writes most numbers as text, and leaves out or calls "N/A" what it does not know.
double numberIn(const QJsonObject &object, const char *key) {
    const QJsonValue value = object.value(QLatin1String(key));
    const double number = value.isString() ? value.toString().toDouble() : value.toDouble();
    return std::isfinite(number) ? number : 0;
}

QString textIn(const QJsonObject &object, const char *key) {
    return object.value(QLatin1String(key)).toString();
}

bool liesOnItsSide(const QJsonObject &stream) {
    for (const QJsonValue &data : stream.value(QLatin1String("side_data_list")).toArray()) {
        const auto degrees = std::lround(numberIn(data.toObject(), "rotation"));
        if (degrees % 180 != 0 && degrees % 90 == 0) return true;
    }
    return false;
}

MediaInfo::Video videoOf(const QJsonObject &stream) {
    MediaInfo::Video video;
    video.index = int(numberIn(stream, "index"));
    video.codec = textIn(stream, "codec_name");
    video.pixelFormat = textIn(stream, "pix_fmt");
    video.size = {int(numberIn(stream, "width")), int(numberIn(stream, "height"))};
    if (liesOnItsSide(stream)) video.size.transpose();
    const QString aspect = textIn(stream, "sample_aspect_ratio");
    video.squarePixels = aspect.isEmpty() || aspect == QLatin1String("1:1") || aspect.startsWith(u'0');
    video.bitsPerSecond = qint64(numberIn(stream, "bit_rate"));
    return video;
}

bool isUsable(const MediaInfo::Video &video) {
    const auto fits = [](int side) { return side > 0 && side <= largestSide; };
    return !video.codec.isEmpty() && fits(video.size.width()) && fits(video.size.height());
}

// The lengths in seconds of the streams chosen, or the file's where a stream has none of its own.
double longest(const QJsonObject &format, const QList<QJsonObject> &streams) {
    double seconds = 0;
    for (const QJsonObject &stream : streams) {
        const double own = numberIn(stream, "duration");
        if (own <= 0) return numberIn(format, "duration");
        seconds = std::max(seconds, own);
    }
    return seconds;
}

// Without pictures and sound where there are none that can be used.
MediaInfo infoIn(const QJsonObject &answer) {
    MediaInfo info;
    QList<QJsonObject> chosen;
    for (const QJsonValue &value : answer.value(QLatin1String("streams")).toArray()) {
        const QJsonObject stream = value.toObject();
        const QString type = textIn(stream, "codec_type");
        const bool isCover = numberIn(stream.value(QLatin1String("disposition")).toObject(), "attached_pic") != 0;
        const auto video = videoOf(stream);
        if (type == QLatin1String("video") && !isCover && !isUsable(info.video) && isUsable(video)) {
            info.video = video;
            chosen.append(stream);
        } else if (type == QLatin1String("audio") && !info.sound && !textIn(stream, "codec_name").isEmpty() &&
                   numberIn(stream, "channels") > 0) {
            info.sound = MediaInfo::Sound{int(numberIn(stream, "index")), textIn(stream, "codec_name"),
                                          int(numberIn(stream, "channels")), qint64(numberIn(stream, "bit_rate"))};
            chosen.append(stream);
        }
    }
    const double seconds = longest(answer.value(QLatin1String("format")).toObject(), chosen);
    info.microseconds = qint64(std::clamp(seconds, 0.0, 1e9) * 1e6);
    return info;
}

// What the file as a whole leaves for the pictures, where the stream itself does not say.
void deduceBitRate(MediaInfo &info) {
    if (info.video.bitsPerSecond > 0 || info.microseconds <= 0) return;
    const double whole = double(info.fileBytes) * 8e6 / double(info.microseconds);
    info.video.bitsPerSecond = std::max<qint64>(0, qint64(whole) - (info.sound ? info.sound->bitsPerSecond : 0));
}

NSError notRecognized(const AVAsset &asset) {
    return avError(AVErrorFileFormatNotRecognized,
                   localizedText("“%1” is not a video that can be read: it is damaged, incomplete or of an unknown "
                                 "format. Check that it plays, or choose another file.",
                                 asset.name));
}

// What ffprobe writes. Null, with the error placed, if it fails.
std::optional<QByteArray> probe(const AVAsset &asset, std::chrono::milliseconds limit,
                                const std::stop_token &cancellation, std::optional<NSError> *error) {
    auto program = MediaProgram::make(
        "ffprobe", asset,
        {"-print_format", "json", "-show_entries",
         "stream=index,codec_type,codec_name,pix_fmt,width,height,sample_aspect_ratio,duration,bit_rate,channels:"
         "stream_disposition=attached_pic:stream_side_data=rotation:format=duration"});
    QByteArray output;
    program.setOutputHandler([&output](const QByteArray &piece) { output += piece; });
    program.setWatch(limit, [&output] { return output.size() <= mostOutput; });
    program.setTimeLimit(limit);
    program.setCancellation(cancellation);
    std::optional<NSError> reason;
    const auto result = program.run(&reason);
    if (result && result->succeeded()) return output;
    if (result && result->ending == ChildProcess::Exited)
        setError(error, notRecognized(asset));
    else if (result && result->ending != ChildProcess::Cancelled)
        setError(error, avError(AVErrorExportFailed, localizedText("“%1” could not be looked at (%2). Try again.",
                                                                   asset.name, result->description())));
    else
        setError(error, MediaProgram::failure(asset, result, reason));
    return std::nullopt;
}

// answer: of ffprobe. Null if the video can be exported.
std::optional<NSError> objectionTo(const MediaInfo &info, const QJsonObject &answer, const AVAsset &asset) {
    if (!answer.contains(QLatin1String("format")))
        return avError(AVErrorExportFailed,
                       localizedText("The answer of ffprobe about “%1” is not understood. Check the package “ffmpeg”.",
                                     asset.name));
    if (!isUsable(info.video) && !info.sound) return notRecognized(asset);
    if (!isUsable(info.video))
        return avError(AVErrorInvalidSourceMedia,
                       localizedText("There are no pictures in “%1”. Choose a file with a video in it.", asset.name));
    // A file that does not say how long it is leaves the key out.
    if (info.microseconds == 0 && answer.value(QLatin1String("format")).toObject().contains(QLatin1String("duration")))
        return avError(AVErrorInvalidSourceMedia,
                       localizedText("“%1” is 0 seconds long. Choose another file.", asset.name));
    return std::nullopt;
}

} // namespace

std::optional<MediaInfo> MediaInfo::ofAsset(const AVAsset &asset, std::chrono::milliseconds limit,
                                            const std::stop_token &cancellation, std::optional<NSError> *error) {
    const auto output = probe(asset, limit, cancellation, error);
    if (!output) return std::nullopt;
    const QJsonObject answer = QJsonDocument::fromJson(*output).object();
    MediaInfo info = infoIn(answer);
    auto objection = objectionTo(info, answer, asset);
    if (objection) {
        setError(error, std::move(objection));
        return std::nullopt;
    }
    info.fileBytes = asset.file->length();
    deduceBitRate(info);
    return info;
}

} // namespace korvane
