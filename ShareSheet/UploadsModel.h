// Uploads as the rows of a list: those that run, then all others, each newest first.
#pragma once

#include "FrontEnd/Upload.h"
#include "ShareSheet/TransferRate.h"

#include <QAbstractListModel>
#include <QElapsedTimer>
#include <QHash>

#include <map>
#include <vector>

namespace korvane {

// Holds what was scrolled to and no more: what is older is asked for when the list's end is near. Thread: main.
class UploadsModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        IDRole = Qt::UserRole + 1,
        TitleRole,
        ServiceRole,
        StateRole,     // as the service names it
        StateTextRole, // and as people read it
        ReasonRole,
        BytesTextRole,
        PaceTextRole, // speed and time left; empty while unknown
        ProgressRole, // from 0 to 1; below 0 while unknown
        CanRetryRole,
        RemovalQuestionRole,
        ThumbnailRole, // an image's address; empty while none is known
    };

    explicit UploadsModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

    // The states that are shown; empty: all. Empties the list.
    void setStates(const QStringList &states);
    const QStringList &states() const { return _states; }

    // What the service has: the newest ones, of the states shown, down to the oldest of the page, and those that run.
    // isLast: there is none below. Rows that are in neither go.
    void replace(const std::vector<Upload> &page, const std::vector<Upload> &running, bool isLast);
    // The uploads below that id. Nothing happens where it is no longer oldest().
    void append(qint64 before, const std::vector<Upload> &page, bool isLast);
    void fetchFailed() { _isFetching = false; }
    qint64 oldest() const { return _oldest; } // the id down to which all are here
    // The rows to ask for when all is asked for anew.
    int countToAskFor() const;

    // News of uploads, whether they are here or not.
    void apply(const std::vector<Upload> &changed);
    void remove(const QString &id);
    void setThumbnails(const QHash<QString, QString> &addresses); // by id
    void forgetThumbnails(const QStringList &ids);                // they are asked for again when the rows have news
    void setProgress(const QString &id, qint64 bytesSent, qint64 bytesTotal);

Q_SIGNALS:
    void moreWanted();                             // of what is older than oldest()
    void thumbnailWanted(const QString &id) const; // for a row that is looked at; once for each

private:
    using Key = std::pair<int, qint64>; // what the rows are sorted by
    static Key _keyOf(const Upload &upload);
    bool _belongsHere(const Upload &upload) const;
    int _rowOf(qint64 id) const; // below 0 if there is none
    int _placeFor(const Key &key) const;
    void _appendPage(const std::vector<Upload> &page, bool isLast);
    void _apply(const Upload &upload);
    void _insert(const Upload &upload);
    void _move(int row, const Upload &upload);
    void _removeRow(int row);
    void _trim();
    QString _thumbnailOf(const Upload &upload) const;
    QString _paceText(const Upload &upload) const;

    std::vector<Upload> _rows;
    std::map<qint64, TransferRate> _rates;       // of those that run
    mutable QHash<QString, QString> _thumbnails; // addresses, empty where none is known
    QStringList _states;
    qint64 _oldest;
    bool _isComplete = false;
    bool _isFetching = false;
    int _wanted; // rows that were scrolled to
    QElapsedTimer _clock;
};

} // namespace korvane
