// What one upload job sees of its requests on the wire, and how it ends them.
#pragma once

#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/NSError.h"

#include <QByteArray>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>

namespace korvane {

// Hangs on the account object of one job; every request prepared for that account carries it to the send. The upload
// code above knows nothing of it. Thread: any; one mutex guards the numbers.
class UploadContext {
public:
    // Of the current request.
    struct Snapshot {
        qint64 bytesSent = 0;  // of the body, without what still waits in the socket
        qint64 bytesTotal = 0; // of the body
        bool wasSent = false;  // a connection for the request stood, and it went out
        // 0, null and empty until the request has ended.
        int httpStatus = 0; // 0 also where it was not answered
        std::optional<NSError> transportError = {};
        QByteArray answer = {}; // the first 64 KiB of what it was answered
    };

    Snapshot snapshot() const;

    // Ends the current send, and every later one, with NSURLErrorCancelled. There is no way back.
    void cancel();
    bool isCancelled() const { return _cancellation.stop_requested(); }
    // For work of the job that is no request: asked to stop by cancel(), on the thread that calls it.
    std::stop_token cancellation() const { return _cancellation.get_token(); }

    // For the send: a request of bytesTotal body bytes begins; wake interrupts its wait when the job is cancelled.
    void requestBegan(qint64 bytesTotal, std::function<void()> wake);
    void requestGoesOut();
    void requestSent(qint64 bytesSent);
    void requestEnded(int httpStatus, const std::optional<NSError> &error, const QByteArray &answer);

    // Where the request layer delivers the job's answers, one after another. Made on first use.
    SerialQueue &answerQueue();

private:
    mutable std::mutex _mutex;
    Snapshot _snapshot;
    std::function<void()> _wake;
    std::stop_source _cancellation;
    std::unique_ptr<SerialQueue> _answerQueue;
};

} // namespace korvane
