// Thumbnails in the making: a few at a time, those that are wanted now.
#pragma once

#include <QByteArray>
#include <QCache>
#include <QImage>

#include <deque>
#include <functional>
#include <memory>
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
    ~ThumbnailQueue(); // nothing is made any more

    // What can be told at once is told within the call. Stopping the token's source cancels.
    void ask(const Order &order, const std::stop_source &wanted, Answer answer);
    // Tells those whose token has been stopped.
    void dropCancelled();

    static constexpr int mostAtATime = 2;
    static constexpr int largestCache = 24 * 1024 * 1024; // bytes

private:
    struct Job {
        Order order;
        std::stop_source wanted;
        Answer answer;
    };
    struct State {
        std::mutex mutex;
        Maker maker;
        std::deque<Job> waiting;
        int running = 0;
        bool isEnding = false;
        QCache<QByteArray, QImage> made{largestCache};
    };

    static void _startMore(const std::shared_ptr<State> &state);
    static void _run(const std::shared_ptr<State> &state, const Job &job);

    std::shared_ptr<State> _state;
};

} // namespace korvane
