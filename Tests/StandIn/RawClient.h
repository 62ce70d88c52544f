// A client that speaks HTTP over a bare socket, so that tests decide about every byte.
#pragma once

#include "StandIn/StandIn.h"

namespace standin::test {

struct RawReply {
    int status = 0; // 0: the connection ended without an answer
    QByteArray head;
    QByteArray body;
    bool isComplete = false; // as long as announced
};

class RawClient {
public:
    explicit RawClient(const StandIn &server);
    ~RawClient();

    // Over the one connection that this client keeps until the server closes it.
    RawReply send(const QByteArray &request);
    // Tells the server that nothing more comes, then reads.
    RawReply sendAndEnd(const QByteArray &request);
    void write(const QByteArray &bytes);
    RawReply read();
    void disconnect();

    RawReply get(const QByteArray &path) { return send("GET " + path + " HTTP/1.1\r\nHost: " + _host + "\r\n\r\n"); }
    RawReply post(const QByteArray &path, const QByteArray &headers, const QByteArray &body);

    QByteArray host() const { return _host; }

private:
    void _connect();

    QByteArray _host;
    quint16 _port = 0;
    int _socket = -1;
};

} // namespace standin::test
