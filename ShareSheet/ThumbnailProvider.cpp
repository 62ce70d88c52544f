// Gives the window's pages small pictures of files.
#include "ShareSheet/ThumbnailProvider.h"

namespace korvane {
namespace {

constexpr int usualEdge = 256;
constexpr int largestEdge = 1024;

class Response;

// Where the answer goes; nowhere after the response's end.
struct Recipient {
    std::mutex mutex;
    Response *response = nullptr;
};

// Says once that it is finished, also where it was cancelled; who asked deletes it after that, or at the window's end.
class Response : public QQuickImageResponse {
public:
    Response(ThumbnailQueue &queue, const ThumbnailQueue::Order &order) : _recipient(std::make_shared<Recipient>()) {
        _recipient->response = this;
        queue.ask(order, _wanted.get_token(), [recipient = _recipient](const QImage &image) {
            const std::lock_guard lock(recipient->mutex);
            if (recipient->response) recipient->response->_arrived(image);
        });
    }
    ~Response() override {
        const std::lock_guard lock(_recipient->mutex);
        _recipient->response = nullptr;
        _wanted.request_stop();
    }
    // Where there is none, nothing is shown, and nothing said: the tile says what it stands for.
    QQuickTextureFactory *textureFactory() const override {
        QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        return QQuickTextureFactory::textureFactoryForImage(_image.isNull() ? nothing : _image);
    }
    void cancel() override { _wanted.request_stop(); }

private:
    void _arrived(const QImage &image) {
        _image = image;
        QMetaObject::invokeMethod(
            this, [this] { Q_EMIT finished(); }, Qt::QueuedConnection);
    }

    const std::shared_ptr<Recipient> _recipient;
    std::stop_source _wanted;
    QImage _image;
};

} // namespace

QString ThumbnailProvider::address(const QByteArray &path, bool isVideo) {
    return address(path, 0, -1, isVideo);
}

QString ThumbnailProvider::address(const QByteArray &path, qint64 offset, qint64 length, bool isVideo) {
    return QStringLiteral("image://%1/%2/%3/%4/%5")
        .arg(name(), isVideo ? QStringLiteral("video") : QStringLiteral("photo"))
        .arg(offset)
        .arg(length)
        .arg(QString::fromLatin1(path.toHex()));
}

ThumbnailProvider::ThumbnailProvider(ThumbnailQueue::Maker maker) : _queue(std::move(maker)) {}

QQuickImageResponse *ThumbnailProvider::requestImageResponse(const QString &id, const QSize &requestedSize) {
    ThumbnailQueue::Order order;
    const QStringList parts = id.split(u'/');
    order.isVideo = parts.value(0) == QLatin1String("video");
    order.offset = parts.value(1).toLongLong();
    order.length = parts.value(2).toLongLong();
    order.path = QByteArray::fromHex(parts.value(3).toLatin1());
    const int edge = std::max(requestedSize.width(), requestedSize.height());
    order.edge = edge > 0 ? std::min(edge, largestEdge) : usualEdge;
    return new Response(_queue, order);
}

} // namespace korvane
