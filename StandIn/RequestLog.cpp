#include "StandIn/RequestLog.h"

namespace standin {

size_t RequestLog::begin(const Request &request) {
    const std::lock_guard lock(_mutex);
    if (_enabled) _requests.push_back(request);
    return _requests.size() - 1;
}

void RequestLog::update(size_t index, const Request &request) {
    const std::lock_guard lock(_mutex);
    if (_enabled) _requests.at(index) = request;
}

void RequestLog::end(size_t index, const Request &request) {
    update(index, request);
    const std::lock_guard lock(_mutex);
    if (request.status != 0) ++_answered;
}

std::vector<Request> RequestLog::requests() const {
    const std::lock_guard lock(_mutex);
    return _requests;
}

size_t RequestLog::countOfAnswered() const {
    const std::lock_guard lock(_mutex);
    return _answered;
}

} // namespace standin
