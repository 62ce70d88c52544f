#include "Tests/StandIn/Client.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QUrl>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace standin::test {

Client::Client(const StandIn &server) : _host(server.url().mid(7).toUtf8()), _port(quint16(QUrl(server.url()).port())) {
    _connect();
}

Client::~Client() {
    disconnect();
}

Reply Client::send(const QByteArray &request) {
    write(request);
    return read();
}

Reply Client::sendAndEnd(const QByteArray &request) {
    write(request);
    ::shutdown(_socket, SHUT_WR);
    return read();
}

void Client::write(const QByteArray &bytes) {
    if (_socket < 0) _connect();
    for (qsizetype sent = 0; sent < bytes.size();) {
        const ssize_t step = ::send(_socket, bytes.constData() + sent, size_t(bytes.size() - sent), MSG_NOSIGNAL);
        if (step <= 0) return;
        sent += step;
    }
}

Reply Client::read() {
    QByteArray received;
    Reply reply;
    qsizetype announced = -1;
    while (announced < 0 || received.size() < announced) {
        char piece[65536];
        const ssize_t step = ::recv(_socket, piece, sizeof piece, 0);
        if (step <= 0) break;
        received.append(piece, step);
        const qsizetype end = received.indexOf("\r\n\r\n");
        if (announced >= 0 || end < 0) continue;
        reply.head = received.left(end + 2);
        reply.status = reply.head.mid(9, 3).toInt();
        const qsizetype length = reply.head.indexOf("Content-Length: ");
        announced = end + 4 + reply.head.mid(length + 16, reply.head.indexOf('\r', length) - length - 16).toLongLong();
    }
    reply.body = received.mid(reply.head.size() + 2);
    reply.isComplete = announced >= 0 && received.size() == announced;
    if (!reply.isComplete) disconnect();
    return reply;
}

void Client::disconnect() {
    if (_socket >= 0) ::close(_socket);
    _socket = -1;
}

Reply Client::post(const QByteArray &path, const QByteArray &headers, const QByteArray &body) {
    return send("POST " + path + " HTTP/1.1\r\nHost: " + _host + "\r\n" + headers +
                "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
}

Reply Client::upload(const Parameters &parameters, const QByteArray &photo) {
    return send(uploadRequest(parameters, photo));
}

Reply Client::call(const QByteArray &method, const Parameters &parameters) {
    const Parameters all = Parameters{{"method", method}} + parameters;
    QByteArrayList pairs;
    for (const auto &[name, value] : all)
        pairs.append(percentEncoded(name) + '=' + percentEncoded(value));
    return post("/services/rest/",
                authorization("/services/rest/", all) + "Content-Type: application/x-www-form-urlencoded\r\n",
                pairs.join('&'));
}

QByteArray Client::uploadRequest(const Parameters &parameters, const QByteArray &photo) const {
    const QByteArray body = multipart(parameters, photo);
    return "POST /services/upload/ HTTP/1.1\r\nHost: " + _host + "\r\n" +
           authorization("/services/upload/", parameters) +
           "Content-Type: multipart/form-data; boundary=BOUNDARY\r\nContent-Length: " +
           QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QByteArray Client::authorization(const QByteArray &path, const Parameters &body, const Parameters &changes) const {
    const Credential user = StandIn::flickrCredential();
    Parameters oauth{{"oauth_consumer_key", user.consumerKey},
                     {"oauth_token", user.token},
                     {"oauth_signature_method", "HMAC-SHA1"},
                     {"oauth_timestamp", QByteArray::number(QDateTime::currentSecsSinceEpoch())},
                     {"oauth_nonce", QByteArray::number(QRandomGenerator::global()->generate64(), 36)},
                     {"oauth_version", "1.0"}};
    for (auto &[name, value] : oauth) {
        for (const auto &[changed, newValue] : changes)
            value = changed == name ? newValue : value;
    }
    const QByteArray base = OAuthCheck::baseString({"POST", _host, path, {}, body}, oauth);
    oauth.append({"oauth_signature", OAuthCheck::signature(base, user.consumerSecret, user.tokenSecret)});
    QByteArrayList pairs;
    for (const auto &[name, value] : std::as_const(oauth))
        pairs.append(name + "=\"" + percentEncoded(value) + '"');
    return "Authorization: OAuth realm=\"a, b\", " + pairs.join(", ") + "\r\n";
}

void Client::_connect() {
    _socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const timeval patience{20, 0};
    setsockopt(_socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(_port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0) disconnect();
}

QByteArray multipart(const Parameters &parameters, const QByteArray &photo) {
    QByteArray body;
    for (const auto &[name, value] : parameters)
        body += "--BOUNDARY\r\nContent-Disposition: form-data; name=\"" + name + "\"\r\n\r\n" + value + "\r\n";
    if (!photo.isNull())
        body += "--BOUNDARY\r\nContent-Disposition: form-data; name=\"photo\"; filename=\"a \\\"b\\\".jpg\"\r\n"
                "Content-Type: image/jpeg\r\n\r\n" +
                photo + "\r\n";
    return body + "--BOUNDARY--\r\n";
}

QByteArray jpeg(qsizetype size, quint32 seed) {
    QRandomGenerator random(seed);
    QByteArray bytes("\xff\xd8\xff\xe0\r\n--BOUNDAR.");
    while (bytes.size() < size)
        bytes.append(char(random.generate()));
    bytes.truncate(size);
    return bytes;
}

QByteArray photoIdIn(const Reply &reply) {
    const qsizetype begin = reply.body.indexOf("<photoid>") + 9;
    return reply.body.mid(begin, reply.body.indexOf("</photoid>") - begin);
}

} // namespace standin::test
