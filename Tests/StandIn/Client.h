// A client of the stand-in, whose requests a test can spoil as it likes.
#pragma once

#include "StandIn/StandIn.h"

#include <QDateTime>
#include <QRandomGenerator>

#include <httplib.h>

namespace standin::test {

struct Reply {
    int status = 0; // 0: the connection ended without a whole answer
    QByteArray body;
    httplib::Headers headers;
};

// A JPEG by its first bytes; the rest is different for each seed.
inline QByteArray jpeg(qsizetype size, quint32 seed = 1) {
    QRandomGenerator random(seed);
    QByteArray bytes("\xff\xd8\xff\xe0\r\n--BOUNDAR.");
    while (bytes.size() < size)
        bytes.append(char(random.generate()));
    return bytes.left(size);
}

// A multipart body with the boundary "BOUNDARY"; a null photo is left out.
inline QByteArray multipart(const Parameters &parameters, const QByteArray &photo) {
    QByteArray body;
    for (const auto &[name, value] : parameters)
        body += "--BOUNDARY\r\nContent-Disposition: form-data; name=\"" + name + "\"\r\n\r\n" + value + "\r\n";
    if (!photo.isNull())
        body += "--BOUNDARY\r\nContent-Disposition: form-data; name=\"photo\"; filename=\"a \\\"b\\\".jpg\"\r\n"
                "Content-Type: image/jpeg\r\n\r\n" +
                photo + "\r\n";
    return body + "--BOUNDARY--\r\n";
}

class Client {
public:
    explicit Client(const StandIn &server) : _host(server.url().mid(7).toUtf8()), _http(server.url().toStdString()) {}

    Reply get(const QByteArray &path) { return _reply(_http.Get(path.toStdString())); }
    Reply post(const char *path, const httplib::Headers &headers, const QByteArray &body, const char *type) {
        return _reply(_http.Post(path, headers, body.toStdString(), type));
    }
    // Signed as the test user, with fresh nonce and time stamp.
    Reply upload(const Parameters &parameters, const QByteArray &photo) {
        return uploadSigned(authorization("/services/upload/", parameters), parameters, photo);
    }
    Reply uploadSigned(const httplib::Headers &headers, const Parameters &parameters, const QByteArray &photo) {
        return post("/services/upload/", headers, multipart(parameters, photo),
                    "multipart/form-data; boundary=BOUNDARY");
    }
    Reply call(const QByteArray &method, const Parameters &parameters = {}) {
        const Parameters all = Parameters{{"method", method}} + parameters;
        QByteArrayList pairs;
        for (const auto &[name, value] : all)
            pairs.append(percentEncoded(name) + '=' + percentEncoded(value));
        return post("/services/rest/", authorization("/services/rest/", all), pairs.join('&'),
                    "application/x-www-form-urlencoded");
    }

    httplib::Headers authorization(const QByteArray &path, const Parameters &body) const {
        const Credential user = StandIn::flickrCredential();
        Parameters oauth{{"oauth_consumer_key", user.consumerKey},
                         {"oauth_token", user.token},
                         {"oauth_signature_method", "HMAC-SHA1"},
                         {"oauth_timestamp", QByteArray::number(QDateTime::currentSecsSinceEpoch())},
                         {"oauth_nonce", QByteArray::number(QRandomGenerator::global()->generate64(), 36)}};
        const QByteArray base = OAuthCheck::baseString({"POST", _host, path, {}, body}, oauth);
        oauth.append({"oauth_signature", OAuthCheck::signature(base, user.consumerSecret, user.tokenSecret)});
        QByteArrayList pairs;
        for (const auto &[name, value] : std::as_const(oauth))
            pairs.append(name + "=\"" + percentEncoded(value) + '"');
        return {{"Authorization", "OAuth realm=\"a, b\", " + pairs.join(", ").toStdString()}};
    }

private:
    static Reply _reply(const httplib::Result &result) {
        if (!result) return {};
        return {result->status, QByteArray::fromStdString(result->body), result->headers};
    }

    QByteArray _host;
    httplib::Client _http;
};

inline QByteArray photoIdIn(const Reply &reply) {
    const qsizetype begin = reply.body.indexOf("<photoid>") + 9;
    return reply.body.mid(begin, reply.body.indexOf("</photoid>") - begin);
}

} // namespace standin::test
