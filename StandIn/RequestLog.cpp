#include "StandIn/RequestLog.h"

#include <algorithm>

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

std::vector<Request> RequestLog::requests() const {
    const std::lock_guard lock(_mutex);
    return _requests;
}

size_t RequestLog::countOfAnswered() const {
    const std::lock_guard lock(_mutex);
    return size_t(std::ranges::count_if(_requests, [](const Request &request) { return request.status != 0; }));
}

} // namespace standin
