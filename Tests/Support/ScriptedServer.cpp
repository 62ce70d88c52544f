// A server on loopback whose every connection is served by a script.
#include "Tests/Support/ScriptedServer.h"

#include <netinet/in.h>
#include <sys/socket.h>

namespace korvane::test {

bool ScriptedConnection::_receive() {
    char buffer[65536];
    const ssize_t count = ::recv(_socket.get(), buffer, sizeof buffer, 0);
    if (count > 0) _pending.append(buffer, count);
    return count > 0;
}

QByteArray ScriptedConnection::_take(qsizetype length) {
    const QByteArray taken = _pending.left(length);
    _pending.remove(0, taken.size());
    return taken;
}

QByteArray ScriptedConnection::readHead() {
    while (!_pending.contains("\r\n\r\n"))
        if (!_receive()) return _take(_pending.size());
    return _take(_pending.indexOf("\r\n\r\n") + 4);
}

QByteArray ScriptedConnection::readBody(qint64 length) {
    while (_pending.size() < length && _receive())
        continue;
    return _take(length);
}

QByteArray ScriptedConnection::readBodyOf(const QByteArray &head) {
    const qsizetype at = head.toLower().indexOf("content-length:");
    return at < 0 ? QByteArray() : readBody(head.mid(at + 15, head.indexOf('\r', at) - at - 15).trimmed().toLongLong());
}

void ScriptedConnection::write(const QByteArray &bytes) {
    ::send(_socket.get(), bytes.constData(), bytes.size(), MSG_NOSIGNAL);
}

void ScriptedConnection::reset() {
    const linger hard{1, 0};
    ::setsockopt(_socket.get(), SOL_SOCKET, SO_LINGER, &hard, sizeof hard);
    _socket.reset();
}

void ScriptedConnection::waitForEnd() {
    while (_receive())
        _pending.clear();
}

ScriptedServer::ScriptedServer(Script script) : _listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ::bind(_listener.get(), reinterpret_cast<sockaddr *>(&address), sizeof address);
    ::listen(_listener.get(), 16);
    socklen_t length = sizeof address;
    ::getsockname(_listener.get(), reinterpret_cast<sockaddr *>(&address), &length);
    _port = ntohs(address.sin_port);
    _thread = std::thread([this, script = std::move(script)] {
        for (;;) {
            FileDescriptor socket(::accept4(_listener.get(), nullptr, nullptr, SOCK_CLOEXEC));
            if (!socket) return;
            ScriptedConnection connection(std::move(socket));
            _current = connection.descriptor();
            script(connection, _connections++);
            _current = -1;
        }
    });
}

ScriptedServer::~ScriptedServer() {
    ::shutdown(_listener.get(), SHUT_RDWR);
    ::shutdown(_current, SHUT_RDWR);
    _thread.join();
}

QString ScriptedServer::url(const QString &path) const {
    return QStringLiteral("http://127.0.0.1:%1%2").arg(_port).arg(path);
}

} // namespace korvane::test
