// One accepted connection: the stream that the HTTP library reads and writes, with a large buffer that bodies are read
// from in place, and the ways to break it off.
#pragma once

#include <QByteArray>

#include <functional>
#include <httplib.h>
#include <memory>

namespace standin {

class Connection final : public httplib::Stream {
public:
    // Receives a stretch of the body; false to read no further.
    using BodyReceiver = std::function<bool(const char *data, qsizetype size)>;

    explicit Connection(int socket); // does not own the socket
    ~Connection() override;

    // The connection that the calling thread serves, else null.
    static Connection *current();

    bool waitForRequest(std::chrono::seconds time);
    // Reads `length` bytes; false when the connection or the receiver ended before.
    bool readBody(qint64 length, const BodyReceiver &receiver);
    // The request's body was not read to its end: the connection cannot serve another one.
    void leaveBodyUnread() { _bodyUnread = true; }
    // Closes at once, without sending what was not sent yet.
    void drop();
    bool isUsable() const { return !_dropped && !_ended && !_bodyUnread; }
    bool peerHasGone() const;
    // Lets the client read the last answer before a connection with an unread body is closed.
    void linger();

    bool is_readable() const override { return !_dropped; }
    bool is_writable() const override { return !_dropped; }
    ssize_t read(char *data, size_t size) override;
    ssize_t write(const char *data, size_t size) override;
    void get_remote_ip_and_port(std::string &ip, int &port) const override;
    void get_local_ip_and_port(std::string &ip, int &port) const override;
    socket_t socket() const override { return _socket; }

private:
    bool _fill();

    const int _socket;
    const std::unique_ptr<char[]> _buffer;
    size_t _begin = 0;
    size_t _end = 0;
    bool _ended = false; // nothing more comes in; the client may still read
    bool _dropped = false;
    bool _bodyUnread = false;
};

} // namespace standin
