// Thumbnails in the making.
#include "ShareSheet/ThumbnailQueue.h"

#include "Platform/Foundation/Dispatch.h"

#include <utility>
#include <vector>

namespace korvane {
namespace {

QByteArray keyOf(const ThumbnailQueue::Order &order) {
    return QByteArray::number(order.edge) + (order.isVideo ? 'v' : 'p') + QByteArray::number(order.offset) + order.path;
}

} // namespace

ThumbnailQueue::ThumbnailQueue(Maker maker) : _state(std::make_shared<State>()) {
    _state->maker = std::move(maker);
}

ThumbnailQueue::~ThumbnailQueue() {
    const std::lock_guard lock(_state->mutex);
    _state->isEnding = true;
}

void ThumbnailQueue::ask(const Order &order, const std::stop_source &wanted, Answer answer) {
    std::unique_lock lock(_state->mutex);
    if (const QImage *known = _state->made.object(keyOf(order))) {
        const QImage image = *known;
        lock.unlock();
        return answer(image);
    }
    _state->waiting.push_back({order, wanted, std::move(answer)});
    lock.unlock();
    _startMore(_state);
}

void ThumbnailQueue::dropCancelled() {
    std::vector<Job> dropped;
    std::unique_lock lock(_state->mutex);
    for (auto job = _state->waiting.begin(); job != _state->waiting.end();)
        if (job->wanted.stop_requested()) {
            dropped.push_back(std::move(*job));
            job = _state->waiting.erase(job);
        } else {
            ++job;
        }
    lock.unlock();
    for (const Job &job : dropped)
        job.answer({});
}

void ThumbnailQueue::_startMore(const std::shared_ptr<State> &state) {
    const std::lock_guard lock(state->mutex);
    while (state->running < mostAtATime && !state->waiting.empty()) {
        ++state->running;
        dispatchGlobal([state, job = std::move(state->waiting.front())] { _run(state, job); });
        state->waiting.pop_front();
    }
}

void ThumbnailQueue::_run(const std::shared_ptr<State> &state, const Job &job) {
    QImage image;
    {
        std::unique_lock lock(state->mutex);
        const bool isWanted = !state->isEnding && !job.wanted.stop_requested();
        lock.unlock();
        if (isWanted) image = state->maker(job.order, job.wanted.get_token());
        lock.lock();
        --state->running;
        if (!image.isNull()) state->made.insert(keyOf(job.order), new QImage(image), image.sizeInBytes());
    }
    job.answer(image);
    _startMore(state);
}

} // namespace korvane
