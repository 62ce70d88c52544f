// One request on its way through curl.
#pragma once

#include "Platform/Foundation/CurlPool.h"
#include "Platform/Foundation/NSURLRequest.h"

#include <chrono>
#include <optional>

namespace korvane {

// Sends the pieces of the body in order, follows what moves on the socket, and gathers the answer.
class URLTransfer {
public:
    URLTransfer(const NSMutableURLRequest &request, CurlHandle &handle);
    ~URLTransfer();
    URLTransfer(const URLTransfer &) = delete;
    URLTransfer &operator=(const URLTransfer &) = delete;

    // Blocks until the answer is complete (null) or the transfer has failed.
    std::optional<NSError> run();

    const NSHTTPURLResponse &response() const { return _response; }
    const QByteArray &body() const { return _body; }

private:
    using Clock = std::chrono::steady_clock;

    void _configure();
    void _configureMethod();
    std::optional<NSError> _objection() const;
    std::optional<NSError> _drive();
    std::optional<NSError> _result(CURLcode code) const;
    void _noteProgress();
    bool _hasStalled() const;
    size_t _readBody(char *buffer, size_t capacity);
    bool _rewind(qint64 position);
    bool _readHeader(const QByteArray &line); // false where it is too much

    static size_t _onRead(char *buffer, size_t size, size_t count, void *self);
    static int _onSeek(void *self, curl_off_t offset, int origin);
    static size_t _onWrite(char *bytes, size_t size, size_t count, void *self);
    static int _onRequest(void *self, char *, char *, int, int);
    static size_t _onHeader(char *bytes, size_t size, size_t count, void *self);

    const NSMutableURLRequest &_request;
    CurlHandle &_handle;
    curl_slist *_headers = nullptr;
    NSHTTPURLResponse _response;
    QByteArray _body;
    qint64 _headRead = 0;
    qint64 _bodyLength = 0;
    qint64 _bodyRead = 0;               // bytes handed to curl; at most _bodyLength
    int _requests = 0;                  // begun, a repetition of curl's own included
    size_t _piece = 0;                  // the piece that is being read, and
    qint64 _pieceRead = 0;              // how much of it was
    qint64 _lastMoved = -1;             // bytes moved both ways when something last moved, and
    Clock::time_point _lastMove;        // when that was
    std::optional<NSError> _localError; // a fault of our own body or of the answer's size
};

} // namespace korvane
