// The HTTP library's server with connections of our own (see Connection) and as many threads as connections need.
#pragma once

#include <atomic>
#include <functional>
#include <httplib.h>
#include <mutex>
#include <set>

namespace standin {

class HttpServer final : public httplib::Server {
public:
    HttpServer();

    // 0 takes any free port. Returns the port, or 0 with errno when it cannot be had.
    int bindToLoopback(int port);
    // Ends every connection, also those in the middle of a request; none is served afterwards.
    void closeConnections();

private:
    bool process_and_close_socket(socket_t socket) override;
    void _serve(socket_t socket);

    std::mutex _mutex;
    std::set<socket_t> _open;
    std::atomic<bool> _closing = false;
};

} // namespace standin
