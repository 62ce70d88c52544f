// The requests that the services received, in the order of arrival.
#pragma once

#include "StandIn/Parameters.h"

#include <mutex>
#include <vector>

namespace standin {

struct Request {
    QByteArray operation; // as faults name it; empty when the request did not get so far
    QByteArray method;
    QByteArray path; // as sent, without the query
    Parameters headers;
    Parameters parameters; // decoded: query, then form or text parts, in the order sent
    qint64 bodyBytes = 0;  // as many as arrived
    QByteArray photoContentType;
    QByteArray photoFileName;
    qint64 photoBytes = 0;  // as many as arrived
    QByteArray photoSha256; // hexadecimal; empty when the photo did not arrive in full or bodies are not kept
    int status = 0;         // 0: none was sent (yet)
    QByteArray oauthNonce;
    QByteArray oauthTimestamp;
    qint64 photoId = 0; // given to the photo of this request; 0 for none
};

// Thread: any.
class RequestLog {
public:
    explicit RequestLog(bool enabled) : _enabled(enabled) {}

    bool isEnabled() const { return _enabled; }
    size_t begin(const Request &request);
    void update(size_t index, const Request &request);
    // The last update; counts the request where it was answered, also when requests are not kept.
    void end(size_t index, const Request &request);
    std::vector<Request> requests() const;
    size_t countOfAnswered() const;

private:
    const bool _enabled;
    mutable std::mutex _mutex;
    std::vector<Request> _requests;
    size_t _answered = 0;
};

} // namespace standin
