#include "StandIn/PageCard.h"

#include <QDateTime>
#include <QLocale>

namespace standin {

QByteArray htmlOf(const PageCard &card) {
    const QByteArray title = escaped(card.title);
    const QByteArray description = escaped(card.description);
    const QByteArray heading =
        title.isEmpty() ? "<h2 class=\"none\">Untitled</h2>" : "<h2 dir=\"auto\">" + title + "</h2>";
    const QDateTime received = QDateTime::fromMSecsSinceEpoch(card.receivedAt);
    return "<article>" + card.media + "<div class=\"text\">" + heading +
           (description.isEmpty() ? QByteArray() : "<p class=\"about\" dir=\"auto\">" + description + "</p>") +
           "<div class=\"chips\">" + card.chips + "</div><p class=\"facts\"><span>" +
           escaped(QLocale::c().formattedDataSize(card.bytes)) + "</span><time>" +
           received.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toUtf8() + "</time></p></div></article>\n";
}

QByteArray chipOf(const QString &text, const QByteArray &kind, const QByteArray &hint) {
    return "<span class=\"chip" + (kind.isEmpty() ? QByteArray() : ' ' + kind) + '"' +
           (hint.isEmpty() ? QByteArray() : " title=\"" + hint + '"') + '>' + escaped(text) + "</span>";
}

QByteArray escaped(const QString &text) {
    return text.toHtmlEscaped().toUtf8();
}

} // namespace standin
