#include "StandIn/StateJson.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace standin {

namespace {

QJsonArray idsOf(const QList<qint64> &ids) {
    QJsonArray array;
    for (const qint64 id : ids)
        array.append(QString::number(id));
    return array;
}

QJsonObject objectOf(const Photo &photo, const QByteArray &sha256) {
    const auto parameter = [&](const char *name) { return QString::fromUtf8(valueOf(photo.parameters, name)); };
    return {{QStringLiteral("id"), QString::number(photo.id)},
            {QStringLiteral("title"), parameter("title")},
            {QStringLiteral("description"), parameter("description")},
            {QStringLiteral("tags"), QJsonArray::fromStringList(tagsOf(valueOf(photo.parameters, "tags")))},
            {QStringLiteral("isPublic"), isSet(photo, "is_public")},
            {QStringLiteral("isFriend"), isSet(photo, "is_friend")},
            {QStringLiteral("isFamily"), isSet(photo, "is_family")},
            {QStringLiteral("hidden"), isSet(photo, "hidden")},
            {QStringLiteral("contentType"), QString::fromUtf8(photo.contentType)},
            {QStringLiteral("bytes"), photo.bytes},
            {QStringLiteral("sha256"), QString::fromLatin1(sha256)},
            {QStringLiteral("albums"), idsOf(photo.albums)},
            {QStringLiteral("receivedAt"),
             QDateTime::fromMSecsSinceEpoch(photo.receivedAt, Qt::UTC).toString(Qt::ISODateWithMs)}};
}

} // namespace

QByteArray stateJson(PhotoStore &store) {
    QJsonArray photos;
    for (const Photo &photo : store.photos())
        photos.append(objectOf(photo, store.sha256(photo.id)));
    QJsonArray albums;
    for (const Album &album : store.albums()) {
        albums.append(QJsonObject{{QStringLiteral("id"), QString::number(album.id)},
                                  {QStringLiteral("title"), album.title},
                                  {QStringLiteral("photos"), idsOf(album.photos)}});
    }
    const QJsonObject state{{QStringLiteral("revision"), store.revision()},
                            {QStringLiteral("photos"), photos},
                            {QStringLiteral("albums"), albums}};
    return QJsonDocument(state).toJson(QJsonDocument::Compact) + '\n';
}

QStringList tagsOf(const QByteArray &tags) {
    QStringList list;
    QString tag;
    bool quoted = false;
    for (const QChar character : QString::fromUtf8(tags) + QLatin1Char(' ')) {
        const bool quote = character == QLatin1Char('"');
        if (quote) quoted = !quoted;
        const bool ends = quote || (character.isSpace() && !quoted);
        if (!ends) tag.append(character);
        if (ends && !tag.trimmed().isEmpty()) list.append(tag.trimmed());
        if (ends) tag.clear();
    }
    if (!tag.trimmed().isEmpty()) list.append(tag.trimmed());
    return list;
}

bool isSet(const Photo &photo, const QByteArray &parameter) {
    if (parameter == "hidden") return valueOf(photo.parameters, parameter) == "2";
    const bool present = std::any_of(photo.parameters.begin(), photo.parameters.end(),
                                     [&](const Parameter &sent) { return sent.first == parameter; });
    return present ? valueOf(photo.parameters, parameter) == "1" : parameter == "is_public";
}

} // namespace standin
