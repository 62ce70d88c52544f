// A URL that keeps its text exactly as it was given.
#include "Platform/Foundation/NSURL.h"

#include <QHostAddress>
#include <QStringView>

namespace korvane {
namespace {

bool isHexDigit(QChar c) {
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

bool isLegalText(QStringView text) {
    static constexpr QStringView punctuation = u"-._~:/?#[]@!$&'()*+,;=";
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'%') {
            if (i + 2 >= text.size() || !isHexDigit(text[i + 1]) || !isHexDigit(text[i + 2])) return false;
        } else if (c.unicode() > 0x7E || (!c.isLetterOrNumber() && !punctuation.contains(c))) {
            return false;
        }
    }
    return true;
}

} // namespace

std::optional<NSURL> NSURL::URLWithString(const QString &text) {
    if (!isLegalText(text)) return std::nullopt;
    NSURL url(text);
    if (!text.isEmpty() && !url._url.isValid()) return std::nullopt;
    return url;
}

NSURL NSURL::fileURLWithPath(const QByteArray &path) {
    return NSURL(QStringLiteral("file://") + QString::fromLatin1(path.toPercentEncoding("/")));
}

QString NSURL::scheme() const {
    const qsizetype colon = _text.indexOf(u':');
    return colon > 0 && !_url.scheme().isEmpty() ? _text.left(colon) : QString();
}

bool NSURL::isLoopback() const {
    QString name = host().toLower();
    if (name.endsWith(u'.')) name.chop(1);
    return name == QLatin1String("localhost") || name.endsWith(QLatin1String(".localhost")) ||
           QHostAddress(name).isLoopback();
}

QString NSURL::query() const {
    const qsizetype start = _text.indexOf(u'?');
    if (start < 0) return {};
    const qsizetype end = _text.indexOf(u'#', start);
    return _text.mid(start + 1, end < 0 ? -1 : end - start - 1);
}

NSURL NSURL::withoutQuery() const {
    const qsizetype end = _text.indexOf(u'?');
    return NSURL(end < 0 ? _text : _text.left(end));
}

QByteArray NSURL::fileSystemRepresentation() const {
    return QByteArray::fromPercentEncoding(_url.path(QUrl::FullyEncoded).toLatin1());
}

} // namespace korvane
