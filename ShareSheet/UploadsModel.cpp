// Uploads as the rows of a list: those that run, then all others, each newest first.
#include "ShareSheet/UploadsModel.h"

#include "ShareSheet/UploadWords.h"

#include <QSet>

#include <algorithm>
#include <limits>

namespace korvane {
namespace {

constexpr int pageRows = 100;
constexpr qint64 newestID = std::numeric_limits<qint64>::max();

} // namespace

UploadsModel::UploadsModel(QObject *parent) : QAbstractListModel(parent), _oldest(newestID), _wanted(pageRows) {
    _clock.start();
}

int UploadsModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(_rows.size());
}

QHash<int, QByteArray> UploadsModel::roleNames() const {
    return {{IDRole, "uploadID"},
            {TitleRole, "title"},
            {ServiceRole, "service"},
            {StateRole, "uploadState"},
            {StateTextRole, "stateText"},
            {ReasonRole, "reason"},
            {BytesTextRole, "bytesText"},
            {PaceTextRole, "paceText"},
            {ProgressRole, "progress"},
            {CanRetryRole, "canRetry"},
            {RemovalQuestionRole, "removalQuestion"},
            {ThumbnailRole, "thumbnail"}};
}

QVariant UploadsModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const Upload &upload = _rows[size_t(index.row())];
    switch (role) {
    case IDRole:
        return upload.id;
    case Qt::DisplayRole:
    case TitleRole:
        return UploadWords::title(upload);
    case ServiceRole:
        return UploadWords::serviceName(upload);
    case StateRole:
        return upload.state;
    case StateTextRole:
        return UploadWords::state(upload);
    case ReasonRole:
        return UploadWords::reason(upload);
    case BytesTextRole:
        return UploadWords::bytes(upload);
    case PaceTextRole:
        return _paceText(upload);
    case ProgressRole:
        return upload.bytesTotal > 0 ? double(upload.bytesSent) / double(upload.bytesTotal) : -1.0;
    case CanRetryRole:
        return upload.canBeRetried();
    case RemovalQuestionRole:
        return UploadWords::removalQuestion(upload);
    case ThumbnailRole:
        return _thumbnailOf(upload);
    default:
        return {};
    }
}

QString UploadsModel::_thumbnailOf(const Upload &upload) const {
    if (const auto known = _thumbnails.constFind(upload.id); known != _thumbnails.constEnd()) return *known;
    _thumbnails.insert(upload.id, QString());
    Q_EMIT thumbnailWanted(upload.id);
    return {};
}

void UploadsModel::setThumbnails(const QHash<QString, QString> &addresses) {
    for (auto it = addresses.cbegin(); it != addresses.cend(); ++it) {
        const int row = _rowOf(it.key().toLongLong());
        if (row < 0) continue;
        _thumbnails.insert(it.key(), it.value());
        Q_EMIT dataChanged(index(row), index(row), {ThumbnailRole});
    }
}

void UploadsModel::forgetThumbnails(const QStringList &ids) {
    for (const QString &id : ids)
        _thumbnails.remove(id);
}

QString UploadsModel::_paceText(const Upload &upload) const {
    const auto rate = _rates.find(upload.id.toLongLong());
    const bool isSent = upload.bytesTotal > 0 && upload.bytesSent >= upload.bytesTotal; // and not yet answered
    if (rate == _rates.end() || !upload.isRunning() || isSent) return {};
    const auto speed = rate->second.bytesPerSecond();
    const auto left = rate->second.secondsLeft(upload.bytesTotal);
    if (!speed) return {};
    const QString text = UploadWords::speed(*speed);
    return left ? text + QStringLiteral(" · ") + UploadWords::timeLeft(*left) : text;
}

bool UploadsModel::canFetchMore(const QModelIndex &parent) const {
    return !parent.isValid() && !_isComplete && !_isFetching && _oldest != newestID;
}

void UploadsModel::fetchMore(const QModelIndex &parent) {
    if (!canFetchMore(parent)) return;
    _isFetching = true;
    _wanted = rowCount() + pageRows;
    Q_EMIT moreWanted();
}

int UploadsModel::countToAskFor() const {
    return std::max(pageRows, std::min(rowCount(), 10 * pageRows));
}

void UploadsModel::setStates(const QStringList &states) {
    beginResetModel();
    _states = states;
    _rows.clear();
    _thumbnails.clear();
    _oldest = newestID;
    _isComplete = _isFetching = false;
    _wanted = pageRows;
    endResetModel();
}

