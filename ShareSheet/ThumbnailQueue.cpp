// Thumbnails in the making.
#include "ShareSheet/ThumbnailQueue.h"

#include "Platform/Foundation/NSData.h"

#include <utility>

namespace korvane {
namespace {

// Another one once the file has changed.
QByteArray keyOf(const ThumbnailQueue::Order &order) {
    const FileIdentity file = FileIdentity::ofPath(order.path).value_or(FileIdentity());
    QByteArray key = order.isVideo ? "v" : "p";
    for (const qint64 number : {qint64(order.edge), order.offset, order.length, file.size, file.modifiedNanoseconds})
        key += QByteArray::number(number) + ' ';
    return key + order.path;
}

} // namespace

ThumbnailQueue::ThumbnailQueue(Maker maker) : _maker(std::move(maker)) {
    _pool.setMaxThreadCount(mostAtATime);
}

ThumbnailQueue::~ThumbnailQueue() {
    _ending.request_stop();
    _pool.waitForDone();
}

void ThumbnailQueue::ask(const Order &order, const std::stop_token &wanted, const Answer &answer) {
    const QByteArray key = keyOf(order);
    if (const QImage known = _known(key); !known.isNull()) return answer(known);
    _pool.start([this, order, key, wanted, answer] {
        const QImage image = _made(order, wanted);
        if (!image.isNull()) {
            const std::lock_guard lock(_mutex);
            _cache.insert(key, new QImage(image), image.sizeInBytes());
        }
        answer(image);
    });
}

QImage ThumbnailQueue::_known(const QByteArray &key) {
    const std::lock_guard lock(_mutex);
    const QImage *known = _cache.object(key);
    return known ? *known : QImage();
}

// Ends early where who asked has gone, and where all ends.
QImage ThumbnailQueue::_made(const Order &order, const std::stop_token &wanted) {
    std::stop_source stop;
    const auto end = [&stop] { stop.request_stop(); };
    const std::stop_callback whenLeft(wanted, end);
    const std::stop_callback whenEnding(_ending.get_token(), end);
    return stop.stop_requested() ? QImage() : _maker(order, stop.get_token());
}

} // namespace korvane
