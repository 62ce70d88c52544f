// What is shared, from the files that were given to the attachments of the sheet.
#include "ShareSheet/AttachmentsModel.h"

#include "Platform/Foundation/Dispatch.h"
#include "ShareSheet/ThumbnailProvider.h"

#include <QCoreApplication>

#include <algorithm>
#include <atomic>

namespace korvane {

// Shared with the queue; the model is reached from the main thread only, and not after its end.
struct AttachmentsModel::Work {
    AttachmentsModel *model; // null after its end; main thread
    std::atomic_bool isWanted = true;
    Kind kind;
    std::vector<SharedFile> files;

    static void run(const std::shared_ptr<Work> &work) {
        for (const SharedFile &file : work->files) {
            if (!work->isWanted) return;
            std::optional<NSError> error;
            std::optional<SLAttachment> attachment;
            const QString atSight = file.problemAtSight();
            if (atSight.isEmpty())
                attachment = work->kind == Kind::Video ? SLAttachment::videoAttachment(file.path, &error)
                                                       : SLAttachment::photoAttachment(file.path, false, &error);
            const QString problem = error ? error->localizedDescription() : atSight;
            dispatchMain([work, attachment, problem] {
                if (work->model) work->model->_arrived(attachment, problem);
            });
        }
    }
};

AttachmentsModel::AttachmentsModel(Kind kind, const QByteArrayList &arguments, QObject *parent)
    : QAbstractListModel(parent), _kind(kind) {
    for (const QByteArray &argument : arguments) {
        auto file = SharedFile::fromArgument(argument);
        if (isVideo() && !_entries.empty())
            file.problem =
                QCoreApplication::translate("AttachmentsModel", "only one video at a time can be shared to Vimeo");
        _entries.push_back({std::move(file), std::nullopt});
    }
}

AttachmentsModel::~AttachmentsModel() {
    if (!_work) return;
    _work->model = nullptr;
    _work->isWanted = false;
}

void AttachmentsModel::start() {
    _work = std::make_shared<Work>();
    _work->model = this;
    _work->kind = _kind;
    for (const Entry &entry : _entries)
        _work->files.push_back(entry.file);
    dispatchGlobal([work = _work] { Work::run(work); });
    if (count() > 0) Q_EMIT dataChanged(index(0), index(count() - 1), {ThumbnailRole});
}

void AttachmentsModel::_arrived(std::optional<SLAttachment> attachment, const QString &problem) {
    const int row = int(_prepared);
    Entry &entry = _entries[_prepared++];
    entry.attachment = std::move(attachment);
    entry.file.problem = problem;
    // The errors name the whole path; the list shows the name already.
    const QString prefix = QString::fromUtf8(entry.file.path) + QStringLiteral(": ");
    if (entry.file.problem.startsWith(prefix)) entry.file.problem.remove(0, prefix.size());
    Q_EMIT dataChanged(index(row), index(row), {ProblemRole});
    Q_EMIT changed();
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
    for (const Entry &entry : _entries)
        if (!entry.file.problem.isEmpty())
            lines.append(
                QCoreApplication::translate("AttachmentsModel", "%1: %2").arg(entry.file.name, entry.file.problem));
    return lines.join(u'\n');
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
    const Entry &entry = _entries.at(size_t(index.row()));
    switch (role) {
    case NameRole:
        return entry.file.name;
    case ThumbnailRole:
        if (!_work || !entry.file.problem.isEmpty()) return QString();
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
