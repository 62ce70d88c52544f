// The photos received and the albums they are in, on disk, so that they survive restarts.
#pragma once

#include "StandIn/IncomingPhoto.h"
#include "StandIn/Parameters.h"
#include "StandIn/StateJournal.h"

#include <QJsonObject>
#include <QString>

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace standin {

struct Photo {
    qint64 id = 0;
    Parameters parameters;  // title, description, tags, is_public …; valid UTF-8
    QByteArray imageType;   // by its bytes
    QByteArray contentType; // as the photo's part said
    qint64 bytes = 0;
    QByteArray sha256; // hexadecimal; empty when bodies are not kept
    QString path;      // of the file with its bytes; empty when bodies are not kept
    QList<qint64> albums;
    qint64 receivedAt = 0; // milliseconds since 1970
};

struct Album {
    qint64 id = 0;
    QString title;
    QString description;
    QList<qint64> photos;
};

// Thread: any.
class PhotoStore {
public:
    enum class Filing { Done, NoAlbum, NoPhoto, AlreadyThere };

    // `albums` is how many there are from the start, at least the three named ones. False with a reason on failure.
    bool open(const QString &folder, int albums, bool keepBodies, QString *error);

    std::unique_ptr<IncomingPhoto> receive();
    // Gives the photo its id, which is larger than every one before; 0 when the disk does not take it.
    qint64 add(IncomingPhoto &incoming, Photo photo);
    Filing file(qint64 photo, qint64 album);

    // In the order received; without SHA-256.
    std::vector<Photo> photos() const;
    std::optional<Photo> photo(qint64 id) const;
    std::vector<Album> albums() const;
    // Computed when first asked for.
    QByteArray sha256(qint64 photo);
    // Grows with every change.
    qint64 revision() const { return _revision; }

private:
    void _makeAlbums(int count);
    void _replay(const QJsonObject &event);
    bool _prepareFolders(QString *error);
    void _removeStrangers();
    QString _pathOf(qint64 photo) const;
    bool _putInto(qint64 photo, qint64 album);

    QString _folder;
    bool _keepBodies = true;
    mutable std::mutex _mutex;
    StateJournal _journal;
    std::map<qint64, Photo> _photos;
    std::map<qint64, Album> _albums;
    qint64 _lastId = 53'000'000'000; // ids do not fit into 32 bits, as at the real service
    std::atomic<qint64> _arrivals = 0;
    std::atomic<qint64> _revision = 0;
};

} // namespace standin
