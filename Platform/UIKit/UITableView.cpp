// A table: sections of rows, of which only those in view have cells.
#include "Platform/UIKit/UITableView.h"

#include "Platform/Foundation/Dispatch.h"

#include <utility>

namespace korvane {
namespace {

constexpr double headerHeight = 28;      // of a section with a title
constexpr double groupHeaderHeight = 38; // the same in a grouped table
constexpr CGRect usualBounds(0, 0, 360, 640);

// Where a row stands after others have come or gone before it in its section.
NSIndexPath shifted(NSIndexPath path, const std::vector<NSIndexPath> &changed, qint64 by) {
    for (const NSIndexPath &other : changed)
        if (other.section == path.section && other.row <= path.row) path.row += by;
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

void UITableView::reloadData() {
    _selectedRow.reset();
    _measure();
    for (const auto &[path, cell] : std::exchange(_cells, {}))
        _putAside(path, cell);
    _layOut();
    _dropEditing();
    _tableObservers.tell([](UITableViewObserver &observer) { observer.tableViewDidReload(); });
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

void UITableView::_layOut() {
    const auto visible = _rowsInView();
    const auto isBeingEdited = [](const UIView &cell) {
        const auto editing = std::dynamic_pointer_cast<UIView>(firstResponder());
        return editing && editing->isDescendantOfView(cell);
    };
    for (auto entry = _cells.begin(); entry != _cells.end();) {
        const bool staysUsed = std::ranges::binary_search(visible, entry->first) || isBeingEdited(*entry->second);
        if (!staysUsed) _putAside(entry->first, entry->second);
        entry = staysUsed ? std::next(entry) : _cells.erase(entry);
    }
    for (const NSIndexPath &path : visible)
        if (!_cells.contains(path)) _makeCell(path);
    _tableObservers.tell([](UITableViewObserver &observer) { observer.tableViewDidLayOut(); });
}

void UITableView::_makeCell(NSIndexPath indexPath) {
    const auto source = _dataSource.lock();
    if (!source) return;
    const auto outer = std::exchange(_wanted, indexPath);
    const auto cell = source->tableViewCellForRowAtIndexPath(*this, indexPath);
    _wanted = outer;
    if (!cell || !_layout->hasRow(indexPath)) return;
    adopt(*cell);
    const auto [top, end] = _layout->span(indexPath);
    cell->setFrame({0, top, bounds().width(), end - top});
    std::erase_if(_spares, [&](const Spare &spare) { return spare.cell == cell; });
    _cells[indexPath] = cell;
    if (const auto delegate = _delegate.lock()) delegate->tableViewWillDisplayCell(*this, cell, indexPath);
}

void UITableView::_putAside(NSIndexPath indexPath, const std::shared_ptr<UITableViewCell> &cell) {
    if (!cell->reuseIdentifier().isEmpty()) _spares.push_back({indexPath, cell});
}

std::shared_ptr<UITableViewCell> UITableView::dequeueReusableCellWithIdentifier(const QString &identifier) {
    const auto fits = [&](const Spare &spare) { return spare.cell->reuseIdentifier() == identifier; };
    const auto isOwn = [&](const Spare &spare) { return fits(spare) && spare.formerPath == _wanted; };
    auto found = std::ranges::find_if(_spares, isOwn);
    if (found == _spares.end()) found = std::ranges::find_if(_spares, fits);
    if (found == _spares.end()) return nullptr;
    const auto cell = found->cell;
    _spares.erase(found);
    cell->prepareForReuse();
    return cell;
}

// Who was typing into a row that has gone is typing no more.
void UITableView::_dropEditing() {
    const auto editing = std::dynamic_pointer_cast<UIView>(firstResponder());
    if (!editing || !editing->isDescendantOfView(*this)) return;
    const bool isShown =
        std::ranges::any_of(_cells, [&](const auto &entry) { return editing->isDescendantOfView(*entry.second); });
    if (!isShown) editing->resignFirstResponder();
}

void UITableView::insertRowsAtIndexPaths(const std::vector<NSIndexPath> &paths, UITableViewRowAnimation animation) {
    if (!_layout) return _loadIfNeeded();
    _measure();
    auto sorted = paths;
    std::ranges::sort(sorted);
    Cells moved;
    for (const auto &[path, cell] : _cells)
        moved[shifted(path, sorted, 1)] = cell;
    _cells = std::move(moved);
    _layOut();
    _tableObservers.tell([&](UITableViewObserver &observer) { observer.tableViewDidInsertRows(paths, animation); });
}

void UITableView::deleteRowsAtIndexPaths(const std::vector<NSIndexPath> &paths, UITableViewRowAnimation animation) {
    if (!_layout) return _loadIfNeeded();
    _measure();
    Cells moved;
    for (const auto &[path, cell] : _cells) {
        if (std::ranges::find(paths, path) != paths.end())
            _putAside(path, cell);
        else
            moved[shifted(path, paths, -1)] = cell;
    }
    _cells = std::move(moved);
    _layOut();
    _dropEditing();
    _tableObservers.tell([&](UITableViewObserver &observer) { observer.tableViewDidDeleteRows(paths, animation); });
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

void UITableView::setBounds(const CGRect &bounds) {
    const bool isWider = bounds.width() != this->bounds().width();
    UIView::setBounds(bounds);
    if (!_layout) return;
    for (const auto &[path, cell] : _cells)
        if (isWider) cell->setFrame({0, cell->frame().top(), bounds.width(), cell->frame().height()});
    _layOut();
}

void UITableView::scrollToRowAtIndexPath(NSIndexPath indexPath, UITableViewScrollPosition position, bool animated) {
    _loadIfNeeded();
    if (!_layout->hasRow(indexPath)) return;
    const auto [top, end] = _layout->span(indexPath);
    const double height = bounds().height();
    switch (position) {
    case UITableViewScrollPositionTop:
        return _scrollTo(top, animated);
    case UITableViewScrollPositionMiddle:
        return _scrollTo((top + end - height) / 2, animated);
    case UITableViewScrollPositionBottom:
        return _scrollTo(end - height, animated);
    case UITableViewScrollPositionNone:
        if (top < bounds().top()) return _scrollTo(top, animated);
        if (end > bounds().top() + height) return _scrollTo(end - height, animated);
    }
}

void UITableView::_scrollTo(double top, bool animated) {
    const auto go = [table = std::weak_ptr(std::static_pointer_cast<UITableView>(shared_from_this())), top, animated] {
        const auto self = table.lock();
        if (!self) return;
        const double lowest = std::max(0.0, self->_layout->height() - self->bounds().height());
        self->setBounds({{0, std::clamp(top, 0.0, lowest)}, self->bounds().size()});
        self->_tableObservers.tell([&](UITableViewObserver &observer) { observer.tableViewDidScroll(animated); });
    };
    animated ? dispatchMain(go) : go();
}

void UITableView::deselectRowAtIndexPath(NSIndexPath indexPath, bool) {
    if (_selectedRow != indexPath) return;
    _selectedRow.reset();
    _tableObservers.tell([&](UITableViewObserver &observer) { observer.tableViewCellDidChange(indexPath); });
}

void UITableView::userSelectsRow(NSIndexPath indexPath) {
    _loadIfNeeded();
    if (!_layout->hasRow(indexPath)) return;
    _selectedRow = indexPath;
    _tableObservers.tell([&](UITableViewObserver &observer) { observer.tableViewCellDidChange(indexPath); });
    if (const auto delegate = _delegate.lock()) delegate->tableViewDidSelectRowAtIndexPath(*this, indexPath);
}

void UITableView::descendantDidChange(UIView &view) {
    for (const auto &[path, cell] : _cells)
        if (view.isDescendantOfView(*cell))
            return _tableObservers.tell([&](UITableViewObserver &observer) { observer.tableViewCellDidChange(path); });
}

} // namespace korvane
