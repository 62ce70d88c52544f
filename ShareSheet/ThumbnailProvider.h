// Gives the window's pages small pictures of files.
#pragma once

#include "ShareSheet/ThumbnailQueue.h"

#include <QQuickAsyncImageProvider>

namespace korvane {

// Pages ask with address() as an Image's source, and set its sourceSize.
class ThumbnailProvider : public QQuickAsyncImageProvider {
public:
    static QString name() { return QStringLiteral("thumbnail"); }
    static QString address(const QByteArray &path, bool isVideo);
    // Of a photo or video that is a part of the file.
    static QString address(const QByteArray &path, qint64 offset, qint64 length, bool isVideo);

    explicit ThumbnailProvider(ThumbnailQueue::Maker maker);

    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &requestedSize) override;

private:
    ThumbnailQueue _queue;
};

} // namespace korvane
