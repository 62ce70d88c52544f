#include "StandIn/Connection.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>

namespace standin {

namespace {

constexpr size_t BufferSize = 256 * 1024;
thread_local Connection *currentConnection = nullptr;

void readAddress(int (*ask)(int, sockaddr *, socklen_t *), int socket, std::string &ip, int &port) {
    sockaddr_in address{};
    socklen_t length = sizeof address;
    char text[INET_ADDRSTRLEN];
    if (ask(socket, reinterpret_cast<sockaddr *>(&address), &length) != 0) return;
    if (!inet_ntop(AF_INET, &address.sin_addr, text, sizeof text)) return;
    ip = text;
    port = ntohs(address.sin_port);
}

} // namespace

Connection::Connection(int socket) : _socket(socket), _buffer(new char[BufferSize]) {
    currentConnection = this;
}

Connection::~Connection() {
    currentConnection = nullptr;
}

Connection *Connection::current() {
    return currentConnection;
}

bool Connection::waitForRequest(std::chrono::seconds time) {
    if (_begin < _end) return true;
    pollfd waiting{_socket, POLLIN, 0};
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
    return poll(&waiting, 1, int(milliseconds)) > 0 && _fill();
}

bool Connection::readBody(qint64 length, const BodyReceiver &receiver) {
    while (length > 0) {
        if (_begin == _end && !_fill()) return false;
        const size_t size = std::min(_end - _begin, size_t(length));
        const char *data = _buffer.get() + _begin;
        _begin += size;
        length -= qint64(size);
        if (!receiver(data, qsizetype(size))) return false;
    }
    return true;
}

void Connection::drop() {
    _dropped = true;
    ::shutdown(_socket, SHUT_RDWR);
}

bool Connection::peerHasGone() const {
    pollfd waiting{_socket, POLLRDHUP, 0};
    return poll(&waiting, 1, 0) > 0;
}

void Connection::linger() {
    if (_dropped || !_bodyUnread) return;
    ::shutdown(_socket, SHUT_WR);
    for (int pieces = 0; pieces < 4096; ++pieces) {
        pollfd waiting{_socket, POLLIN, 0};
        if (poll(&waiting, 1, 1000) <= 0 || ::recv(_socket, _buffer.get(), BufferSize, 0) <= 0) return;
    }
}

ssize_t Connection::read(char *data, size_t size) {
    if (_begin == _end && !_fill()) return 0;
    const size_t given = std::min(size, _end - _begin);
    memcpy(data, _buffer.get() + _begin, given);
    _begin += given;
    return ssize_t(given);
}

ssize_t Connection::write(const char *data, size_t size) {
    size_t sent = 0;
    while (!_dropped && sent < size) {
        const ssize_t step = ::send(_socket, data + sent, size - sent, MSG_NOSIGNAL);
        if (step < 0 && errno == EINTR) continue;
        if (step <= 0) _dropped = true;
        sent += step > 0 ? size_t(step) : 0;
    }
    return _dropped ? -1 : ssize_t(size);
}

void Connection::get_remote_ip_and_port(std::string &ip, int &port) const {
    readAddress(getpeername, _socket, ip, port);
}

void Connection::get_local_ip_and_port(std::string &ip, int &port) const {
    readAddress(getsockname, _socket, ip, port);
}

bool Connection::_fill() {
    ssize_t size = -1;
    do {
        size = _dropped || _ended ? 0 : ::recv(_socket, _buffer.get(), BufferSize, 0);
    } while (size < 0 && errno == EINTR);
    _ended = _ended || size <= 0;
    _begin = 0;
    _end = size > 0 ? size_t(size) : 0;
    return size > 0;
}

} // namespace standin
