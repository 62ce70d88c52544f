// A server on loopback whose every connection is served by a script: for answers that no decent server gives.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <functional>
#include <thread>

namespace korvane::test {

// One accepted connection. read…() return what came before the end of the stream.
class ScriptedConnection {
public:
    explicit ScriptedConnection(FileDescriptor socket) : _socket(std::move(socket)) {}
    // The next request's head, up to and with its empty line.
    QByteArray readHead();
    QByteArray readBody(qint64 length);
    // The whole body by the head's Content-Length.
    QByteArray readBodyOf(const QByteArray &head);
    void write(const QByteArray &bytes);
    // Closes with a reset instead of an orderly end.
    void reset();
    // Waits until the client has gone.
    void waitForEnd();

    int descriptor() const { return _socket.get(); }

private:
    bool _receive();
    QByteArray _take(qsizetype length);

    FileDescriptor _socket;
    QByteArray _pending;
};

// Serves one connection after another on a thread of its own; index counts them from 0.
class ScriptedServer {
public:
    using Script = std::function<void(ScriptedConnection &connection, int index)>;
    explicit ScriptedServer(Script script);
    ~ScriptedServer();
    QString url(const QString &path = {}) const;
    int connections() const { return _connections; }

private:
    FileDescriptor _listener;
    int _port = 0;
    std::atomic<int> _connections = 0;
    std::atomic<int> _current = -1; // the connection being served
    std::thread _thread;
};

} // namespace korvane::test
