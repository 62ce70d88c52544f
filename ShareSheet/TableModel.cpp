// A table as a list for the window.
#include "ShareSheet/TableModel.h"

#include "FrontEnd/UploadText.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace korvane {

class TableModel::Observer : public UITableViewObserver {
public:
    explicit Observer(TableModel &model) : _model(model) {}

    void tableViewDidReload() override {
        _model._reload();
        Q_EMIT _model.problemChanged();
    }
    void tableViewDidInsertRows(const std::vector<NSIndexPath> &paths, UITableViewRowAnimation) override {
        auto sorted = paths;
        std::ranges::sort(sorted);
        for (const NSIndexPath &path : sorted)
            _model._insertRow(path);
    }
    void tableViewDidDeleteRows(const std::vector<NSIndexPath> &paths, UITableViewRowAnimation) override {
        auto sorted = paths;
        std::ranges::sort(sorted, std::greater());
        for (const NSIndexPath &path : sorted)
            _model._removeRow(path);
    }
    void tableViewDidScroll(bool) override {
        const auto rows = _model._table->indexPathsForVisibleRows();
        if (!rows.empty()) Q_EMIT _model.scrolledTo(_model._rowOf(rows.front()), _model._rowOf(rows.back()));
    }
    void tableViewCellDidChange(NSIndexPath path) override {
        const int row = _model._rowOf(path);
        if (row >= 0) Q_EMIT _model.dataChanged(_model.index(row), _model.index(row));
    }

private:
    TableModel &_model;
};

TableModel::TableModel(std::shared_ptr<UITableViewController> screen, QObject *parent)
    : QAbstractListModel(parent), _screen(std::move(screen)), _table(_screen->tableView()),
      _observer(std::make_shared<Observer>(*this)) {
    _reload();
    _table->addTableObserver(_observer);
}

TableModel::~TableModel() = default;

int TableModel::count() const {
    return std::accumulate(_rowsOfSections.begin(), _rowsOfSections.end(), 0);
}

QString TableModel::problem() const {
    const auto error = _screen->problem();
    return error ? UploadText::printable(error->localizedDescription()) : QString();
}

int TableModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QHash<int, QByteArray> TableModel::roleNames() const {
    return {{TextRole, "text"},
            {SectionRole, "section"},
            {KindRole, "kind"},
            {EditedTextRole, "editedText"},
            {IsEditingRole, "isEditing"},
            {IsCheckedRole, "isChecked"},
            {IsSelectableRole, "isSelectable"},
            {HeightRole, "rowHeight"}};
}

QVariant TableModel::data(const QModelIndex &index, int role) const {
    const int row = index.row();
    const auto cell = _cell(row);
    const auto editor = _editor(row);
    switch (role) {
    case TextRole:
        return cell ? UploadText::printable(cell->textLabel()->text().value_or(QString())) : QString();
    case SectionRole:
        return int(_pathOf(row).section);
    case KindRole:
        if (!editor) return QStringLiteral("text");
        return cell->textView() ? QStringLiteral("textView") : QStringLiteral("field");
    case EditedTextRole:
        return editedText(row);
    case IsEditingRole:
        return editor && editor->isFirstResponder();
    case IsCheckedRole:
        return cell && cell->accessoryType() == UITableViewCellAccessoryCheckmark;
    case IsSelectableRole:
        return cell && !editor && cell->selectionStyle() != UITableViewCellSelectionStyleNone;
    case HeightRole:
        return _table->rectForRowAtIndexPath(_pathOf(row)).height() / _table->rowHeight();
    default:
        return {};
    }
}

QString TableModel::headerOf(int section) const {
    return _table->titleForHeaderInSection(section).value_or(QString());
}

void TableModel::showRows(int first, int last) {
    const int lastRow = std::min(last, count() - 1);
    if (first < 0 || first > lastRow) return;
    const CGRect top = _table->rectForRowAtIndexPath(_pathOf(first));
    const CGRect end = _table->rectForRowAtIndexPath(_pathOf(lastRow));
    const CGRect bounds(0, top.top(), _table->bounds().width(), end.bottom() - top.top());
    if (bounds != _table->bounds()) _table->setBounds(bounds);
}

