// The two body encodings of a signed request.
#include "Platform/Social/RequestBody.h"

#include <QUrl>
#include <QUuid>

namespace korvane {
namespace {

// RFC 7578 leaves quoting open; this is what browsers do and servers understand.
QByteArray quoted(const QString &text) {
    QByteArray bytes = text.toUtf8();
    return '"' + bytes.replace('"', "%22").replace('\r', "%0D").replace('\n', "%0A") + '"';
}

} // namespace

RequestBody RequestBody::form(const OAuthParameters &parameters) {
    QByteArray text;
    for (const auto &[name, value] : parameters)
        text += (text.isEmpty() ? "" : "&") + QUrl::toPercentEncoding(name) + '=' + QUrl::toPercentEncoding(value);
    return {"application/x-www-form-urlencoded", {NSData(text)}};
}

RequestBody RequestBody::multipart(const OAuthParameters &parameters, const std::vector<MultipartPart> &parts) {
    // 122 random bits: no photo holds this boundary.
    const QByteArray boundary = "korvane-" + QUuid::createUuid().toByteArray(QUuid::Id128);
    RequestBody body{"multipart/form-data; boundary=" + boundary, {}};
    QByteArray text;
    for (const auto &[name, value] : parameters)
        text += "--" + boundary + "\r\nContent-Disposition: form-data; name=" + quoted(name) + "\r\n\r\n" +
                value.toUtf8() + "\r\n";
    for (const MultipartPart &part : parts) {
        text += "--" + boundary + "\r\nContent-Disposition: form-data; name=" + quoted(part.name);
        if (part.filename) text += "; filename=" + quoted(*part.filename);
        text += "\r\nContent-Type: " + part.type.toLatin1() + "\r\n\r\n";
        body.pieces.emplace_back(text);
        body.pieces.push_back(part.data);
        text = "\r\n";
    }
    body.pieces.emplace_back(text + "--" + boundary + "--\r\n");
    return body;
}

} // namespace korvane
