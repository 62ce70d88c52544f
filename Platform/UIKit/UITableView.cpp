// A table: sections of rows, of which only those in view have cells.
#include "Platform/UIKit/UITableView.h"

#include "Platform/Foundation/Dispatch.h"

#include <algorithm>
#include <utility>

namespace korvane {
namespace {

constexpr double headerHeight = 28;      // of a section with a title
constexpr double groupHeaderHeight = 38; // the same in a grouped table
constexpr CGRect usualBounds(0, 0, 360, 640);

// Where a row stands after others, in their order, have come into its section.
NSIndexPath afterInsertion(NSIndexPath path, const std::vector<NSIndexPath> &sorted) {
    for (const NSIndexPath &other : sorted)
        if (other.section == path.section && other.row <= path.row) ++path.row;
    return path;
}

// The same after others have gone; null if it is among them.
std::optional<NSIndexPath> afterDeletion(NSIndexPath path, const std::vector<NSIndexPath> &deleted) {
    if (std::ranges::find(deleted, path) != deleted.end()) return std::nullopt;
    const auto isBefore = [&](NSIndexPath other) { return other.section == path.section && other.row < path.row; };
    path.row -= std::ranges::count_if(deleted, isBefore);
    return path;
}

} // namespace

double UITableViewDelegate::tableViewHeightForRowAtIndexPath(UITableView &tableView, NSIndexPath) {
    return tableView.rowHeight();
}

std::shared_ptr<UITableView> UITableView::initWithStyle(UITableViewStyle style) {
    const auto table = std::make_shared<UITableView>();
    table->_style = style;
    table->UIView::setBounds(usualBounds);
    return table;
}

void UITableView::setRowHeight(double height) {
    if (std::exchange(_rowHeight, height) != height && _layout) reloadData();
}

void UITableView::reloadData() {
    const auto isEdited = [](const auto &entry) { return entry.second->firstResponderWithin() != nullptr; };
    const auto found = std::ranges::find_if(_cells, isEdited);
    const auto edited = found == _cells.end() ? std::nullopt : std::optional(found->first);
    _moveRows([](NSIndexPath) { return std::nullopt; });
    _tableObservers.tell(&UITableViewObserver::tableViewDidReload);
    if (edited) _makeCell(*edited);
    _layOut();
    _dropEditing();
}

void UITableView::_loadIfNeeded() {
    if (!_layout) reloadData();
}

void UITableView::_measure() {
    _layout = TableLayout();
    const auto source = _dataSource.lock();
    if (!source) return;
    const auto delegate = _delegate.lock();
    const qint64 sections = source->numberOfSectionsInTableView(*this);
    for (qint64 section = 0; section < sections; ++section) {
        const auto title = source->tableViewTitleForHeaderInSection(*this, section);
        const double titleHeight = _style == UITableViewStyleGrouped ? groupHeaderHeight : headerHeight;
        _layout->addSection(title, title ? titleHeight : 0);
        const qint64 rows = source->tableViewNumberOfRowsInSection(*this, section);
        for (qint64 row = 0; row < rows; ++row)
            _layout->addRow(delegate ? delegate->tableViewHeightForRowAtIndexPath(*this, {row, section}) : _rowHeight);
    }
}

std::vector<NSIndexPath> UITableView::_rowsInView() const {
    return _layout->rowsBetween(bounds().top(), bounds().top() + bounds().height());
}

// Takes what belongs to a row along to where the row stands now.
void UITableView::_moveRows(const Movement &moved) {
    _measure();
    for (auto &row : _wanted)
        if (row) row = moved(*row);
    if (_selectedRow) _selectedRow = moved(*_selectedRow);
    for (const auto &[path, cell] : std::exchange(_cells, {}))
        if (const auto place = moved(path))
            _cells[*place] = cell;
        else
            _putAside(path, cell);
}

void UITableView::_layOut() {
    const auto visible = _rowsInView();
    for (auto entry = _cells.begin(); entry != _cells.end();) {
        const bool staysUsed =
            std::ranges::binary_search(visible, entry->first) || entry->second->firstResponderWithin();
        if (!staysUsed) _putAside(entry->first, entry->second);
        entry = staysUsed ? std::next(entry) : _cells.erase(entry);
    }
    for (const NSIndexPath &path : visible)
        _makeCell(path);
}

// Passes over a row that has a cell, or is about to get one, and one that has gone while another's cell was made.
void UITableView::_makeCell(NSIndexPath indexPath) {
    const auto source = _dataSource.lock();
    const bool isWanted = std::ranges::find(_wanted, std::optional(indexPath)) != _wanted.end();
    if (!source || isWanted || _cells.contains(indexPath) || !_layout->hasRow(indexPath)) return;
    _wanted.push_back(indexPath);
    const auto cell = source->tableViewCellForRowAtIndexPath(*this, indexPath);
    const auto delegate = _delegate.lock();
    if (cell && delegate && _wanted.back()) delegate->tableViewWillDisplayCell(*this, cell, *_wanted.back());
    const auto place = _wanted.back();
    _wanted.pop_back();
    if (!cell || !place) return;
    adopt(*cell);
    std::erase_if(_spares, [&](const Spare &spare) { return spare.cell == cell; });
    _cells[*place] = cell;
    _tableObservers.tell(&UITableViewObserver::tableViewCellDidChange, *place);
}

void UITableView::_putAside(NSIndexPath indexPath, const std::shared_ptr<UITableViewCell> &cell) {
    const QString &identifier = cell->reuseIdentifier();
    if (identifier.isEmpty()) return;
    std::erase_if(_spares, [&](const Spare &spare) {
        return spare.formerPath == indexPath && spare.cell->reuseIdentifier() == identifier;
    });
    _spares.push_back({indexPath, cell});
}

std::shared_ptr<UITableViewCell> UITableView::dequeueReusableCellWithIdentifier(const QString &identifier) {
    const auto fits = [&](const Spare &spare) { return spare.cell->reuseIdentifier() == identifier; };
    const auto isOwn = [&](const Spare &spare) {
        return fits(spare) && !_wanted.empty() && spare.formerPath == _wanted.back();
    };
    // What is being typed in one row must not go on in another.
    const auto isFree = [&](const Spare &spare) { return fits(spare) && !spare.cell->firstResponderWithin(); };
    auto found = std::ranges::find_if(_spares, isOwn);
    if (found == _spares.end()) found = std::ranges::find_if(_spares, isFree);
    if (found == _spares.end()) return nullptr;
    const auto cell = found->cell;
    _spares.erase(found);
    cell->prepareForReuse();
    return cell;
}

// Who was typing into a row that has gone is typing no more.
void UITableView::_dropEditing() {
    const auto editing = firstResponderWithin();
    const auto isWithin = [&](const auto &entry) { return editing->isDescendantOfView(*entry.second); };
    if (editing && std::ranges::none_of(_cells, isWithin)) editing->resignFirstResponder();
}

void UITableView::insertRowsAtIndexPaths(const std::vector<NSIndexPath> &paths, UITableViewRowAnimation animation) {
    if (!_layout) return _loadIfNeeded();
    auto sorted = paths;
    std::ranges::sort(sorted);
    _moveRows([&](NSIndexPath path) { return afterInsertion(path, sorted); });
    _tableObservers.tell(&UITableViewObserver::tableViewDidInsertRows, paths, animation);
    _layOut();
}

void UITableView::deleteRowsAtIndexPaths(const std::vector<NSIndexPath> &paths, UITableViewRowAnimation animation) {
    if (!_layout) return _loadIfNeeded();
    _moveRows([&](NSIndexPath path) { return afterDeletion(path, paths); });
    _tableObservers.tell(&UITableViewObserver::tableViewDidDeleteRows, paths, animation);
    _layOut();
    _dropEditing();
}

qint64 UITableView::numberOfSections() {
    _loadIfNeeded();
    return qint64(_layout->sections().size());
}

qint64 UITableView::numberOfRowsInSection(qint64 section) {
    _loadIfNeeded();
    return _layout->numberOfRows(section);
}

std::optional<QString> UITableView::titleForHeaderInSection(qint64 section) {
    if (section < 0 || section >= numberOfSections()) return std::nullopt;
    return _layout->sections()[size_t(section)].title;
}

CGRect UITableView::rectForSection(qint64 section) {
    if (section < 0 || section >= numberOfSections()) return {};
    const auto &place = _layout->sections()[size_t(section)];
    return {0, place.top, bounds().width(), place.rowTops.back() - place.top};
}

CGRect UITableView::rectForHeaderInSection(qint64 section) {
    if (section < 0 || section >= numberOfSections()) return {};
    const auto &place = _layout->sections()[size_t(section)];
    return {0, place.top, bounds().width(), place.rowTops.front() - place.top};
}

CGRect UITableView::rectForRowAtIndexPath(NSIndexPath indexPath) {
    _loadIfNeeded();
    if (!_layout->hasRow(indexPath)) return {};
    const auto [top, end] = _layout->span(indexPath);
    return {0, top, bounds().width(), end - top};
}

CGSize UITableView::contentSize() {
    _loadIfNeeded();
    return {bounds().width(), _layout->height()};
}

std::shared_ptr<UITableViewCell> UITableView::cellForRowAtIndexPath(NSIndexPath indexPath) {
    _loadIfNeeded();
    const auto found = _cells.find(indexPath);
    return found == _cells.end() ? nullptr : found->second;
}

std::vector<NSIndexPath> UITableView::indexPathsForVisibleRows() {
    _loadIfNeeded();
    return _rowsInView();
}

std::vector<NSIndexPath> UITableView::rowsWithCells() {
    _loadIfNeeded();
    std::vector<NSIndexPath> rows;
    for (const auto &[path, cell] : _cells)
        rows.push_back(path);
    return rows;
}

void UITableView::setBounds(const CGRect &bounds) {
    UIView::setBounds(bounds);
    if (_layout) _layOut();
}

void UITableView::scrollToRowAtIndexPath(NSIndexPath indexPath, UITableViewScrollPosition position, bool animated) {
    _loadIfNeeded();
    if (!_layout->hasRow(indexPath)) return;
    const auto [top, end] = _layout->span(indexPath);
    const double height = bounds().height();
    switch (position) {
    case UITableViewScrollPositionTop:
        return _scrollTo(top, animated);
    case UITableViewScrollPositionBottom:
        return _scrollTo(end - height, animated);
    case UITableViewScrollPositionNone:
        if (top < bounds().top()) return _scrollTo(top, animated);
        if (end > bounds().top() + height) return _scrollTo(end - height, animated);
    }
}

void UITableView::_scrollTo(double top, bool animated) {
    const auto go = [table = std::weak_ptr(sharedPointer(this)), top, animated] {
        const auto self = table.lock();
        if (!self) return;
        const double lowest = std::max(0.0, self->_layout->height() - self->bounds().height());
        self->setBounds({{0, std::clamp(top, 0.0, lowest)}, self->bounds().size()});
        self->_tableObservers.tell(&UITableViewObserver::tableViewDidScroll, animated);
    };
    animated ? dispatchMain(go) : go();
}

void UITableView::deselectRowAtIndexPath(NSIndexPath indexPath, bool) {
    if (_selectedRow != indexPath) return;
    _selectedRow.reset();
    _tableObservers.tell(&UITableViewObserver::tableViewCellDidChange, indexPath);
}

void UITableView::userSelectsRow(NSIndexPath indexPath) {
    _loadIfNeeded();
    if (!_layout->hasRow(indexPath)) return;
    _selectedRow = indexPath;
    _tableObservers.tell(&UITableViewObserver::tableViewCellDidChange, indexPath);
    if (const auto delegate = _delegate.lock()) delegate->tableViewDidSelectRowAtIndexPath(*this, indexPath);
}

void UITableView::descendantDidChange(UIView &view) {
    for (const auto &[path, cell] : _cells)
        if (view.isDescendantOfView(*cell))
            return _tableObservers.tell(&UITableViewObserver::tableViewCellDidChange, path);
}

} // namespace korvane
