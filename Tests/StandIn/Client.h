// A client that speaks HTTP over a bare socket, so that tests decide about every byte.
#pragma once

#include "StandIn/StandIn.h"

namespace standin::test {

struct Reply {
    int status = 0; // 0: the connection ended without an answer
    QByteArray head;
    QByteArray body;
    bool isComplete = false; // as long as announced
};

class Client {
public:
    explicit Client(const StandIn &server);
    ~Client();

    // Over the one connection that this client keeps until the server closes it.
    Reply send(const QByteArray &request);
    // Tells the server that nothing more comes, then reads.
    Reply sendAndEnd(const QByteArray &request);
    void write(const QByteArray &bytes);
    Reply read();
    void disconnect();

    Reply get(const QByteArray &path) { return send("GET " + path + " HTTP/1.1\r\nHost: " + _host + "\r\n\r\n"); }
    Reply post(const QByteArray &path, const QByteArray &headers, const QByteArray &body);
    // Signed as the test user, with fresh nonce and time stamp.
    Reply upload(const Parameters &parameters, const QByteArray &photo);
    Reply call(const QByteArray &method, const Parameters &parameters = {});

    QByteArray uploadRequest(const Parameters &parameters, const QByteArray &photo) const;
    QByteArray authorization(const QByteArray &path, const Parameters &body, const Parameters &changes = {}) const;
    QByteArray host() const { return _host; }

private:
    void _connect();

    QByteArray _host;
    quint16 _port = 0;
    int _socket = -1;
};

// A multipart body with the boundary "BOUNDARY"; a null photo is left out.
QByteArray multipart(const Parameters &parameters, const QByteArray &photo);

// A JPEG by its first bytes; the rest is different for each seed.
QByteArray jpeg(qsizetype size, quint32 seed = 1);

QByteArray photoIdIn(const Reply &reply);

} // namespace standin::test
