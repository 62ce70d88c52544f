// A client that speaks HTTP over a bare socket.
#include "Tests/StandIn/RawClient.h"

#include <QUrl>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace standin::test {

RawClient::RawClient(const StandIn &server)
    : _host(server.url().mid(7).toUtf8()), _port(quint16(QUrl(server.url()).port())) {
    _connect();
}

RawClient::~RawClient() {
    disconnect();
}

RawReply RawClient::send(const QByteArray &request) {
    write(request);
    return read();
}

RawReply RawClient::sendAndEnd(const QByteArray &request) {
    write(request);
    ::shutdown(_socket, SHUT_WR);
    return read();
}

void RawClient::write(const QByteArray &bytes) {
    if (_socket < 0) _connect();
    for (qsizetype sent = 0; sent < bytes.size();) {
        const ssize_t step = ::send(_socket, bytes.constData() + sent, size_t(bytes.size() - sent), MSG_NOSIGNAL);
        if (step <= 0) return;
        sent += step;
    }
}

RawReply RawClient::read() {
    QByteArray received;
    RawReply reply;
    qsizetype announced = -1;
    while (announced < 0 || received.size() < announced) {
        char piece[65536];
        const ssize_t step = ::recv(_socket, piece, sizeof piece, 0);
        if (step <= 0) break;
        received.append(piece, step);
        const qsizetype end = received.indexOf("\r\n\r\n");
        if (announced >= 0 || end < 0) continue;
        reply.head = received.left(end + 2);
        reply.status = reply.head.mid(9, 3).toInt();
        const qsizetype length = reply.head.indexOf("Content-Length: ");
        announced = end + 4 + reply.head.mid(length + 16, reply.head.indexOf('\r', length) - length - 16).toLongLong();
    }
    reply.body = received.mid(reply.head.size() + 2);
    reply.isComplete = announced >= 0 && received.size() == announced;
    if (!reply.isComplete) disconnect();
    return reply;
}

void RawClient::disconnect() {
    if (_socket >= 0) ::close(_socket);
    _socket = -1;
}

RawReply RawClient::post(const QByteArray &path, const QByteArray &headers, const QByteArray &body) {
    return send("POST " + path + " HTTP/1.1\r\nHost: " + _host + "\r\n" + headers +
                "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
}

void RawClient::_connect() {
    _socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const timeval patience{20, 0};
    setsockopt(_socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(_port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0) disconnect();
}

} // namespace standin::test
