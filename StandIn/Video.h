// A video as the Vimeo half knows it, from its ticket on.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

#include <optional>
#include <vector>

namespace standin {

// A chunk that was not refused; all in bytes.
struct VideoChunk {
    qint64 start = 0;
    qint64 length = 0;                           // as announced
    qint64 received = 0;                         // less than announced when the connection broke
    qint64 stored = 0;                           // less than received when something was lost on purpose
    std::optional<QByteArray> contentRange = {}; // the header as it came; nothing for a first chunk
};

struct Video {
    QByteArray ticketId;
    qint64 id = 0;             // given at the commit; 0 before
    qint64 bytesStored = 0;    // now
    qint64 totalBytes = 0;     // as the chunks after a first one say; 0 when there were none
    qint64 bytesAnnounced = 0; // to where the chunks reach by what their heads say, also of those under way
    qint64 bytesReceived = 0;  // in all chunks together
    std::vector<VideoChunk> chunks;
    QList<QByteArray> operations; // that named the ticket or the video, refused ones and failed ones, too
    QString filename;
    QString title;
    QString description;
    QStringList tags;
    QString privacy;        // "anybody", "nobody"; empty until set
    QByteArray sha256;      // hexadecimal; empty before the commit and when bodies are not kept
    QString path;           // of the file with its bytes; empty when bodies are not kept
    qint64 createdAt = 0;   // milliseconds since 1970
    qint64 committedAt = 0; // 0 before

    qint64 commits() const { return operations.count("complete"); }
    qint64 endpointHits() const { return operations.count("chunk") + operations.count("verify"); }
};

// All but chunks, operations, SHA-256 and path.
QJsonObject factsOf(const Video &video);
QJsonObject objectOf(const VideoChunk &chunk);
// Sets the facts, and appends the "chunk" and the "operation" if the object has one.
void apply(const QJsonObject &event, Video *video);

} // namespace standin
