// Waits for the browser to come back from a web service's sign-in page.
#include "Platform/Accounts/CallbackListener.h"

#include "Platform/Foundation/LocalizedText.h"

#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUuid>

#include <chrono>

namespace korvane {
namespace {

constexpr qint64 longestHead = 16 * 1024;
constexpr qsizetype mostConnections = 16;
constexpr std::chrono::seconds patience(10);

QByteArray page(const QString &title, const QString &text) {
    return "<!DOCTYPE html>\n<html lang=\"" + localizedText("en").toUtf8() +
           QByteArray(
               "\"><head><meta charset=\"utf-8\"><title>Korvane</title><meta "
               "name=\"viewport\" content=\"width=device-width\"><style>:root { color-scheme: light dark; } body "
               "{ font: 18px/1.5 system-ui, sans-serif; max-width: 30em; margin: 20vh auto; padding: 0 1.5em; "
               "}</style></head><body><h1>") +
           title.toUtf8() + "</h1><p>" + text.toUtf8() + "</p></body></html>\n";
}

void answer(QTcpSocket &socket, const char *status, const QByteArray &body) {
    socket.write("HTTP/1.1 " + QByteArray(status) +
                 "\r\nContent-Type: text/html; charset=utf-8\r\nContent-Length: " + QByteArray::number(body.size()) +
                 "\r\nConnection: close\r\nCache-Control: no-store\r\nReferrer-Policy: no-referrer\r\n"
                 "Content-Security-Policy: default-src 'none'; style-src 'unsafe-inline'\r\n\r\n" +
                 body);
    socket.flush(); // the program may end as soon as it knows
    socket.disconnectFromHost();
}

} // namespace

CallbackListener::CallbackListener(Receiver receiver)
    : _receiver(std::move(receiver)), _path("/signed-in/" + QUuid::createUuid().toByteArray(QUuid::Id128)),
      _server(std::make_unique<QTcpServer>()) {
    QObject::connect(_server.get(), &QTcpServer::newConnection, _server.get(), [this] { _welcome(); });
    _server->setProxy(QNetworkProxy::NoProxy);
    _server->listen(QHostAddress::LocalHost);
}

CallbackListener::~CallbackListener() = default;

QString CallbackListener::problem() const {
    return _server->isListening() ? QString() : _server->errorString();
}

QString CallbackListener::address() const {
    return QStringLiteral("http://127.0.0.1:%1").arg(_server->serverPort()) + QString::fromLatin1(_path);
}

// The sockets are children of the server. Of too many the oldest goes: browsers keep some open without a word.
void CallbackListener::_welcome() {
    while (QTcpSocket *socket = _server->nextPendingConnection()) {
        socket->setReadBufferSize(longestHead + 1);
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { _read(*socket); });
        QTimer::singleShot(patience, socket, [socket] { socket->abort(); });
        auto open = _server->findChildren<QTcpSocket *>(Qt::FindDirectChildrenOnly);
        open.removeIf([](const auto *one) { return one->state() != QTcpSocket::ConnectedState; }); // about to go
        if (open.size() > mostConnections) open.first()->abort();
        _read(*socket);
    }
}

void CallbackListener::_read(QTcpSocket &socket) {
    const QByteArray head = socket.peek(longestHead + 1);
    const bool isWhole = head.contains("\r\n\r\n");
    if (!isWhole && head.size() <= longestHead) return;
    socket.readAll();
    QObject::disconnect(&socket, &QTcpSocket::readyRead, nullptr, nullptr);
    if (isWhole) return _receive(socket, head.left(head.indexOf("\r\n")));
    answer(socket, "431 Request Header Fields Too Large",
           page(localizedText("Too long"), localizedText("This request is too long.")));
}

void CallbackListener::_receive(QTcpSocket &socket, const QByteArray &requestLine) {
    const QByteArrayList words = requestLine.split(' ');
    const QByteArray target = words.value(1);
    const bool isOurs = words.size() == 3 && words[2].startsWith("HTTP/1.") &&
                        (target == _path || target.startsWith(_path + '?')) && _server->isListening();
    if (!isOurs)
        return answer(socket, "404 Not Found",
                      page(localizedText("Not found"), localizedText("There is nothing here.")));
    if (words[0] != "GET")
        return answer(socket, "405 Method Not Allowed",
                      page(localizedText("Not possible"), localizedText("This page can only be opened.")));
    switch (_receiver(OAuthSigner::parametersOfQuery(QString::fromLatin1(target.mid(_path.size() + 1))))) {
    case Reception::Foreign:
        return answer(socket, "400 Bad Request",
                      page(localizedText("Another sign-in"),
                           localizedText("This page belongs to another sign-in. Go back to Korvane.")));
    case Reception::Refused:
        answer(socket, "200 OK",
               page(localizedText("Not signed in"), localizedText("You can close this page and go back to Korvane.")));
        break;
    case Reception::Done:
        answer(socket, "200 OK",
               page(localizedText("Thank you"), localizedText("You can close this page and go back to Korvane.")));
        break;
    }
    _server->close();
}

} // namespace korvane
