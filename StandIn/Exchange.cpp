#include "StandIn/Exchange.h"

namespace standin {

namespace {

QByteArray bytes(const std::string &text) {
    return QByteArray(text.data(), qsizetype(text.size()));
}

Request recordOf(const httplib::Request &request) {
    Request record;
    const QByteArray target = bytes(request.target);
    record.method = bytes(request.method);
    record.path = pathOf(target);
    record.parameters = decodedForm(queryOf(target));
    for (const auto &[name, value] : request.headers)
        record.headers.append({bytes(name), bytes(value)});
    if (!request.has_header("Authorization")) return record;
    const auto oauth = OAuthCheck::parametersOfHeader(bytes(request.get_header_value("Authorization")));
    record.oauthNonce = valueOf(oauth.value_or(Parameters()), "oauth_nonce");
    record.oauthTimestamp = valueOf(oauth.value_or(Parameters()), "oauth_timestamp");
    return record;
}

} // namespace

Exchange::Exchange(ServiceContext &context, const httplib::Request &request, httplib::Response &response,
                   Connection &connection)
    : _context(context), _request(request), _response(response), _connection(connection), _record(recordOf(request)),
      _recordIndex(context.log.begin(_record)) {}

Exchange::~Exchange() {
    _context.log.update(_recordIndex, _record);
}

void Exchange::begin(const QByteArray &operation) {
    _fault = _context.faults.on(operation).next();
}

bool Exchange::readBody(RequestBody &body) {
    _body = &body;
    const auto length = _contentLength();
    if (!length) {
        _connection.leaveBodyUnread();
        answer(411, "text/plain", "The request does not say how long its body is.\n");
        return false;
    }
    const bool dropping = _fault.kind == Fault::Kind::DropAfterBytes;
    const qint64 wanted = dropping ? std::min(_fault.bytes, *length) : *length;
    const bool whole = _connection.readBody(wanted, [&](const char *data, qsizetype size) {
        body.feed(data, size);
        return true;
    });
    body.finish();
    _noteBody(body);
    if (dropping) {
        _drop();
        return false;
    }
    if (!whole) _connection.leaveBodyUnread();
    const QByteArray error = whole ? body.error() : QByteArray("the body is shorter than its Content-Length");
    if (!error.isEmpty()) answer(400, "text/plain", "Bad request: " + error + ".\n");
    return error.isEmpty();
}

bool Exchange::passesFault() {
    switch (_fault.kind) {
    case Fault::Kind::Answer:
        answer(_fault.status, _fault.contentType, _fault.body);
        return false;
    case Fault::Kind::DropAfterBytes:
        _drop();
        return false;
    case Fault::Kind::Hang:
        _context.log.update(_recordIndex, _record);
        if (_context.gate.waitForRelease([this] { return _connection.peerHasGone(); })) return true;
        _drop();
        return false;
    case Fault::Kind::None:
    case Fault::Kind::Truncate:
    case Fault::Kind::DropBeforeAnswer:
        break;
    }
    return true;
}

void Exchange::answer(int status, const QByteArray &contentType, const QByteArray &body) {
    if (_body && _body->photoIsComplete() && _record.photoId == 0 && _context.log.isEnabled())
        _record.photoSha256 = _body->photo()->sha256();
    const qint64 delay = _context.delay;
    if (delay > 0 && !_context.gate.sleep(std::chrono::milliseconds(delay))) return _drop();
    if (_fault.kind == Fault::Kind::DropBeforeAnswer) return _drop();
    _record.status = status;
    // Before the answer is out, so that a client that has it finds it in the log.
    _context.log.update(_recordIndex, _record);
    if (_fault.kind == Fault::Kind::Truncate) return _sendHalf(status, contentType, body);
    _response.status = status;
    if (!body.isEmpty()) _response.set_content(body.constData(), size_t(body.size()), contentType.toStdString());
}

QByteArray Exchange::header(const char *name) const {
    return bytes(_request.get_header_value(name));
}

SignedRequest Exchange::signedRequest(const Parameters &body) const {
    return {_record.method, header("Host"), bytes(_request.target), header("Authorization"), body};
}

std::optional<qint64> Exchange::_contentLength() const {
    if (_request.has_header("Transfer-Encoding") || _request.get_header_value_count("Content-Length") != 1)
        return std::nullopt;
    bool isNumber = false;
    const qint64 length = header("Content-Length").toLongLong(&isNumber);
    return isNumber && length >= 0 ? std::optional(length) : std::nullopt;
}

void Exchange::_noteBody(const RequestBody &body) {
    _record.parameters += body.parameters();
    if (!body.photoHeader()) return;
    _record.photoContentType = body.photoHeader()->contentType;
    _record.photoFileName = body.photoHeader()->fileName.value_or(QByteArray());
    _record.photoBytes = body.photo()->bytes();
}

void Exchange::_sendHalf(int status, const QByteArray &contentType, const QByteArray &body) {
    const QByteArray head = "HTTP/1.1 " + QByteArray::number(status) + " Cut short\r\nContent-Type: " + contentType +
                            "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n";
    const QByteArray sent = head + body.left(body.size() / 2);
    _connection.write(sent.constData(), size_t(sent.size()));
    _drop();
}

// Noted before the client can see it.
void Exchange::_drop() {
    _context.log.update(_recordIndex, _record);
    _connection.drop();
}

} // namespace standin
