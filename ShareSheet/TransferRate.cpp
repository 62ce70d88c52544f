// How fast an upload goes, and how long it still takes.
#include "ShareSheet/TransferRate.h"

#include <cmath>

namespace korvane {
namespace {

constexpr double memoryMilliseconds = 10'000;
constexpr qint64 leastMilliseconds = 1'000; // of watching, before there is a word on it
constexpr double standstill = 16;           // bytes a second

} // namespace

void TransferRate::add(qint64 bytesSent, qint64 time) {
    if (_firstTime < 0 || bytesSent < _bytesSent) {
        *this = TransferRate();
        _firstTime = _lastTime = time;
        _bytesSent = bytesSent;
        return;
    }
    const double passed = double(time - _lastTime);
    if (passed <= 0) return;
    const double share = 1 - std::exp(-passed / memoryMilliseconds);
    const double now = double(bytesSent - _bytesSent) * 1000 / passed;
    _smoothed += share * (now - _smoothed);
    _weight += share * (1 - _weight);
    _lastTime = time;
    _bytesSent = bytesSent;
}

// The beginning counts as if it had always been so, not as a slow rise from nothing.
std::optional<double> TransferRate::bytesPerSecond() const {
    if (_firstTime < 0 || _lastTime - _firstTime < leastMilliseconds) return std::nullopt;
    return _smoothed / _weight;
}

std::optional<qint64> TransferRate::secondsLeft(qint64 bytesTotal) const {
    const auto rate = bytesPerSecond();
    if (!rate || *rate < standstill || bytesTotal <= 0) return std::nullopt;
    return qint64(std::ceil(double(bytesTotal - _bytesSent) / *rate));
}

} // namespace korvane
