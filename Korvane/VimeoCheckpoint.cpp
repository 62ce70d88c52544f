// How far a video has come on its way to Vimeo.
#include "Korvane/VimeoCheckpoint.h"

#include "Platform/Foundation/NSNumber.h"

namespace korvane {

QVariantMap VimeoCheckpoint::dictionary() const {
    QVariantMap dictionary{{QStringLiteral("bytesStored"), qint64(bytesStored)},
                           {QStringLiteral("commitSent"), commitSent}};
    // As texts, which hold any number.
    if (ticketID.isValid()) dictionary.insert(QStringLiteral("ticketID"), textValue(ticketID));
    if (endpoint) dictionary.insert(QStringLiteral("endpoint"), endpoint->absoluteString());
    if (videoID.isValid()) dictionary.insert(QStringLiteral("videoID"), textValue(videoID));
    if (mayUseCellular) dictionary.insert(QStringLiteral("mayUseCellular"), *mayUseCellular);
    return dictionary;
}

VimeoCheckpoint VimeoCheckpoint::withDictionary(const QVariantMap &dictionary) {
    VimeoCheckpoint checkpoint;
    checkpoint.ticketID = dictionary.value(QStringLiteral("ticketID"));
    if (const QString endpoint = dictionary.value(QStringLiteral("endpoint")).toString(); !endpoint.isEmpty())
        checkpoint.endpoint = NSURL::URLWithString(endpoint);
    checkpoint.bytesStored = quint64(integerValue(dictionary.value(QStringLiteral("bytesStored"))));
    checkpoint.commitSent = boolValue(dictionary.value(QStringLiteral("commitSent")));
    checkpoint.videoID = dictionary.value(QStringLiteral("videoID"));
    if (const QVariant cellular = dictionary.value(QStringLiteral("mayUseCellular")); cellular.isValid())
        checkpoint.mayUseCellular = boolValue(cellular);
    return checkpoint;
}

} // namespace korvane
