#include "StandIn/VideoStore.h"

#include "StandIn/FileHash.h"
#include "StandIn/PutHead.h"

#include <QDateTime>
#include <QDir>
#include <QRandomGenerator>

#include <algorithm>

namespace standin {

namespace {

// One that no number type holds.
QByteArray freshTicketId() {
    quint32 words[4];
    QRandomGenerator::system()->fillRange(words);
    return QByteArray(reinterpret_cast<const char *>(words), sizeof words).toHex();
}

QByteArray problemOf(const Video &video, const PutHead &head) {
    if (video.id != 0) return "its ticket was committed";
    if (head.start > video.bytesStored)
        return "it starts at byte " + QByteArray::number(head.start) + ", but only " +
               QByteArray::number(video.bytesStored) + " are stored";
    if (video.totalBytes == 0) return {};
    if (head.total != 0 && head.total != video.totalBytes)
        return "the video had " + QByteArray::number(video.totalBytes) + " bytes before";
    return head.start + head.length > video.totalBytes ? "its body reaches past the video's end" : "";
}

// Whose member has the value; requests are about the newest ticket mostly. Null if there is none, or it is without
// value: the id before the commit.
template <typename Entries, typename Value>
auto *newest(Entries &entries, Value Video::*member, const Value &value) {
    const auto found =
        std::find_if(entries.rbegin(), entries.rend(), [&](const auto &entry) { return entry.video.*member == value; });
    return value == Value() || found == entries.rend() ? nullptr : &*found;
}

} // namespace

bool VideoStore::open(const QString &folder, bool keepBodies, QString *error) {
    const std::lock_guard lock(_mutex);
    _folder = folder;
    _keepBodies = keepBodies;
    if (!QDir().mkpath(_folder + QStringLiteral("/videos"))) {
        *error = _folder + QStringLiteral(": the state folder cannot be made");
        return false;
    }
    QList<QJsonObject> events;
    if (!_journal.open(_folder + QStringLiteral("/videos.jsonl"), &events, error)) return false;
    for (const QJsonObject &event : std::as_const(events))
        _replay(event);
    _finishReplay();
    return true;
}

QByteArray VideoStore::addTicket() {
    const std::lock_guard lock(_mutex);
    Entry &entry = _add(freshTicketId());
    entry.video.createdAt = QDateTime::currentMSecsSinceEpoch();
    entry.file = std::make_shared<VideoFile>(entry.video.path, 0);
    if (_record(entry)) return entry.video.ticketId;
    _entries.pop_back();
    return {};
}

void VideoStore::noteOperation(const QByteArray &operation, const QByteArray &ticketId, const QByteArray &videoId) {
    const std::lock_guard lock(_mutex);
    Entry *entry = ticketId.isEmpty() ? _withVideo(videoId) : _withTicket(ticketId);
    if (!entry) return;
    entry->video.operations.append(operation);
    _journal.append({{QStringLiteral("ticketId"), QString::fromLatin1(entry->video.ticketId)},
                     {QStringLiteral("operation"), QString::fromUtf8(operation)}});
}

std::unique_ptr<IncomingChunk> VideoStore::beginChunk(const QByteArray &ticketId, const PutHead &head,
                                                      qint64 storeLimit, QByteArray *problem) {
    const std::lock_guard lock(_mutex);
    Entry *entry = _withTicket(ticketId);
    if (!entry) {
        *problem = "there is no such ticket";
        return nullptr;
    }
    entry->video.bytesStored = entry->file->size();
    *problem = problemOf(entry->video, head);
    if (!problem->isEmpty()) return nullptr;
    _announce(*entry, head);
    const quint64 writer = entry->file->startWriting(head.start);
    const VideoChunk chunk{.start = head.start, .length = head.length, .contentRange = head.contentRange};
    return std::make_unique<IncomingChunk>(*this, ticketId, entry->file, writer, chunk, storeLimit);
}

void VideoStore::noteChunk(const QByteArray &ticketId, const VideoChunk &chunk) {
    const std::lock_guard lock(_mutex);
    Entry *entry = _withTicket(ticketId);
    if (!entry) return;
    entry->video.chunks.push_back(chunk);
    entry->video.bytesReceived += chunk.received;
    entry->video.bytesStored = entry->file->size();
    _record(*entry, {{QStringLiteral("chunk"), objectOf(chunk)}});
}

std::optional<qint64> VideoStore::bytesStored(const QByteArray &ticketId) const {
    const std::lock_guard lock(_mutex);
    const Entry *entry = _withTicket(ticketId);
    return entry && entry->video.id == 0 ? std::optional(entry->file->size()) : std::nullopt;
}

VideoStore::Commit VideoStore::commit(const QByteArray &ticketId, const QString &filename, qint64 *videoId) {
    const std::lock_guard lock(_mutex);
    Entry *entry = _withTicket(ticketId);
    if (!entry) return Commit::NoTicket;
    Video &video = entry->video;
    if (video.id != 0) return Commit::AlreadyDone;
    video.bytesStored = entry->file->size();
    if (video.bytesStored == 0 || video.bytesStored < video.bytesAnnounced) return Commit::Incomplete;
    video.id = *videoId = ++_lastId;
    video.filename = filename;
    video.committedAt = QDateTime::currentMSecsSinceEpoch();
    _record(*entry);
    ++_revision;
    return Commit::Done;
}

bool VideoStore::change(const QByteArray &videoId, const std::function<void(Video &)> &change) {
    const std::lock_guard lock(_mutex);
    Entry *entry = _withVideo(videoId);
    if (!entry) return false;
    change(entry->video);
    _record(*entry);
    ++_revision;
    return true;
}

std::vector<Video> VideoStore::videos() const {
    const std::lock_guard lock(_mutex);
    std::vector<Video> videos;
    videos.reserve(_entries.size());
    for (const Entry &entry : _entries) {
        videos.push_back(entry.video);
        videos.back().bytesStored = entry.file->size();
    }
    return videos;
}

std::optional<Video> VideoStore::video(qint64 id) const {
    const std::lock_guard lock(_mutex);
    const Entry *entry = newest(_entries, &Video::id, id);
    return entry ? std::optional(entry->video) : std::nullopt;
}

QByteArray VideoStore::sha256(const QByteArray &ticketId) {
    QString path;
    {
        const std::lock_guard lock(_mutex);
        const Entry *entry = _withTicket(ticketId);
        if (!entry || entry->video.id == 0 || !entry->video.sha256.isEmpty())
            return entry ? entry->video.sha256 : QByteArray();
        path = entry->video.path;
    }
    QByteArray hash = path.isEmpty() ? QByteArray() : sha256OfFile(path);
    const std::lock_guard lock(_mutex);
    _withTicket(ticketId)->video.sha256 = hash;
    return hash;
}

Quota VideoStore::quota() const {
    const qint64 used = bytesUsed();
    const std::lock_guard lock(_mutex);
    return _quota.value_or(Quota{.free = std::max(Space - used, qint64(0))});
}

qint64 VideoStore::bytesUsed() const {
    const std::lock_guard lock(_mutex);
    qint64 used = 0;
    for (const Entry &entry : _entries)
        used += entry.video.id != 0 ? entry.video.bytesStored : 0;
    return used;
}

void VideoStore::setQuota(const std::optional<Quota> &quota) {
    const std::lock_guard lock(_mutex);
    _quota = quota;
}

VideoStore::Entry *VideoStore::_withTicket(const QByteArray &ticketId) {
    return newest(_entries, &Video::ticketId, ticketId);
}

const VideoStore::Entry *VideoStore::_withTicket(const QByteArray &ticketId) const {
    return newest(_entries, &Video::ticketId, ticketId);
}

VideoStore::Entry *VideoStore::_withVideo(const QByteArray &videoId) {
    return newest(_entries, &Video::id, videoId.toLongLong());
}

VideoStore::Entry &VideoStore::_add(const QByteArray &ticketId) {
    Entry &entry = _entries.emplace_back();
    entry.video.ticketId = ticketId;
    if (_keepBodies) entry.video.path = _pathOf(ticketId);
    return entry;
}

// Kept before the bytes come, so that half a chunk is known as half also after a crash.
void VideoStore::_announce(Entry &entry, const PutHead &head) {
    Video &video = entry.video;
    if (head.total != 0) video.totalBytes = head.total;
    const qint64 end = std::max(head.total, head.start + head.length);
    if (end <= video.bytesAnnounced) return;
    video.bytesAnnounced = end;
    _record(entry);
}

bool VideoStore::_record(const Entry &entry, const QJsonObject &more) {
    QJsonObject event = factsOf(entry.video);
    for (auto value = more.begin(); value != more.end(); ++value)
        event.insert(value.key(), value.value());
    return _journal.append(event);
}

void VideoStore::_replay(const QJsonObject &event) {
    const QByteArray ticketId = event.value(QStringLiteral("ticketId")).toString().toLatin1();
    // The name becomes a file's.
    if (ticketId.size() != 32 || QByteArray::fromHex(ticketId).toHex() != ticketId) return;
    Entry *entry = _withTicket(ticketId);
    if (!entry) entry = &_add(ticketId);
    apply(event, &entry->video);
    _lastId = std::max(_lastId, entry->video.id);
}

// Of an upload under way the file knows best how much of it came.
void VideoStore::_finishReplay() {
    QDir folder(_folder + QStringLiteral("/videos"));
    for (Entry &entry : _entries) {
        Video &video = entry.video;
        if (video.id != 0 && !QFile::exists(video.path)) video.path.clear();
        entry.file = std::make_shared<VideoFile>(video.path, video.bytesStored);
        video.bytesStored = entry.file->size();
    }
    for (const QString &name : folder.entryList(QDir::Files)) {
        if (!_withTicket(name.toLatin1())) folder.remove(name);
    }
}

QString VideoStore::_pathOf(const QByteArray &ticketId) const {
    return QStringLiteral("%1/videos/%2").arg(_folder, QString::fromLatin1(ticketId));
}

} // namespace standin
