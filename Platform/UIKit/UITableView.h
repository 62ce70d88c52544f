// A table: sections of rows, of which only those in view have cells.
#pragma once

#include "Platform/UIKit/TableLayout.h"
#include "Platform/UIKit/UITableViewCell.h"
#include "Platform/UIKit/UITableViewDelegate.h"

#include <functional>
#include <map>

namespace korvane {

enum UITableViewStyle : qint64 {
    UITableViewStylePlain = 0,
    UITableViewStyleGrouped = 1,
};

enum UITableViewScrollPosition : qint64 {
    UITableViewScrollPositionNone = 0, // as little as needed
    UITableViewScrollPositionTop = 1,
    UITableViewScrollPositionBottom = 3,
};

enum UITableViewRowAnimation : qint64 {
    UITableViewRowAnimationTop = 3,
    UITableViewRowAnimationAutomatic = 100,
};

// What a front end needs to follow a table. Rows that come and go are told first, then each cell that is made for a row
// which has come into view.
class UITableViewObserver {
public:
    virtual ~UITableViewObserver() = default;
    virtual void tableViewDidReload() {} // no row has a cell yet
    virtual void tableViewDidInsertRows(const std::vector<NSIndexPath> &, UITableViewRowAnimation) {}
    virtual void tableViewDidDeleteRows(const std::vector<NSIndexPath> &, UITableViewRowAnimation) {}
    virtual void tableViewDidScroll(bool animated) { Q_UNUSED(animated) }
    // The row has got a cell, or what its cell shows has changed.
    virtual void tableViewCellDidChange(NSIndexPath) {}
};

// A row keeps its cell while it is in view, and gets it back at a reload. A cell that is being edited is kept also out
// of view. Rows stand where rectForRowAtIndexPath says; the frames of the cells say nothing. The data source may change
// rows while it makes a cell. Thread: main.
class UITableView : public UIView {
public:
    static std::shared_ptr<UITableView> initWithStyle(UITableViewStyle style);

    UITableViewStyle style() const { return _style; }
    void setDataSource(std::weak_ptr<UITableViewDataSource> source) { _dataSource = std::move(source); }
    void setDelegate(std::weak_ptr<UITableViewDelegate> delegate) { _delegate = std::move(delegate); }
    void addTableObserver(const std::shared_ptr<UITableViewObserver> &observer) { _tableObservers.add(observer); }

    double rowHeight() const { return _rowHeight; } // points
    void setRowHeight(double height);

    // The rows are asked for when something about them is first wanted.
    void reloadData();
    // After the data source has changed accordingly. Paths to insert are those of the table as it will be, paths to
    // delete those of the table as it was.
    void insertRowsAtIndexPaths(const std::vector<NSIndexPath> &paths, UITableViewRowAnimation animation);
    void deleteRowsAtIndexPaths(const std::vector<NSIndexPath> &paths, UITableViewRowAnimation animation);

    qint64 numberOfSections();
    qint64 numberOfRowsInSection(qint64 section); // 0 for a section that is not there
    std::optional<QString> titleForHeaderInSection(qint64 section);
    // In the table's coordinates; empty for what is not there.
    CGRect rectForSection(qint64 section); // with its header
    CGRect rectForHeaderInSection(qint64 section);
    CGRect rectForRowAtIndexPath(NSIndexPath indexPath);
    CGSize contentSize();

    // Null for a row without a cell.
    std::shared_ptr<UITableViewCell> cellForRowAtIndexPath(NSIndexPath indexPath);
    std::vector<NSIndexPath> indexPathsForVisibleRows();
    // Those in view, and one that is being edited out of view.
    std::vector<NSIndexPath> rowsWithCells();
    // For the data source: a cell that is no longer in use, or null.
    std::shared_ptr<UITableViewCell> dequeueReusableCellWithIdentifier(const QString &identifier);

    // The viewport; its origin is how far the table is scrolled.
    void setBounds(const CGRect &bounds) override;
    // Animated: the table gets there a little later, on the main queue. A row that is not there is passed over.
    void scrollToRowAtIndexPath(NSIndexPath indexPath, UITableViewScrollPosition position, bool animated);

    const std::optional<NSIndexPath> &indexPathForSelectedRow() const { return _selectedRow; }
    void deselectRowAtIndexPath(NSIndexPath indexPath, bool animated);
    // The tap: selects the row and tells the delegate.
    void userSelectsRow(NSIndexPath indexPath);

protected:
    void descendantDidChange(UIView &view) override;

private:
    struct Spare {
        NSIndexPath formerPath;
        std::shared_ptr<UITableViewCell> cell;
    };
    using Cells = std::map<NSIndexPath, std::shared_ptr<UITableViewCell>>;
    // Where a row stands now; null if it has gone.
    using Movement = std::function<std::optional<NSIndexPath>(NSIndexPath)>;

    void _loadIfNeeded();
    void _measure();
    void _moveRows(const Movement &moved);
    void _layOut();
    void _makeCell(NSIndexPath indexPath);
    void _putAside(NSIndexPath indexPath, const std::shared_ptr<UITableViewCell> &cell);
    void _dropEditing();
    void _scrollTo(double top, bool animated);
    std::vector<NSIndexPath> _rowsInView() const;

    UITableViewStyle _style = UITableViewStylePlain;
    double _rowHeight = 44;
    std::weak_ptr<UITableViewDataSource> _dataSource;
    std::weak_ptr<UITableViewDelegate> _delegate;
    ObserverList<UITableViewObserver> _tableObservers;
    std::optional<TableLayout> _layout; // null before the first load
    Cells _cells;
    std::vector<Spare> _spares;
    // The rows for which the data source is making cells, the innermost last; null for one that has gone meanwhile.
    std::vector<std::optional<NSIndexPath>> _wanted;
    std::optional<NSIndexPath> _selectedRow;
};

} // namespace korvane
