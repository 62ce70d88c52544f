#include "StandIn/Exchange.h"

#include <QDateTime>
#include <QLocale>

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
    _context.log.end(_recordIndex, _record);
}

void Exchange::begin(const QByteArray &operation) {
    _record.operation = operation;
    _fault = _context.faults.next(operation, bodyLength().value_or(0));
}

bool Exchange::readBody(BodyReader &body) {
    const auto length = bodyLength();
    if (!length) {
        refuse(411, "it does not say how long its body is");
        return false;
    }
    _body = &body;
    const bool dropping = _fault.kind == Fault::Kind::DropAfterBytes;
    const qint64 wanted = dropping ? std::min(_fault.bytes, *length) : *length;
    const bool whole = _connection.readBody(wanted, [&](const char *data, qsizetype size) {
        body.feed(data, size);
        _record.bodyBytes += size;
        return true;
    });
    body.finish();
    body.note(_record);
    if (dropping) {
        _drop();
        return false;
    }
    if (!whole) {
        _connection.leaveBodyUnread();
        answer(400, "text/plain", "Bad request: the body is shorter than its Content-Length.\n");
    } else if (!body.error().isEmpty()) {
        refuse(400, body.error());
    }
    return whole && body.error().isEmpty();
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
    case Fault::Kind::StoreOnly:
    case Fault::Kind::ReportRange:
        break;
    }
    return true;
}

void Exchange::answer(int status, const QByteArray &contentType, const QByteArray &body) {
    if (_body && _record.photoId == 0 && _context.log.isEnabled()) _record.photoSha256 = _body->photoSha256();
    if (!_body && bodyLength().value_or(1) > 0) _connection.leaveBodyUnread();
    const qint64 delay = _context.delay + _fault.delay;
    if (delay > 0 && !_context.gate.sleep(std::chrono::milliseconds(delay))) return _drop();
    if (_fault.kind == Fault::Kind::DropBeforeAnswer) return _drop();
    setHeader("Date", QLocale::c()
                          .toString(QDateTime::currentDateTimeUtc(), QStringLiteral("ddd, dd MMM yyyy HH:mm:ss 'GMT'"))
                          .toLatin1());
    _record.status = status;
    // Before the answer is out, so that a client that has it finds it in the log.
    _context.log.update(_recordIndex, _record);
    if (_fault.kind == Fault::Kind::Truncate) return _sendHalf(status, contentType, body);
    _response.status = status;
    if (!body.isEmpty()) _response.set_content(body.constData(), size_t(body.size()), contentType.toStdString());
}

void Exchange::setHeader(const char *name, const QByteArray &value) {
    _response.set_header(name, value.toStdString());
}

void Exchange::refuse(int status, const QByteArray &problem) {
    _context.protocolErrors.add(_record.method + ' ' + target(), problem);
    answer(status, "text/plain", "Bad request: " + problem + ".\n");
}

QByteArray Exchange::header(const char *name) const {
    return bytes(_request.get_header_value(name));
}

SignedRequest Exchange::signedRequest(const Parameters &body) const {
    return {_record.method, header("Host"), target(), header("Authorization"), body};
}

std::optional<qint64> Exchange::bodyLength() const {
    if (_request.has_header("Transfer-Encoding") || _request.get_header_value_count("Content-Length") != 1)
        return std::nullopt;
    bool isNumber = false;
    const qint64 length = header("Content-Length").toLongLong(&isNumber);
    return isNumber && length >= 0 ? std::optional(length) : std::nullopt;
}

void Exchange::_sendHalf(int status, const QByteArray &contentType, const QByteArray &body) {
    const QByteArray head = "HTTP/1.1 " + QByteArray::number(status) + " Cut short\r\nContent-Type: " + contentType +
                            "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n";
    const QByteArray sent = body.isEmpty() ? head.left(head.size() / 2) : head + body.left(body.size() / 2);
    _connection.write(sent.constData(), size_t(sent.size()));
    _drop();
}

// Noted before the client can see it.
void Exchange::_drop() {
    _context.log.update(_recordIndex, _record);
    _connection.drop();
}

} // namespace standin
