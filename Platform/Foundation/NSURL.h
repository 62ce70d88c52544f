// A URL that keeps its text exactly as it was given.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

namespace korvane {

// QUrl rewrites some escapes (%7E, %2e); what is signed, stored or compared must not change, so the text stands beside
// it.
class NSURL {
public:
    // Null if the text is not a valid URL of RFC 3986 (white space, non-ASCII characters, a bare "%").
    static std::optional<NSURL> URLWithString(const QString &text);
    // The "file" URL of an absolute path, given in the file system's own bytes.
    static NSURL fileURLWithPath(const QByteArray &path);

    const QString &absoluteString() const { return _text; }
    QString scheme() const;
    QString host() const { return _url.host(); }
    int port() const { return _url.port(); } // -1 where the text names none
    // Whether the host is this machine by its usual name or a loopback address; no name is looked up.
    bool isLoopback() const;
    // The path, percent-decoded.
    QString path() const { return _url.path(QUrl::FullyDecoded); }
    // The query as written, without "?"; empty where there is none.
    QString query() const;
    // The same URL up to its query and fragment.
    NSURL withoutQuery() const;

    bool isFileURL() const { return scheme() == QLatin1String("file"); }
    // The decoded path as the bytes that the file system takes, which need not be UTF-8.
    QByteArray fileSystemRepresentation() const;

    friend bool operator==(const NSURL &a, const NSURL &b) { return a._text == b._text; }

private:
    explicit NSURL(const QString &text) : _text(text), _url(text, QUrl::StrictMode) {}
    QString _text;
    QUrl _url;
};

} // namespace korvane
