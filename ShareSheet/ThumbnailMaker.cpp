// Small pictures of photo and video files.
#include "ShareSheet/ThumbnailMaker.h"

#include "Platform/AVFoundation/MediaProgram.h"
#include "Platform/ImageIO/PictureProgram.h"

namespace korvane {
namespace {

constexpr std::chrono::seconds longestLook(20);
constexpr qint64 mostBytes = 4 << 20; // of a small picture; its program is not trusted with more of our memory

QImage decoded(const QByteArray &bytes) {
    const QImage image = QImage::fromData(bytes, "JPEG");
    return image.isNull() ? image : image.convertToFormat(QImage::Format_RGB32);
}

QImage ofPhoto(const NSData &photo, int edge, const std::stop_token &wanted) {
    const auto jpeg = PictureProgram::thumbnail(photo, edge, wanted);
    if (!jpeg || jpeg->length() > mostBytes) return {};
    QByteArray bytes(jpeg->length(), Qt::Uninitialized);
    return jpeg->getBytes(bytes.data(), 0, bytes.size()) == bytes.size() ? decoded(bytes) : QImage();
}

// Of the first frames the one that is most like the others: the very first is often black.
QImage ofVideo(const NSData &video, int edge, const std::stop_token &wanted) {
    const QByteArray size = QByteArray::number(edge);
    const AVAsset asset{{}, video, {}};
    auto ffmpeg = MediaProgram::make(
        "ffmpeg", asset,
        {"-map", "0:v:0", "-vf", "thumbnail=25,scale=" + size + ':' + size + ":force_original_aspect_ratio=decrease",
         "-frames:v", "1", "-f", "image2pipe", "-c:v", "mjpeg", "-q:v", "3", "pipe:1"});
    QByteArray bytes;
    ffmpeg.setOutputHandler([&](const QByteArray &piece) {
        if (bytes.size() <= mostBytes) bytes += piece;
    });
    ffmpeg.setTimeLimit(longestLook);
    ffmpeg.setCancellation(wanted);
    const auto result = ffmpeg.run();
    return result && result->succeeded() && bytes.size() <= mostBytes ? decoded(bytes) : QImage();
}

} // namespace

QImage ThumbnailMaker::make(const ThumbnailQueue::Order &order, std::stop_token wanted) {
    auto data = NSData::dataWithContentsOfFile(order.path);
    if (!data) return {};
    if (order.length >= 0) data = data->subdata(order.offset, order.length);
    return order.isVideo ? ofVideo(*data, order.edge, wanted) : ofPhoto(*data, order.edge, wanted);
}

} // namespace korvane
