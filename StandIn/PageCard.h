// One thing received, as a card on the page.
#pragma once

#include <QByteArray>
#include <QString>

namespace standin {

// Texts are plain; `media` and `chips` are HTML.
struct PageCard {
    QByteArray media;
    QString title;
    QString description;
    QByteArray chips;
    qint64 bytes = 0;
    qint64 receivedAt = 0; // milliseconds since 1970
};

QByteArray htmlOf(const PageCard &card);
// `kind` and `hint` are HTML; they become class and title.
QByteArray chipOf(const QString &text, const QByteArray &kind, const QByteArray &hint);
QByteArray escaped(const QString &text);

} // namespace standin
