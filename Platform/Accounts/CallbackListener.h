// Waits for the browser to come back from a web service's sign-in page.
#pragma once

#include "Platform/Foundation/NSURL.h"
#include "Platform/Social/OAuthSigner.h"

#include <functional>
#include <memory>

class QTcpServer;
class QTcpSocket;

namespace korvane {

// A very small HTTP server on a free loopback port, for one page at an address that nobody can guess. Every other
// address, method or request that is not whole is turned away, as is what is longer than 16 KiB or slower than ten
// seconds. Thread: the main one.
class CallbackListener {
public:
    enum class Reception {
        Done,    // the person can go back to Korvane
        Refused, // likewise; nothing was signed in
        Foreign, // belongs to another sign-in: goes on waiting
    };
    // Gets the page's query. After Done or Refused no other call comes.
    using Receiver = std::function<Reception(const OAuthParameters &query)>;

    explicit CallbackListener(Receiver receiver);
    ~CallbackListener();
    CallbackListener(const CallbackListener &) = delete;
    CallbackListener &operator=(const CallbackListener &) = delete;

    // Empty if it listens; else why it cannot.
    QString problem() const;
    // "http://127.0.0.1:PORT/signed-in/…", which is the call-back to give to the service.
    QString address() const;

private:
    void _welcome();
    void _read(QTcpSocket &socket);
    void _receive(QTcpSocket &socket, const QByteArray &requestLine);

    const Receiver _receiver;
    const QByteArray _path;
    std::unique_ptr<QTcpServer> _server;
};

} // namespace korvane
