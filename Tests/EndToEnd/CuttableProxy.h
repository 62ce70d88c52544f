// A network between a client and a server on this machine that a test can cut.
#pragma once

#include <QByteArray>

#include <atomic>
#include <thread>

namespace korvane::test {

// Passes connections on. While it is cut, it breaks those that there are and takes no new ones.
class CuttableProxy {
public:
    explicit CuttableProxy(quint16 serverPort);
    ~CuttableProxy();
    CuttableProxy(const CuttableProxy &) = delete;
    CuttableProxy &operator=(const CuttableProxy &) = delete;

    QByteArray url() const { return "http://127.0.0.1:" + QByteArray::number(_port); }
    void cut();
    void mend();

private:
    void _listen();
    void _serve();

    const quint16 _serverPort;
    quint16 _port = 0;
    std::atomic<int> _listener = -1;
    std::atomic<bool> _isCut = false;
    std::atomic<bool> _ending = false;
    std::thread _thread;
};

} // namespace korvane::test
