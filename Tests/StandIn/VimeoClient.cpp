#include "Tests/StandIn/VimeoClient.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QUrl>

namespace standin::test {

QJsonValue VimeoClient::method(const QByteArray &name, const Parameters &parameters) {
    const RawReply reply = rest(Parameters{{"method", "vimeo.videos." + name}} + parameters);
    return QJsonDocument::fromJson(reply.body).object();
}

RawReply VimeoClient::rest(const Parameters &form, const QByteArray &query) {
    QByteArrayList pairs;
    for (const auto &[name, value] : form)
        pairs.append(percentEncoded(name) + '=' + percentEncoded(value));
    const QByteArray target = "/api/rest/v2?" + query;
    return post(target, signedAs("POST", target, form) + "Content-Type: application/x-www-form-urlencoded\r\n",
                pairs.join('&'));
}

QByteArray VimeoClient::ticket() {
    const QJsonValue answer = method("upload.getTicket", {{"upload_method", "streaming"}});
    const QUrl endpoint(answer[QLatin1String("ticket")][QLatin1String("endpoint")].toString());
    return endpoint.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority);
}

RawReply VimeoClient::put(const QByteArray &target, const QByteArray &headers, const QByteArray &body) {
    return send("PUT " + target + " HTTP/1.1\r\nHost: " + host() + "\r\n" + signedAs("PUT", target) + headers +
                "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
}

RawReply VimeoClient::chunk(const QByteArray &target, const QByteArray &bytes, const QByteArray &range) {
    return put(target,
               "Content-Type: video/mp4\r\n" +
                   (range.isEmpty() ? QByteArray() : "Content-Range: bytes " + range + "\r\n"),
               bytes);
}

qint64 VimeoClient::verify(const QByteArray &target) {
    const RawReply reply = put(target, "Content-Range: bytes */*\r\n", {});
    const QByteArray range = headerIn(reply, "Range");
    return reply.status == 308 && range.startsWith("bytes=0-") ? range.mid(8).toLongLong() : -1;
}

QByteArray VimeoClient::signedAs(const QByteArray &verb, const QByteArray &target, const Parameters &form) const {
    const Credential user = StandIn::vimeoCredential();
    Parameters oauth{{"oauth_consumer_key", user.consumerKey},
                     {"oauth_token", user.token},
                     {"oauth_signature_method", "HMAC-SHA1"},
                     {"oauth_timestamp", QByteArray::number(QDateTime::currentSecsSinceEpoch())},
                     {"oauth_nonce", QByteArray::number(QRandomGenerator::global()->generate64(), 36)}};
    const QByteArray base = OAuthCheck::baseString({verb, host(), target, {}, form}, oauth);
    oauth.append({"oauth_signature", OAuthCheck::signature(base, user.consumerSecret, user.tokenSecret)});
    QByteArrayList pairs;
    for (const auto &[name, value] : std::as_const(oauth))
        pairs.append(name + "=\"" + percentEncoded(value) + '"');
    return "Authorization: OAuth " + pairs.join(", ") + "\r\n";
}

QByteArray video(qsizetype size, quint32 seed) {
    QRandomGenerator random(seed);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(random.generate());
    return bytes;
}

QByteArray headerIn(const RawReply &reply, const QByteArray &name) {
    const qsizetype line = reply.head.indexOf("\r\n" + name + ": ");
    const qsizetype value = line + name.size() + 4;
    return line < 0 ? QByteArray() : reply.head.mid(value, reply.head.indexOf("\r\n", value) - value);
}

} // namespace standin::test
