#include "StandIn/Video.h"

#include <QJsonArray>

namespace standin {

namespace {

VideoChunk chunkOf(const QJsonObject &object) {
    const auto number = [&](const char *key) { return object.value(QLatin1String(key)).toInteger(); };
    const auto range = object.value(QStringLiteral("contentRange"));
    return {.start = number("start"),
            .length = number("length"),
            .received = number("received"),
            .stored = number("stored"),
            .contentRange = range.isString() ? std::optional(range.toString().toLatin1()) : std::nullopt};
}

void applyFacts(const QJsonObject &facts, Video *video) {
    const auto number = [&](const char *key) { return facts.value(QLatin1String(key)).toInteger(); };
    const auto text = [&](const char *key) { return facts.value(QLatin1String(key)).toString(); };
    video->id = text("videoId").toLongLong();
    video->bytesStored = number("bytesStored");
    video->totalBytes = number("totalBytes");
    video->bytesAnnounced = number("bytesAnnounced");
    video->bytesReceived = number("bytesReceived");
    video->filename = text("filename");
    video->title = text("title");
    video->description = text("description");
    video->tags = facts.value(QStringLiteral("tags")).toVariant().toStringList();
    video->privacy = text("privacy");
    video->createdAt = number("createdAt");
    video->committedAt = number("committedAt");
}

} // namespace

QJsonObject factsOf(const Video &video) {
    return {{QStringLiteral("ticketId"), QString::fromLatin1(video.ticketId)},
            {QStringLiteral("videoId"), video.id ? QString::number(video.id) : QString()},
            {QStringLiteral("bytesStored"), video.bytesStored},
            {QStringLiteral("totalBytes"), video.totalBytes},
            {QStringLiteral("bytesAnnounced"), video.bytesAnnounced},
            {QStringLiteral("bytesReceived"), video.bytesReceived},
            {QStringLiteral("filename"), video.filename},
            {QStringLiteral("title"), video.title},
            {QStringLiteral("description"), video.description},
            {QStringLiteral("tags"), QJsonArray::fromStringList(video.tags)},
            {QStringLiteral("privacy"), video.privacy},
            {QStringLiteral("createdAt"), video.createdAt},
            {QStringLiteral("committedAt"), video.committedAt}};
}

QJsonObject objectOf(const VideoChunk &chunk) {
    return {{QStringLiteral("start"), chunk.start},
            {QStringLiteral("length"), chunk.length},
            {QStringLiteral("received"), chunk.received},
            {QStringLiteral("stored"), chunk.stored},
            {QStringLiteral("contentRange"),
             chunk.contentRange ? QJsonValue(QString::fromLatin1(*chunk.contentRange)) : QJsonValue()}};
}

void apply(const QJsonObject &event, Video *video) {
    if (event.contains(QStringLiteral("createdAt"))) applyFacts(event, video);
    if (const auto chunk = event.value(QStringLiteral("chunk")); chunk.isObject())
        video->chunks.push_back(chunkOf(chunk.toObject()));
    if (const auto operation = event.value(QStringLiteral("operation")); operation.isString())
        video->operations.append(operation.toString().toUtf8());
}

} // namespace standin
