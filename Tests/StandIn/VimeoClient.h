// A client that uploads a video step by step, signed on its own, with every byte under the test's control.
#pragma once

#include "Tests/StandIn/RawClient.h"

#include <QJsonValue>

#include <chrono>
#include <thread>

namespace standin::test {

class VimeoClient : public RawClient {
public:
    explicit VimeoClient(const StandIn &server) : RawClient(server) {}

    // The answer's JSON.
    QJsonValue method(const QByteArray &name, const Parameters &parameters = {});
    RawReply rest(const Parameters &form, const QByteArray &query = "format=json");

    // The path and query of a fresh ticket's endpoint.
    QByteArray ticket();
    // Sends a PUT with these header lines besides Host, Authorization and Content-Length.
    RawReply put(const QByteArray &target, const QByteArray &headers, const QByteArray &body);
    RawReply chunk(const QByteArray &target, const QByteArray &bytes, const QByteArray &range = {});
    // What the answer's Range header says; -1 without one.
    qint64 verify(const QByteArray &target);
    QJsonValue commit(const QByteArray &target) {
        return method("upload.complete", {{"ticket_id", target.mid(18)}, {"filename", "video.mp4"}});
    }

    QByteArray signedAs(const QByteArray &verb, const QByteArray &target, const Parameters &form = {}) const;
};

// Until the predicate holds; false after ten seconds.
template <typename Predicate>
bool waitFor(Predicate predicate) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!predicate() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    return predicate();
}

// Different bytes for each seed.
QByteArray video(qsizetype size, quint32 seed = 1);
// The value of the answer's header line; empty when there is none.
QByteArray headerIn(const RawReply &reply, const QByteArray &name);

} // namespace standin::test
