// Thumbnails in the making: a few at a time, those that are wanted now.
#pragma once

#include <QByteArray>
#include <QCache>
#include <QImage>
#include <QThreadPool>

#include <functional>
#include <mutex>
#include <stop_token>

namespace korvane {

// Thread: any.
class ThumbnailQueue {
public:
    struct Order {
        QByteArray path; // in the file system's own bytes
        bool isVideo = false;
        int edge = 0;       // pixels that the longer edge may have
        qint64 offset = 0;  // where it begins in that file, and
        qint64 length = -1; // its bytes; below 0: to the end
    };
    // Hears the picture once, on any thread; a null one where there is none, or where it is no longer wanted.
    using Answer = std::function<void(const QImage &)>;
    // Blocks; returns a null picture where there is none. A request to stop ends it early.
    using Maker = std::function<QImage(const Order &, std::stop_token)>;

    explicit ThumbnailQueue(Maker maker);
    ~ThumbnailQueue(); // tells all who still wait that there is none; returns when nothing runs any more

    // What was made already, of the file as it is now, is told within the call. Stopping the token's source cancels.
    void ask(const Order &order, const std::stop_token &wanted, const Answer &answer);

    static constexpr int mostAtATime = 2;
    static constexpr int largestCache = 24 * 1024 * 1024; // bytes

private:
    QImage _known(const QByteArray &key);
    QImage _made(const Order &order, const std::stop_token &wanted);

    const Maker _maker;
    std::stop_source _ending;
    std::mutex _mutex;
    QCache<QByteArray, QImage> _cache{largestCache};
    QThreadPool _pool; // the first to go
};

} // namespace korvane