void UploadsModel::replace(const std::vector<Upload> &page, const std::vector<Upload> &running, bool isLast) {
    QSet<QString> known;
    for (const auto *uploads : {&page, &running})
        for (const Upload &upload : *uploads)
            known.insert(upload.id);
    for (int row = rowCount() - 1; row >= 0; --row)
        if (!known.contains(_rows[size_t(row)].id)) _removeRow(row);
    _appendPage(page, isLast);
    apply(running);
}

void UploadsModel::append(qint64 before, const std::vector<Upload> &page, bool isLast) {
    if (before == _oldest) _appendPage(page, isLast);
}

void UploadsModel::_appendPage(const std::vector<Upload> &page, bool isLast) {
    _isFetching = false;
    _isComplete = isLast;
    _oldest = page.empty() ? (isLast ? 0 : _oldest) : page.back().id.toLongLong();
    for (const Upload &upload : page)
        _apply(upload);
}

void UploadsModel::apply(const std::vector<Upload> &changed) {
    for (const Upload &upload : changed)
        _apply(upload);
    _trim();
}

void UploadsModel::_apply(const Upload &upload) {
    if (!upload.isRunning()) _rates.erase(upload.id.toLongLong());
    const int row = _rowOf(upload.id.toLongLong());
    const bool belongs = _belongsHere(upload);
    if (row < 0 && belongs) return _insert(upload);
    if (row >= 0 && !belongs) return _removeRow(row);
    if (row >= 0) _move(row, upload);
}

UploadsModel::Key UploadsModel::_keyOf(const Upload &upload) {
    return {upload.isRunning() ? 0 : 1, -upload.id.toLongLong()};
}

bool UploadsModel::_belongsHere(const Upload &upload) const {
    if (!_states.isEmpty() && !_states.contains(upload.state)) return false;
    return upload.isRunning() || upload.id.toLongLong() >= _oldest || _isComplete;
}

int UploadsModel::_rowOf(qint64 id) const {
    for (const int group : {0, 1}) {
        const int place = _placeFor({group, -id});
        if (place < rowCount() && _rows[size_t(place)].id.toLongLong() == id) return place;
    }
    return -1;
}

int UploadsModel::_placeFor(const Key &key) const {
    return int(std::ranges::lower_bound(_rows, key, {}, &_keyOf) - _rows.begin());
}

void UploadsModel::_insert(const Upload &upload) {
    const int place = _placeFor(_keyOf(upload));
    beginInsertRows({}, place, place);
    _rows.insert(_rows.begin() + place, upload);
    endInsertRows();
}

void UploadsModel::_move(int row, const Upload &upload) {
    const int place = _placeFor(_keyOf(upload)); // as if it were still where it is
    if (place != row && place != row + 1) {
        beginMoveRows({}, row, row, {}, place);
        if (place < row)
            std::rotate(_rows.begin() + place, _rows.begin() + row, _rows.begin() + row + 1);
        else
            std::rotate(_rows.begin() + row, _rows.begin() + row + 1, _rows.begin() + place);
        endMoveRows();
        row = place < row ? place : place - 1;
    }
    _rows[size_t(row)] = upload;
    Q_EMIT dataChanged(index(row), index(row));
}

void UploadsModel::_removeRow(int row) {
    beginRemoveRows({}, row, row);
    _rates.erase(_rows[size_t(row)].id.toLongLong());
    _thumbnails.remove(_rows[size_t(row)].id);
    _rows.erase(_rows.begin() + row);
    endRemoveRows();
}

// What many new uploads have pushed below what was scrolled to comes back when it is scrolled to.
void UploadsModel::_trim() {
    const int most = _wanted + pageRows;
    if (rowCount() <= most || _rows[size_t(_wanted) - 1].isRunning()) return;
    beginRemoveRows({}, _wanted, rowCount() - 1);
    for (int row = _wanted; row < rowCount(); ++row)
        _thumbnails.remove(_rows[size_t(row)].id);
    _rows.resize(size_t(_wanted));
    endRemoveRows();
    _oldest = _rows.back().id.toLongLong();
    _isComplete = _isFetching = false;
}

void UploadsModel::remove(const QString &id) {
    const int row = _rowOf(id.toLongLong());
    if (row >= 0) _removeRow(row);
}

void UploadsModel::setProgress(const QString &id, qint64 bytesSent, qint64 bytesTotal) {
    const int row = _rowOf(id.toLongLong());
    if (row < 0 || !_rows[size_t(row)].isRunning()) return;
    Upload &upload = _rows[size_t(row)];
    upload.bytesSent = bytesSent;
    upload.bytesTotal = bytesTotal;
    _rates[id.toLongLong()].add(bytesSent, _clock.elapsed());
    Q_EMIT dataChanged(index(row), index(row), {BytesTextRole, PaceTextRole, ProgressRole});
}

} // namespace korvane
