// How far ffmpeg says it is.
#include "Platform/AVFoundation/ExportProgress.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr qsizetype longestLine = 1024;

bool isKey(const QByteArray &text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
    });
}

} // namespace

void ExportProgress::take(const QByteArray &piece) {
    _pending += piece;
    for (qsizetype end; _isUnderstood && (end = _pending.indexOf('\n')) >= 0;) {
        _takeLine(_pending.left(end));
        _pending.remove(0, end + 1);
    }
    if (_pending.size() > longestLine) _isUnderstood = false;
    if (!_isUnderstood) _pending.clear();
}

void ExportProgress::_takeLine(const QByteArray &line) {
    const qsizetype equals = line.indexOf('=');
    const QByteArray value = line.mid(equals + 1).trimmed();
    _isUnderstood = equals > 0 && isKey(line.left(equals));
    if (!_isUnderstood || line.left(equals) != "out_time_us" || value == "N/A") return;
    const qint64 microseconds = value.toLongLong(&_isUnderstood);
    _microseconds = std::max(_microseconds, microseconds);
}

} // namespace korvane
