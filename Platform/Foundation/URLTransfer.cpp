// One request on its way through curl.
#include "Platform/Foundation/URLTransfer.h"

#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/TransferFailure.h"
#include "Platform/SystemConfiguration/SCNetworkReachability.h"

#include <linux/sockios.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace korvane {
namespace {

constexpr qint64 largestAnswer = 8LL * 1024 * 1024; // a thousand albums take half of one
constexpr qint64 longestHead = 256LL * 1024;
constexpr long uploadBuffer = 512L * 1024;
constexpr int longestWaitMilliseconds = 250;

QByteArray proxyExceptions() {
    return qgetenv("no_proxy") + ',' + qgetenv("NO_PROXY") + ",localhost,127.0.0.1,::1";
}

} // namespace

URLTransfer::URLTransfer(const NSMutableURLRequest &request, CurlHandle &handle)
    : _request(request), _handle(handle), _bodyLength(request.bodyLength()), _lastMove(Clock::now()) {
    _configure();
    curl().multi_add_handle(_handle.multi, _handle.easy);
}

URLTransfer::~URLTransfer() {
    curl().multi_remove_handle(_handle.multi, _handle.easy);
    curl().slist_free_all(_headers);
}

void URLTransfer::_configure() {
    CURL *easy = _handle.easy;
    curl().easy_setopt(easy, CURLOPT_URL, _request.URL.absoluteString().toUtf8().constData());
    curl().easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    curl().easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http,https");
    curl().easy_setopt(easy, CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_1_1));
    curl().easy_setopt(easy, CURLOPT_USERAGENT, "Korvane/" KORVANE_VERSION);
    curl().easy_setopt(easy, CURLOPT_NOPROXY, proxyExceptions().constData());
    curl().easy_setopt(easy, CURLOPT_CONNECTTIMEOUT_MS, long(_request.timeoutInterval * 1000));
    curl().easy_setopt(easy, CURLOPT_UPLOAD_BUFFERSIZE, uploadBuffer);
    curl().easy_setopt(easy, CURLOPT_READFUNCTION, _onRead);
    curl().easy_setopt(easy, CURLOPT_READDATA, this);
    curl().easy_setopt(easy, CURLOPT_SEEKFUNCTION, _onSeek);
    curl().easy_setopt(easy, CURLOPT_SEEKDATA, this);
    curl().easy_setopt(easy, CURLOPT_WRITEFUNCTION, _onWrite);
    curl().easy_setopt(easy, CURLOPT_WRITEDATA, this);
    curl().easy_setopt(easy, CURLOPT_HEADERFUNCTION, _onHeader);
    curl().easy_setopt(easy, CURLOPT_HEADERDATA, this);
    curl().easy_setopt(easy, CURLOPT_PREREQFUNCTION, _onRequest);
    curl().easy_setopt(easy, CURLOPT_PREREQDATA, this);
    _configureMethod();
}

void URLTransfer::_configureMethod() {
    CURL *easy = _handle.easy;
    if (_request.HTTPMethod == "POST") {
        curl().easy_setopt(easy, CURLOPT_POST, 1L);
        curl().easy_setopt(easy, CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t(_bodyLength));
    } else if (_request.HTTPMethod == "PUT") {
        curl().easy_setopt(easy, CURLOPT_UPLOAD, 1L);
        curl().easy_setopt(easy, CURLOPT_INFILESIZE_LARGE, curl_off_t(_bodyLength));
    }
    // Without this the server's "100 Continue" is waited for, a second on servers that never send it.
    _headers = curl().slist_append(_headers, "Expect:");
    for (const auto &[name, value] : _request.headers)
        _headers =
            curl().slist_append(_headers, (name + (value.isEmpty() ? QByteArray(";") : ": " + value)).constData());
    curl().easy_setopt(easy, CURLOPT_HTTPHEADER, _headers);
}

std::optional<NSError> URLTransfer::run() {
    const auto &context = _request.uploadContext;
    if (context) context->requestBegan(_bodyLength, [multi = _handle.multi] { curl().multi_wakeup(multi); });
    auto error = _objection();
    if (!error) error = _drive();
    if (context) context->requestEnded(_response.statusCode, error, _body);
    return error;
}

// What is known before anything is sent.
std::optional<NSError> URLTransfer::_objection() const {
    if (!_request.allowsCellularAccess && !_request.URL.isLoopback() && isDefaultRouteCellular())
        return TransferFailure::make(
            NSURLErrorNotConnectedToInternet,
            localizedText("There is only the cellular network, which this upload may not use."));
    const auto announced = _request.valueForHTTPHeaderField("Content-Length");
    if (!announced || announced->toLongLong() == _bodyLength) return std::nullopt;
    return TransferFailure::make(NSURLErrorUnknown, localizedText("The file became shorter while it was being sent."));
}

std::optional<NSError> URLTransfer::_drive() {
    for (;;) {
        if (_request.uploadContext && _request.uploadContext->isCancelled())
            return TransferFailure::make(NSURLErrorCancelled, localizedText("The upload was stopped."));
        int running = 0;
        curl().multi_perform(_handle.multi, &running);
        int waiting = 0;
        if (const CURLMsg *message = curl().multi_info_read(_handle.multi, &waiting))
            return _result(message->data.result);
        _noteProgress();
        if (_hasStalled())
            return TransferFailure::make(NSURLErrorTimedOut, localizedText("The web service did not respond in time."));
        curl().multi_poll(_handle.multi, nullptr, 0, longestWaitMilliseconds, nullptr);
    }
}

