// What one upload job sees of its requests on the wire, and how it ends them.
#include "Platform/Foundation/UploadContext.h"

namespace korvane {
namespace {

constexpr qsizetype longestAnswer = 65536; // refusals have room in it, whatever they explain

} // namespace

UploadContext::Snapshot UploadContext::snapshot() const {
    const std::lock_guard lock(_mutex);
    return _snapshot;
}

void UploadContext::cancel() {
    _cancellation.request_stop();
    const std::lock_guard lock(_mutex);
    if (_wake) _wake();
}

void UploadContext::requestBegan(qint64 bytesTotal, std::function<void()> wake) {
    const std::lock_guard lock(_mutex);
    _snapshot.bytesSent = 0;
    _snapshot.bytesTotal = bytesTotal;
    _snapshot.wasSent = false;
    _snapshot.httpStatus = 0;
    _snapshot.transportError.reset();
    _snapshot.answer.clear();
    _wake = std::move(wake);
}

void UploadContext::requestGoesOut() {
    const std::lock_guard lock(_mutex);
    _snapshot.wasSent = true;
}

void UploadContext::requestSent(qint64 bytesSent) {
    const std::lock_guard lock(_mutex);
    _snapshot.bytesSent = bytesSent;
}

void UploadContext::requestEnded(int httpStatus, const std::optional<NSError> &error, const QByteArray &answer) {
    const std::lock_guard lock(_mutex);
    _snapshot.httpStatus = httpStatus;
    _snapshot.transportError = error;
    _snapshot.answer = answer.left(longestAnswer);
    _wake = nullptr;
}

SerialQueue &UploadContext::answerQueue() {
    const std::lock_guard lock(_mutex);
    if (!_answerQueue) _answerQueue = std::make_unique<SerialQueue>();
    return *_answerQueue;
}

} // namespace korvane
