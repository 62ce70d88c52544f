#include "StandIn/HttpServer.h"

#include "StandIn/Connection.h"

#include <condition_variable>
#include <deque>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace standin {

namespace {

constexpr std::chrono::seconds KeepAliveTime{30};
constexpr std::chrono::seconds TransferTimeout{60};
constexpr int Backlog = 256;

// A connection keeps its thread from the first request to the last, and hanging ones must not starve the others: so
// there is a thread for each, kept for the next one.
class GrowingPool final : public httplib::TaskQueue {
public:
    void enqueue(std::function<void()> task) override {
        const std::lock_guard lock(_mutex);
        _tasks.push_back(std::move(task));
        if (_tasks.size() > _idle) _threads.emplace_back([this] { _work(); });
        _changed.notify_one();
    }

    void shutdown() override {
        {
            const std::lock_guard lock(_mutex);
            _ended = true;
        }
        _changed.notify_all();
        for (std::thread &thread : _threads)
            thread.join();
    }

private:
    void _work() {
        std::unique_lock lock(_mutex);
        while (true) {
            ++_idle;
            _changed.wait(lock, [this] { return _ended || !_tasks.empty(); });
            --_idle;
            if (_tasks.empty()) return;
            const auto task = std::move(_tasks.front());
            _tasks.pop_front();
            lock.unlock();
            task();
            lock.lock();
        }
    }

    std::mutex _mutex;
    std::condition_variable _changed;
    std::deque<std::function<void()>> _tasks;
    std::vector<std::thread> _threads;
    size_t _idle = 0;
    bool _ended = false;
};

} // namespace

HttpServer::HttpServer() {
    new_task_queue = [] { return new GrowingPool; };
    // The library's own options would let two servers share a port.
    set_socket_options([](socket_t socket) {
        const int yes = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    set_tcp_nodelay(true);
    set_keep_alive_max_count(1'000'000);
    set_keep_alive_timeout(KeepAliveTime.count());
    set_read_timeout(TransferTimeout);
    set_write_timeout(TransferTimeout);
    set_payload_max_length(1024 * 1024);
}

int HttpServer::bindToLoopback(int port) {
    const int bound = port == 0 ? bind_to_any_port("127.0.0.1") : bind_to_port("127.0.0.1", port) ? port : -1;
    if (bound <= 0) return 0;
    // The library asks for a queue of five, which a burst of parallel uploads overruns.
    ::listen(svr_sock_, Backlog);
    return bound;
}

void HttpServer::closeConnections() {
    const std::lock_guard lock(_mutex);
    _closing = true;
    for (const socket_t socket : _open)
        ::shutdown(socket, SHUT_RDWR);
}

bool HttpServer::process_and_close_socket(socket_t socket) {
    {
        const std::lock_guard lock(_mutex);
        _open.insert(socket);
    }
    _serve(socket);
    const std::lock_guard lock(_mutex);
    _open.erase(socket);
    ::close(socket);
    return true;
}

void HttpServer::_serve(socket_t socket) {
    Connection connection(socket);
    bool closed = false;
    while (!closed && !_closing && connection.waitForRequest(KeepAliveTime)) {
        const bool served = process_request(connection, false, closed, nullptr);
        if (!served || !connection.isUsable()) break;
    }
    connection.linger();
}

} // namespace standin
