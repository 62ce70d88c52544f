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

QJsonValue timeOf(qint64 milliseconds) {
    if (milliseconds == 0) return {};
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC).toString(Qt::ISODateWithMs);
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
            {QStringLiteral("receivedAt"), timeOf(photo.receivedAt)}};
}

QJsonArray photosIn(PhotoStore &store) {
    QJsonArray photos;
    for (const Photo &photo : store.photos())
        photos.append(objectOf(photo, store.sha256(photo.id)));
    return photos;
}

QJsonArray albumsIn(const PhotoStore &store) {
    QJsonArray albums;
    for (const Album &album : store.albums()) {
        albums.append(QJsonObject{{QStringLiteral("id"), QString::number(album.id)},
                                  {QStringLiteral("title"), album.title},
                                  {QStringLiteral("photos"), idsOf(album.photos)}});
    }
    return albums;
}

QJsonObject objectOf(const Video &video, const QByteArray &sha256) {
    QJsonArray chunks;
    for (const VideoChunk &chunk : video.chunks)
        chunks.append(objectOf(chunk));
    QJsonArray operations;
    for (const QByteArray &operation : video.operations)
        operations.append(QString::fromUtf8(operation));
    QJsonObject object = factsOf(video);
    object[QStringLiteral("createdAt")] = timeOf(video.createdAt);
    object[QStringLiteral("committedAt")] = timeOf(video.committedAt);
    object[QStringLiteral("sha256")] = QString::fromLatin1(sha256);
    object[QStringLiteral("endpointHits")] = video.endpointHits();
    object[QStringLiteral("commits")] = video.commits();
    object[QStringLiteral("operations")] = operations;
    object[QStringLiteral("chunks")] = chunks;
    return object;
}

QJsonArray videosIn(VideoStore &store) {
    QJsonArray videos;
    for (const Video &video : store.videos())
        videos.append(objectOf(video, store.sha256(video.ticketId)));
    return videos;
}

} // namespace

QByteArray stateJson(ServiceContext &context) {
    const QJsonObject state{
        {QStringLiteral("revision"), context.revision()},
        {QStringLiteral("photos"), photosIn(context.photos)},
        {QStringLiteral("albums"), albumsIn(context.photos)},
        {QStringLiteral("videos"), videosIn(context.videos)},
        {QStringLiteral("protocolErrors"), QJsonArray::fromStringList(context.protocolErrors.all())}};
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
