#include "StandIn/MultipartReader.h"

#include <QByteArrayList>

#include <algorithm>
#include <cstring>

namespace standin {

namespace {

constexpr qsizetype LongestHeader = 16 * 1024;
constexpr qsizetype CarryStep = 4 * 1024;

const void *found(const char *data, qsizetype size, const QByteArray &what) {
    return memmem(data, size_t(size), what.constData(), size_t(what.size()));
}

// How many bytes at the end may be the beginning of the delimiter.
qsizetype openEnd(const char *data, qsizetype size, const QByteArray &delimiter) {
    const qsizetype reach = std::min(size, delimiter.size() - 1);
    const char *end = data + size;
    for (const char *at = end - reach; at < end; ++at) {
        at = static_cast<const char *>(memchr(at, '\r', size_t(end - at)));
        if (!at) return 0;
        if (memcmp(at, delimiter.constData(), size_t(end - at)) == 0) return end - at;
    }
    return 0;
}

// Reads a quoted string that begins at `at`; leaves `at` behind the closing quote.
std::optional<QByteArray> quotedString(const QByteArray &text, qsizetype &at) {
    if (at >= text.size() || text.at(at) != '"') return std::nullopt;
    QByteArray value("");
    for (++at; at < text.size(); ++at) {
        if (text.at(at) == '"') {
            ++at;
            return value;
        }
        const bool escaped =
            text.at(at) == '\\' && at + 1 < text.size() && (text.at(at + 1) == '"' || text.at(at + 1) == '\\');
        if (escaped) ++at;
        value.append(text.at(at));
    }
    return std::nullopt;
}

} // namespace

MultipartReader::MultipartReader(const QByteArray &boundary, PartReceiver &receiver)
    : _delimiter("\r\n--" + boundary), _receiver(receiver) {}

bool MultipartReader::feed(const char *data, qsizetype size) {
    while (size > 0 && _error.isEmpty()) {
        if (_carry.isEmpty()) {
            const qsizetype used = _take(data, size);
            _carry.append(data + used, size - used);
            break;
        }
        const qsizetype step = std::min(size, CarryStep);
        _carry.append(data, step);
        data += step;
        size -= step;
        _carry.remove(0, _take(_carry.constData(), _carry.size()));
    }
    return _error.isEmpty();
}

bool MultipartReader::finish() {
    const bool complete = _state == State::Done || (_state == State::Closing && _carry.isEmpty());
    if (_error.isEmpty() && !complete) _error = "the body ends before the final boundary";
    return _error.isEmpty();
}

std::optional<QByteArray> MultipartReader::boundaryOf(const QByteArray &contentType) {
    const QByteArrayList pieces = contentType.split(';');
    if (pieces.first().trimmed().toLower() != "multipart/form-data") return std::nullopt;
    for (const QByteArray &piece : pieces.mid(1)) {
        const QByteArray parameter = piece.trimmed();
        if (parameter.left(9).toLower() != "boundary=") continue;
        QByteArray boundary = parameter.mid(9);
        if (boundary.size() >= 2 && boundary.startsWith('"') && boundary.endsWith('"'))
            boundary = boundary.mid(1, boundary.size() - 2);
        const bool legal = !boundary.isEmpty() && boundary.size() <= 70 && !boundary.endsWith(' ');
        return legal ? std::optional(boundary) : std::nullopt;
    }
    return std::nullopt;
}

qsizetype MultipartReader::_take(const char *data, qsizetype size) {
    qsizetype used = 0;
    while (_error.isEmpty() && used < size) {
        const qsizetype step = _step(data + used, size - used);
        if (step == 0) break;
        used += step;
    }
    return used;
}

qsizetype MultipartReader::_step(const char *data, qsizetype size) {
    switch (_state) {
    case State::Start:
        return _start(data, size);
    case State::AfterDelimiter:
        return _afterDelimiter(data, size);
    case State::Header:
        return _header(data, size);
    case State::Data:
        return _data(data, size);
    case State::Closing:
        return _closing(data, size);
    case State::Done:
        break;
    }
    return _refuse("bytes follow the final boundary");
}

qsizetype MultipartReader::_start(const char *data, qsizetype size) {
    const qsizetype length = _delimiter.size() - 2;
    if (memcmp(data, _delimiter.constData() + 2, size_t(std::min(size, length))) != 0)
        return _refuse("the body does not begin with the boundary");
    if (size < length) return 0;
    _state = State::AfterDelimiter;
    return length;
}

qsizetype MultipartReader::_afterDelimiter(const char *data, qsizetype size) {
    if (size < 2) return 0;
    if (memcmp(data, "\r\n", 2) == 0)
        _state = State::Header;
    else if (memcmp(data, "--", 2) == 0)
        _state = State::Closing;
    else
        return _refuse("a boundary is not followed by CRLF");
    return 2;
}

qsizetype MultipartReader::_header(const char *data, qsizetype size) {
    const void *end = found(data, size, "\r\n\r\n");
    const qsizetype length = end ? static_cast<const char *>(end) - data : size;
    if (length > LongestHeader) return _refuse("a part's header is too long");
    if (size >= 2 && memcmp(data, "\r\n", 2) == 0) return _refuse("a part has no header");
    if (!end) return 0;
    PartHeader header;
    if (!_parseHeader(QByteArray(data, length), &header)) return 0;
    if (!_receiver.partBegan(header)) return _refuse(_receiver.refusal());
    _state = State::Data;
    return length + 4;
}

qsizetype MultipartReader::_data(const char *data, qsizetype size) {
    const void *end = found(data, size, _delimiter);
    const qsizetype length = end ? static_cast<const char *>(end) - data : size - openEnd(data, size, _delimiter);
    if (!_deliver(data, length)) return _refuse(_receiver.refusal());
    if (!end) return length;
    if (!_receiver.partEnded()) return _refuse(_receiver.refusal());
    _state = State::AfterDelimiter;
    return length + _delimiter.size();
}

qsizetype MultipartReader::_closing(const char *data, qsizetype size) {
    if (size < 2 && data[0] == '\r') return 0;
    if (size < 2 || memcmp(data, "\r\n", 2) != 0) return _refuse("bytes follow the final boundary");
    _state = State::Done;
    return 2;
}

bool MultipartReader::_deliver(const char *data, qsizetype size) {
    return size == 0 || _receiver.partData(data, size);
}

bool MultipartReader::_parseHeader(const QByteArray &block, PartHeader *header) {
    bool disposed = false;
    QByteArray rest = block;
    while (!rest.isNull()) {
        const qsizetype end = rest.indexOf("\r\n");
        const QByteArray line = end < 0 ? rest : rest.left(end);
        rest = end < 0 ? QByteArray() : rest.mid(end + 2);
        if (line.contains('\n') || line.contains('\r'))
            return _refuse("a part's header has a line that does not end with CRLF");
        const qsizetype colon = line.indexOf(':');
        if (colon <= 0 || line.at(0) == ' ' || line.at(0) == '\t')
            return _refuse("a part's header has a malformed line");
        const QByteArray name = line.left(colon).toLower();
        const QByteArray value = line.mid(colon + 1).trimmed();
        if (name == "content-type") header->contentType = value;
        if (name != "content-disposition") continue;
        if (disposed) return _refuse("a part has two Content-Disposition headers");
        disposed = true;
        if (!_parseDisposition(value, header)) return _refuse("a part's Content-Disposition is malformed");
    }
    return disposed || _refuse("a part has no Content-Disposition header");
}

bool MultipartReader::_parseDisposition(const QByteArray &value, PartHeader *header) {
    if (value.left(9).toLower() != "form-data") return false;
    std::optional<QByteArray> name;
    qsizetype at = 9;
    while (at < value.size()) {
        if (value.at(at++) != ';') return false;
        while (at < value.size() && value.at(at) == ' ')
            ++at;
        const qsizetype equals = value.indexOf('=', at);
        if (equals < 0) return false;
        const QByteArray key = value.mid(at, equals - at).toLower();
        at = equals + 1;
        const auto text = quotedString(value, at);
        if (!text) return false;
        if (key == "name" && name) return false;
        if (key == "name") name = text;
        if (key == "filename") header->fileName = text;
    }
    header->name = name.value_or(QByteArray());
    return name && !name->isEmpty();
}

qsizetype MultipartReader::_refuse(const QByteArray &reason) {
    if (_error.isEmpty()) _error = reason;
    return 0;
}

} // namespace standin
