#include "StandIn/FlickrAnswer.h"

namespace standin {

namespace {

const QByteArray Head("<?xml version=\"1.0\" encoding=\"utf-8\" ?>\n");

QByteArray escaped(const QString &text) {
    return text.toHtmlEscaped().toUtf8();
}

QByteArray attribute(const char *name, const QByteArray &value) {
    return ' ' + QByteArray(name) + "=\"" + escaped(QString::fromUtf8(value)) + '"';
}

QByteArray attribute(const char *name, qint64 value) {
    return attribute(name, QByteArray::number(value));
}

QByteArray albumElement(const Album &album) {
    return "  <photoset" + attribute("id", album.id) + attribute("primary", album.photos.value(0)) +
           attribute("secret", "5ec2e7") + attribute("server", "65535") + attribute("farm", "66") +
           attribute("photos", album.photos.size()) + attribute("videos", "0") + ">\n    <title>" +
           escaped(album.title) + "</title>\n    <description>" + escaped(album.description) +
           "</description>\n  </photoset>\n";
}

} // namespace

QByteArray flickrOk(const QByteArray &content) {
    return Head + "<rsp stat=\"ok\">\n" + content + "\n</rsp>\n";
}

QByteArray flickrFailure(int code, const QByteArray &message) {
    return Head + "<rsp stat=\"fail\">\n<err" + attribute("code", code) + attribute("msg", message) + " />\n</rsp>\n";
}

QByteArray flickrAlbumList(const std::vector<Album> &albums, qint64 page, qint64 perPage) {
    const qint64 total = qint64(albums.size());
    QByteArray list = "<photosets cancreate=\"1\"" + attribute("page", page) +
                      attribute("pages", (total + perPage - 1) / perPage) + attribute("perpage", perPage) +
                      attribute("total", total) + ">\n";
    for (qint64 i = (page - 1) * perPage; i < std::min(total, page * perPage); ++i)
        list += albumElement(albums.at(size_t(i)));
    return flickrOk(list + "</photosets>");
}

QByteArray flickrLogin(const QByteArray &userId, const QByteArray &username) {
    return flickrOk("<user" + attribute("id", userId) + "><username>" + escaped(QString::fromUtf8(username)) +
                    "</username></user>");
}

} // namespace standin