std::optional<NSError> URLTransfer::_result(CURLcode code) const {
    if (_localError) return _localError;
    if (code == CURLE_OK) {
        // curl is content with an early answer; an answer that claims success for half a body is none.
        if (_bodyRead < _bodyLength && _response.statusCode < 400)
            return TransferFailure::make(NSURLErrorNetworkConnectionLost,
                                         localizedText("The web service answered before it had everything."));
        return std::nullopt;
    }
    if (code == CURLE_UNSUPPORTED_PROTOCOL && _requests > 0) code = CURLE_WEIRD_SERVER_REPLY; // of another version
    long osError = 0;
    curl().easy_getinfo(_handle.easy, CURLINFO_OS_ERRNO, &osError);
    return TransferFailure::ofCurl(code, osError, _request.URL);
}

// What still waits in the socket's buffer has not moved: on a slow line that is many seconds' worth.
void URLTransfer::_noteProgress() {
    curl_off_t up = 0;
    curl_off_t down = 0;
    curl().easy_getinfo(_handle.easy, CURLINFO_SIZE_UPLOAD_T, &up);
    curl().easy_getinfo(_handle.easy, CURLINFO_SIZE_DOWNLOAD_T, &down);
    curl_socket_t socket = CURL_SOCKET_BAD;
    int unsent = 0;
    curl().easy_getinfo(_handle.easy, CURLINFO_ACTIVESOCKET, &socket);
    if (socket != CURL_SOCKET_BAD && ::ioctl(socket, SIOCOUTQ, &unsent) != 0) unsent = 0;
    const qint64 sent = std::max<qint64>(0, up - unsent);
    if (_request.uploadContext) _request.uploadContext->requestSent(sent);
    if (sent + down != _lastMoved) {
        _lastMoved = sent + down;
        _lastMove = Clock::now();
    }
}

bool URLTransfer::_hasStalled() const {
    return std::chrono::duration<double>(Clock::now() - _lastMove).count() > _request.timeoutInterval;
}

size_t URLTransfer::_readBody(char *buffer, size_t capacity) {
    while (_piece < _request.HTTPBody.size() && _pieceRead == _request.HTTPBody[_piece].length()) {
        ++_piece;
        _pieceRead = 0;
    }
    if (_piece == _request.HTTPBody.size()) return 0;
    const NSData &piece = _request.HTTPBody[_piece];
    const qint64 count = piece.getBytes(buffer, _pieceRead, qint64(capacity));
    const bool ends = _pieceRead + count == piece.length();
    // A file that changed must not arrive as a mixture: its last bytes are held back.
    if (count <= 0 || (ends && !piece.isIntact())) {
        _localError =
            TransferFailure::make(NSURLErrorUnknown, localizedText("The file changed while it was being sent."));
        return CURL_READFUNC_ABORT;
    }
    _pieceRead += count;
    _bodyRead += count;
    return size_t(count);
}

// curl rewinds to repeat a request on a new connection when the kept one turns out dead. Once the whole body has gone
// out the service may have acted on it, so the repetition is left to those who can tell, with a new nonce.
bool URLTransfer::_rewind(qint64 position) {
    if (position != 0 || _bodyRead == _bodyLength) return false;
    _piece = 0;
    _pieceRead = 0;
    _bodyRead = 0;
    return true;
}

bool URLTransfer::_readHeader(const QByteArray &line) {
    _headRead += line.size();
    if (_headRead > longestHead) {
        _localError = TransferFailure::tooLarge();
        return false;
    }
    if (line.startsWith("HTTP/")) {
        _response = {};
        _response.statusCode = line.mid(line.indexOf(' ') + 1, 3).toInt();
    } else if (const qsizetype colon = line.indexOf(':'); colon > 0) {
        _response.headers.append({line.left(colon), line.mid(colon + 1).trimmed()});
    }
    return true;
}

size_t URLTransfer::_onRead(char *buffer, size_t size, size_t count, void *self) {
    return static_cast<URLTransfer *>(self)->_readBody(buffer, size * count);
}

int URLTransfer::_onSeek(void *self, curl_off_t offset, int origin) {
    return origin == SEEK_SET && static_cast<URLTransfer *>(self)->_rewind(offset) ? CURL_SEEKFUNC_OK
                                                                                   : CURL_SEEKFUNC_FAIL;
}

size_t URLTransfer::_onWrite(char *bytes, size_t size, size_t count, void *self) {
    auto *transfer = static_cast<URLTransfer *>(self);
    const size_t length = size * count;
    if (transfer->_body.size() + qint64(length) > largestAnswer) {
        transfer->_localError = TransferFailure::tooLarge();
        return 0;
    }
    transfer->_body.append(bytes, qsizetype(length));
    return length;
}

// A request without a body needs no rewinding to be repeated, so it is stopped here.
int URLTransfer::_onRequest(void *self, char *, char *, int, int) {
    auto *transfer = static_cast<URLTransfer *>(self);
    if (const auto &context = transfer->_request.uploadContext) context->requestGoesOut();
    if (++transfer->_requests == 1 || transfer->_bodyLength > 0) return CURL_PREREQFUNC_OK;
    transfer->_localError =
        TransferFailure::make(NSURLErrorNetworkConnectionLost, localizedText("The web service closed the connection."));
    return CURL_PREREQFUNC_ABORT;
}

size_t URLTransfer::_onHeader(char *bytes, size_t size, size_t count, void *self) {
    const QByteArray line(bytes, qsizetype(size * count));
    return static_cast<URLTransfer *>(self)->_readHeader(line.trimmed()) ? size * count : 0;
}

} // namespace korvane