void TableModel::select(int row) {
    if (row >= 0 && row < count()) _table->userSelectsRow(_pathOf(row));
}

QString TableModel::editedText(int row) const {
    const auto cell = _cell(row);
    if (!cell) return {};
    if (const auto view = cell->textView()) return view->text();
    return cell->editableTextField() ? cell->editableTextField()->text() : QString();
}

bool TableModel::userReplaces(int row, NSRange range, const QString &replacement) {
    const auto cell = _cell(row);
    if (!cell) return false;
    if (const auto view = cell->textView()) return view->userReplacesText(range, replacement);
    return cell->editableTextField() && cell->editableTextField()->userReplacesCharacters(range, replacement);
}

void TableModel::userBeginsEditing(int row) {
    if (const auto editor = _editor(row)) editor->becomeFirstResponder();
}

void TableModel::userEndsEditing(int row) {
    if (const auto editor = _editor(row)) editor->resignFirstResponder();
}

void TableModel::userPressesReturn(int row) {
    const auto cell = _cell(row);
    if (cell && cell->editableTextField()) cell->editableTextField()->userPressesReturn();
}

NSIndexPath TableModel::_pathOf(int row) const {
    size_t section = 0;
    while (section + 1 < _rowsOfSections.size() && row >= _rowsOfSections[section])
        row -= _rowsOfSections[section++];
    return {row, qint64(section)};
}

int TableModel::_rowOf(NSIndexPath path) const {
    const auto section = size_t(path.section);
    if (section >= _rowsOfSections.size() || path.row >= _rowsOfSections[section]) return -1;
    return std::accumulate(_rowsOfSections.begin(), _rowsOfSections.begin() + path.section, int(path.row));
}

std::shared_ptr<UITableViewCell> TableModel::_cell(int row) const {
    return _table->cellForRowAtIndexPath(_pathOf(row));
}

std::shared_ptr<UIView> TableModel::_editor(int row) const {
    const auto cell = _cell(row);
    if (!cell) return nullptr;
    if (const auto view = cell->textView()) return view;
    return cell->editableTextField();
}

void TableModel::_insertRow(NSIndexPath path) {
    int &rows = _rowsOfSections.at(size_t(path.section));
    const int row = std::accumulate(_rowsOfSections.begin(), _rowsOfSections.begin() + path.section, int(path.row));
    beginInsertRows({}, row, row);
    ++rows;
    endInsertRows();
    Q_EMIT countChanged();
}

void TableModel::_removeRow(NSIndexPath path) {
    const int row = _rowOf(path);
    if (row < 0) return;
    beginRemoveRows({}, row, row);
    --_rowsOfSections[size_t(path.section)];
    endRemoveRows();
    Q_EMIT countChanged();
}

// Rows that stay keep their place, so that a field in which something is being typed does so too. What is in their
// cells is told as the cells are made.
void TableModel::_reload() {
    std::vector<int> rows;
    for (qint64 section = 0; section < _table->numberOfSections(); ++section)
        rows.push_back(int(_table->numberOfRowsInSection(section)));
    if (rows.size() != _rowsOfSections.size()) {
        beginResetModel();
        _rowsOfSections = rows;
        endResetModel();
        return Q_EMIT countChanged();
    }
    for (size_t section = 0; section < rows.size(); ++section) {
        int &known = _rowsOfSections[section];
        const int first = std::accumulate(_rowsOfSections.begin(), _rowsOfSections.begin() + qsizetype(section), 0);
        if (rows[section] > known) {
            beginInsertRows({}, first + known, first + rows[section] - 1);
            known = rows[section];
            endInsertRows();
        } else if (rows[section] < known) {
            beginRemoveRows({}, first + rows[section], first + known - 1);
            known = rows[section];
            endRemoveRows();
        }
    }
    Q_EMIT countChanged();
}

} // namespace korvane
