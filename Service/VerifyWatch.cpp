// Tells a video that is getting nowhere from one that is slow.
#include "Service/VerifyWatch.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr int patience = 20;
constexpr quint64 chunkSize = 2'097'152;

} // namespace

bool VerifyWatch::heard(quint64 bytesStored) {
    _withoutAdvance = bytesStored > _last ? 0 : _withoutAdvance + 1;
    _withoutRecord = bytesStored > _most ? 0 : _withoutRecord + 1;
    _last = bytesStored;
    _most = std::max(_most, bytesStored);
    return _withoutAdvance < patience && _withoutRecord < patience + _most / chunkSize;
}

} // namespace korvane
