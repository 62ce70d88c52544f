// A network between a client and a server on this machine that a test can cut.
#include "Tests/EndToEnd/CuttableProxy.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <vector>

namespace korvane::test {
namespace {

sockaddr_in loopback(quint16 port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

int connectionTo(quint16 port) {
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in address = loopback(port);
    ::connect(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address);
    return socket;
}

// With a reset, as a network that is gone ends a connection.
void breakOff(int socket) {
    const linger now{1, 0};
    ::setsockopt(socket, SOL_SOCKET, SO_LINGER, &now, sizeof now);
    ::close(socket);
}

bool pass(int from, int to) {
    std::array<char, 65536> bytes;
    const ssize_t count = ::recv(from, bytes.data(), bytes.size(), 0);
    for (ssize_t sent = 0; sent < count;) {
        const ssize_t step = ::send(to, bytes.data() + sent, size_t(count - sent), MSG_NOSIGNAL);
        if (step <= 0) return false;
        sent += step;
    }
    return count > 0;
}

} // namespace

CuttableProxy::CuttableProxy(quint16 serverPort) : _serverPort(serverPort) {
    _listen();
    _thread = std::thread([this] { _serve(); });
}

CuttableProxy::~CuttableProxy() {
    _ending = true;
    _thread.join();
    if (_listener >= 0) ::close(_listener);
}

void CuttableProxy::_listen() {
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int on = 1;
    ::setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in address = loopback(_port);
    socklen_t size = sizeof address;
    ::bind(listener, reinterpret_cast<const sockaddr *>(&address), size);
    ::listen(listener, 16);
    ::getsockname(listener, reinterpret_cast<sockaddr *>(&address), &size);
    _port = ntohs(address.sin_port);
    _listener = listener;
}

void CuttableProxy::cut() {
    _isCut = true;
    while (_listener >= 0)
        std::this_thread::yield();
}

void CuttableProxy::mend() {
    _listen();
    _isCut = false;
}

void CuttableProxy::_serve() {
    std::vector<pollfd> sockets; // two for each connection, client and server
    while (!_ending) {
        if (_isCut) {
            for (const pollfd &socket : sockets)
                breakOff(socket.fd);
            sockets.clear();
            if (const int listener = _listener.exchange(-1); listener >= 0) ::close(listener);
            ::usleep(1000);
            continue;
        }
        std::vector<pollfd> all = sockets;
        all.push_back({_listener, POLLIN, 0});
        ::poll(all.data(), all.size(), 5);
        sockets.clear();
        for (size_t i = 0; i + 1 < all.size(); i += 2) {
            const bool open = (!all[i].revents || pass(all[i].fd, all[i + 1].fd)) &&
                              (!all[i + 1].revents || pass(all[i + 1].fd, all[i].fd));
            if (open) sockets.insert(sockets.end(), {{all[i].fd, POLLIN, 0}, {all[i + 1].fd, POLLIN, 0}});
            if (open) continue;
            ::close(all[i].fd);
            ::close(all[i + 1].fd);
        }
        if (!all.back().revents) continue;
        const int client = ::accept(all.back().fd, nullptr, nullptr);
        if (client >= 0) sockets.insert(sockets.end(), {{client, POLLIN, 0}, {connectionTo(_serverPort), POLLIN, 0}});
    }
    for (const pollfd &socket : sockets)
        ::close(socket.fd);
}

} // namespace korvane::test
