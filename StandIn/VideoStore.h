// The videos received, from their tickets on, on disk, so that they survive restarts.
#pragma once

#include "StandIn/IncomingChunk.h"
#include "StandIn/StateJournal.h"
#include "StandIn/Video.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>

namespace standin {

struct PutHead;

// Space on the account; what is told when the quota is asked for.
struct Quota {
    qint64 free = 0; // bytes
    bool hd = true;  // whether a video in high or in standard definition may still be uploaded
    bool sd = true;
};

// Thread: any.
class VideoStore {
public:
    enum class Commit { Done, NoTicket, AlreadyDone, Incomplete };

    static constexpr qint64 Space = 1'000'000'000'000; // bytes

    // False with a reason on failure.
    bool open(const QString &folder, bool keepBodies, QString *error);

    // A fresh ticket's id; empty when the disk does not take it.
    QByteArray addTicket();
    // That the operation named the ticket, or the video if `ticketId` is empty. Unknown ones are ignored.
    void noteOperation(const QByteArray &operation, const QByteArray &ticketId, const QByteArray &videoId);

    // The head of a chunk. Bytes stored from its start on are forgotten. Null, and why, when the ticket's state does
    // not allow it. No more than `storeLimit` bytes of it will be stored.
    std::unique_ptr<IncomingChunk> beginChunk(const QByteArray &ticketId, const PutHead &head, qint64 storeLimit,
                                              QByteArray *problem);
    void noteChunk(const QByteArray &ticketId, const VideoChunk &chunk);
    // Nothing when there is no such ticket, or it was committed.
    std::optional<qint64> bytesStored(const QByteArray &ticketId) const;

    // Gives the video its id, which is larger than every one before.
    Commit commit(const QByteArray &ticketId, const QString &filename, qint64 *videoId);
    // False when there is no such video.
    bool change(const QByteArray &videoId, const std::function<void(Video &)> &change);

    // All tickets, in the order given out; without SHA-256.
    std::vector<Video> videos() const;
    std::optional<Video> video(qint64 id) const;
    // Computed when first asked for; empty before the commit.
    QByteArray sha256(const QByteArray &ticketId);

    // What is left of the space, unless told otherwise.
    Quota quota() const;
    qint64 bytesUsed() const;
    void setQuota(const std::optional<Quota> &quota);

    // Grows with every commit and every change after it.
    qint64 revision() const { return _revision; }

private:
    struct Entry {
        Video video;
        std::shared_ptr<VideoFile> file;
    };

    Entry *_withTicket(const QByteArray &ticketId);
    const Entry *_withTicket(const QByteArray &ticketId) const;
    Entry *_withVideo(const QByteArray &videoId);
    Entry &_add(const QByteArray &ticketId);
    void _announce(Entry &entry, const PutHead &head);
    bool _record(const Entry &entry, const QJsonObject &more = {});
    void _replay(const QJsonObject &event);
    void _finishReplay();
    QString _pathOf(const QByteArray &ticketId) const;

    QString _folder;
    bool _keepBodies = true;
    mutable std::mutex _mutex;
    StateJournal _journal;
    std::vector<Entry> _entries;
    std::optional<Quota> _quota;
    qint64 _lastId = 5'300'000'000; // ids do not fit into 32 bits
    std::atomic<qint64> _revision = 0;
};

} // namespace standin
