#include "StandIn/PhotoStore.h"

#include "StandIn/FileHash.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>

#include <algorithm>

namespace standin {

namespace {

constexpr qint64 FirstAlbumId = 72'157'600'000'000'001;
constexpr qint64 AlbumIdStep = 1009;

QString text(const QByteArray &bytes) {
    return QString::fromUtf8(bytes);
}

QJsonObject eventOf(const Photo &photo) {
    QJsonArray parameters;
    for (const auto &[name, value] : photo.parameters)
        parameters.append(QJsonArray{text(name), text(value)});
    return {{QStringLiteral("photo"), QString::number(photo.id)},
            {QStringLiteral("parameters"), parameters},
            {QStringLiteral("imageType"), text(photo.imageType)},
            {QStringLiteral("contentType"), text(photo.contentType)},
            {QStringLiteral("bytes"), QString::number(photo.bytes)},
            {QStringLiteral("receivedAt"), QString::number(photo.receivedAt)}};
}

qint64 number(const QJsonObject &event, const QString &key) {
    return event.value(key).toString().toLongLong();
}

Photo photoOf(const QJsonObject &event) {
    Photo photo;
    photo.id = number(event, QStringLiteral("photo"));
    const QJsonArray parameters = event.value(QStringLiteral("parameters")).toArray();
    for (const auto pair : parameters)
        photo.parameters.append({pair.toArray().at(0).toString().toUtf8(), pair.toArray().at(1).toString().toUtf8()});
    photo.imageType = event.value(QStringLiteral("imageType")).toString().toUtf8();
    photo.contentType = event.value(QStringLiteral("contentType")).toString().toUtf8();
    photo.bytes = number(event, QStringLiteral("bytes"));
    photo.receivedAt = number(event, QStringLiteral("receivedAt"));
    return photo;
}

} // namespace

bool PhotoStore::open(const QString &folder, int albums, bool keepBodies, QString *error) {
    const std::lock_guard lock(_mutex);
    _folder = folder;
    _keepBodies = keepBodies;
    _makeAlbums(albums);
    QList<QJsonObject> events;
    if (!_prepareFolders(error) || !_journal.open(_folder + QStringLiteral("/journal.jsonl"), &events, error))
        return false;
    for (const QJsonObject &event : std::as_const(events))
        _replay(event);
    _removeStrangers();
    return true;
}

std::unique_ptr<IncomingPhoto> PhotoStore::receive() {
    const qint64 number = ++_arrivals;
    return std::make_unique<IncomingPhoto>(_keepBodies ? QStringLiteral("%1/incoming/%2").arg(_folder).arg(number)
                                                       : QString());
}

qint64 PhotoStore::add(IncomingPhoto &incoming, Photo photo) {
    const std::lock_guard lock(_mutex);
    photo.id = _lastId + 1;
    photo.bytes = incoming.bytes();
    photo.imageType = incoming.imageType();
    photo.receivedAt = QDateTime::currentMSecsSinceEpoch();
    for (auto &[name, value] : photo.parameters)
        value = text(value).toUtf8();
    if (_keepBodies) photo.path = _pathOf(photo.id);
    if (!incoming.moveTo(photo.path)) return 0;
    if (!_journal.append(eventOf(photo))) {
        QFile::remove(photo.path);
        return 0;
    }
    _lastId = photo.id;
    _photos[photo.id] = photo;
    ++_revision;
    return photo.id;
}

PhotoStore::Filing PhotoStore::file(qint64 photo, qint64 album) {
    const std::lock_guard lock(_mutex);
    if (!_albums.contains(album)) return Filing::NoAlbum;
    if (!_photos.contains(photo)) return Filing::NoPhoto;
    if (!_putInto(photo, album)) return Filing::AlreadyThere;
    _journal.append(
        {{QStringLiteral("filed"), QString::number(photo)}, {QStringLiteral("album"), QString::number(album)}});
    ++_revision;
    return Filing::Done;
}

std::vector<Photo> PhotoStore::photos() const {
    const std::lock_guard lock(_mutex);
    std::vector<Photo> photos;
    photos.reserve(_photos.size());
    for (const auto &[id, photo] : _photos)
        photos.push_back(photo);
    return photos;
}

std::optional<Photo> PhotoStore::photo(qint64 id) const {
    const std::lock_guard lock(_mutex);
    const auto found = _photos.find(id);
    return found == _photos.end() ? std::nullopt : std::optional(found->second);
}

std::vector<Album> PhotoStore::albums() const {
    const std::lock_guard lock(_mutex);
    std::vector<Album> albums;
    albums.reserve(_albums.size());
    for (const auto &[id, album] : _albums)
        albums.push_back(album);
    return albums;
}

QByteArray PhotoStore::sha256(qint64 id) {
    const auto known = photo(id);
    if (!known || !known->sha256.isEmpty() || known->path.isEmpty()) return known ? known->sha256 : QByteArray();
    const QByteArray hash = sha256OfFile(known->path);
    const std::lock_guard lock(_mutex);
    _photos[id].sha256 = hash;
    return hash;
}

void PhotoStore::_makeAlbums(int count) {
    static const Album named[] = {
        {0, QStringLiteral("Holidays"), QStringLiteral("Sun, sand & <sea>"), {}},
        {0, QStringLiteral("Family & friends"), QString(), {}},
        {0, QStringLiteral("Straßenfotos 日本"), QStringLiteral("東京 — \"von unterwegs\""), {}},
    };
    for (int i = 0; i < std::max(count, 3); ++i) {
        Album album = i < 3 ? named[i] : Album{0, QStringLiteral("Album %1").arg(i + 1), QString(), {}};
        album.id = FirstAlbumId + i * AlbumIdStep;
        _albums[album.id] = album;
    }
}

void PhotoStore::_replay(const QJsonObject &event) {
    Photo photo = photoOf(event);
    if (photo.id > 0) {
        _lastId = std::max(_lastId, photo.id);
        photo.path = QFile::exists(_pathOf(photo.id)) ? _pathOf(photo.id) : QString();
        _photos[photo.id] = photo;
    }
    const qint64 filed = number(event, QStringLiteral("filed"));
    const qint64 album = number(event, QStringLiteral("album"));
    if (_photos.contains(filed) && _albums.contains(album)) _putInto(filed, album);
}

bool PhotoStore::_prepareFolders(QString *error) {
    for (const char *name : {"photos", "incoming"}) {
        if (QDir().mkpath(_folder + QLatin1Char('/') + QLatin1String(name))) continue;
        *error = _folder + QStringLiteral(": the state folder cannot be made");
        return false;
    }
    return true;
}

// Files of requests that a crash ended: never answered, so nobody knows them.
void PhotoStore::_removeStrangers() {
    QDir incoming(_folder + QStringLiteral("/incoming"));
    for (const QString &name : incoming.entryList(QDir::Files))
        incoming.remove(name);
    QDir photos(_folder + QStringLiteral("/photos"));
    for (const QString &name : photos.entryList(QDir::Files)) {
        if (!_photos.contains(name.toLongLong())) photos.remove(name);
    }
}

QString PhotoStore::_pathOf(qint64 photo) const {
    return QStringLiteral("%1/photos/%2").arg(_folder).arg(photo);
}

bool PhotoStore::_putInto(qint64 photo, qint64 album) {
    QList<qint64> &content = _albums[album].photos;
    if (content.contains(photo)) return false;
    content.append(photo);
    _photos[photo].albums.append(album);
    return true;
}

} // namespace standin
