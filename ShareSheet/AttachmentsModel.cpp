// What is shared, from the files that were given to the attachments of the sheet.
#include "ShareSheet/AttachmentsModel.h"

#include "Platform/Foundation/FileError.h"
#include "ShareSheet/Background.h"
#include "ShareSheet/ThumbnailProvider.h"

#include <QElapsedTimer>

#include <algorithm>

namespace korvane {
namespace {

constexpr int mostProblems = 5; // that are named
constexpr int moment = 100;     // milliseconds

} // namespace

AttachmentsModel::AttachmentsModel(Kind kind, const QByteArrayList &arguments, QObject *parent)
    : QAbstractListModel(parent), _kind(kind) {
    for (const QByteArray &argument : arguments) {
        auto file = SharedFile::fromArgument(argument);
        if (isVideo() && !_entries.empty()) file.problem = tr("only one video at a time can be shared to Vimeo");
        _entries.push_back({std::move(file), std::nullopt});
    }
}

void AttachmentsModel::start() {
    _isStarted = true;
    _prepareSome();
    if (count() > 0) Q_EMIT dataChanged(index(0), index(count() - 1), {ThumbnailRole});
}

void AttachmentsModel::_prepare(Entry &entry, bool isVideo) {
    SharedFile &file = entry.file;
    entry.attachment.reset();
    file.problem = file.problemAtSight();
    if (!file.problem.isEmpty()) return;
    std::optional<NSError> error;
    entry.attachment = isVideo ? SLAttachment::videoAttachment(file.path, &error)
                               : SLAttachment::photoAttachment(file.path, false, &error);
    if (error) file.problem = FileError::reasonOf(*error); // the list shows the name already
}

// As many as take a moment together.
void AttachmentsModel::_prepareSome() {
    if (!isPreparing()) return;
    inBackground(this,
                 [this, entries = std::vector(_entries.begin() + qsizetype(_prepared), _entries.end()),
                  isVideo = isVideo()]() mutable -> std::function<void()> {
                     QElapsedTimer timer;
                     timer.start();
                     size_t made = 0;
                     while (made < entries.size() && timer.elapsed() < moment)
                         _prepare(entries[made++], isVideo);
                     entries.resize(made);
                     return [this, entries] { _arrived(entries); };
                 });
}

void AttachmentsModel::_arrived(const std::vector<Entry> &entries) {
    const size_t first = std::exchange(_prepared, _prepared + entries.size());
    std::ranges::copy(entries, _entries.begin() + qsizetype(first));
    Q_EMIT dataChanged(index(int(first)), index(int(_prepared) - 1), {ProblemRole});
    Q_EMIT changed();
    _prepareSome();
}

std::vector<SLAttachment> AttachmentsModel::attachments() const {
    std::vector<SLAttachment> made;
    for (const Entry &entry : _entries)
        if (entry.attachment) made.push_back(*entry.attachment);
    return made;
}

int AttachmentsModel::usableCount() const {
    return int(std::ranges::count_if(_entries, [](const Entry &entry) { return entry.file.problem.isEmpty(); }));
}

QString AttachmentsModel::problems() const {
    QStringList lines;
    const int bad = count() - usableCount();
    for (const Entry &entry : _entries)
        if (!entry.file.problem.isEmpty() && lines.size() < mostProblems)
            lines.append(tr("%1: %2").arg(entry.file.name, entry.file.problem));
    if (bad > mostProblems) lines.append(tr("and %n more file(s)", nullptr, bad - mostProblems));
    return lines.join(u'\n');
}

void AttachmentsModel::lookAgain() {
    if (isPreparing()) return;
    _prepared = 0;
    Q_EMIT changed();
    _prepareSome();
}

void AttachmentsModel::leaveProblemsOut() {
    if (isPreparing()) return;
    beginResetModel();
    std::erase_if(_entries, [](const Entry &entry) { return !entry.file.problem.isEmpty(); });
    _prepared = _entries.size();
    endResetModel();
    Q_EMIT changed();
}

QVariant AttachmentsModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= count()) return {};
    const Entry &entry = _entries[size_t(index.row())];
    switch (role) {
    case NameRole:
        return entry.file.name;
    case ThumbnailRole:
        if (!_isStarted || !entry.file.problem.isEmpty()) return QString();
        return ThumbnailProvider::address(entry.file.path, isVideo());
    case ProblemRole:
        return entry.file.problem;
    default:
        return {};
    }
}

QHash<int, QByteArray> AttachmentsModel::roleNames() const {
    return {{NameRole, "name"}, {ThumbnailRole, "thumbnail"}, {ProblemRole, "problem"}};
}

} // namespace korvane
