// Tables without pixels: which rows have cells, and which cells they get.
#include "Platform/UIKit/UITableViewController.h"
#include "Tests/Support/Testing.h"

using namespace korvane;
using namespace korvane::test;

namespace {

// Three sections; the second is made of editable rows that the test changes.
struct Screen : UITableViewController {
    QStringList editable{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    qint64 lastRows = 2;
    bool reusesCells = true;
    int cellsMade = 0;
    std::function<void(NSIndexPath)> whileMaking;

    static std::shared_ptr<Screen> init() {
        const auto screen = std::make_shared<Screen>();
        screen->_initWithStyle(UITableViewStylePlain);
        screen->viewWillAppear(false);
        return screen;
    }
    qint64 numberOfSectionsInTableView(UITableView &) override { return 3; }
    qint64 tableViewNumberOfRowsInSection(UITableView &, qint64 section) override {
        if (section == 0) return 2;
        return section == 1 ? editable.size() : lastRows;
    }
    std::optional<QString> tableViewTitleForHeaderInSection(UITableView &, qint64 section) override {
        return section == 2 ? std::optional(QStringLiteral("last")) : std::nullopt;
    }
    double tableViewHeightForRowAtIndexPath(UITableView &tableView, NSIndexPath indexPath) override {
        return indexPath.section == 0 ? 90
                                      : UITableViewController::tableViewHeightForRowAtIndexPath(tableView, indexPath);
    }
    std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView &tableView,
                                                                    NSIndexPath indexPath) override {
        const bool isEditable = indexPath.section == 1;
        const QString identifier = isEditable ? QStringLiteral("editable") : QStringLiteral("plain");
        auto cell = reusesCells ? tableView.dequeueReusableCellWithIdentifier(identifier) : nullptr;
        if (!cell) {
            ++cellsMade;
            cell = UITableViewCell::initWithStyle(
                isEditable ? UITableViewCellStyleEditable : UITableViewCellStyleDefault, identifier);
        }
        if (isEditable) cell->editableTextField()->setText(editable[indexPath.row]);
        if (isEditable && whileMaking) whileMaking(indexPath);
        return cell;
    }
};

struct Watcher : UITableViewObserver {
    QStringList heard;
    std::function<void()> atEachCell;
    void tableViewDidReload() override { heard.append(QStringLiteral("reload")); }
    void tableViewDidInsertRows(const std::vector<NSIndexPath> &paths, UITableViewRowAnimation animation) override {
        heard.append(QStringLiteral("insert %1 %2").arg(paths[0].row).arg(animation));
    }
    void tableViewDidDeleteRows(const std::vector<NSIndexPath> &paths, UITableViewRowAnimation animation) override {
        heard.append(QStringLiteral("delete %1 %2").arg(paths[0].row).arg(animation));
    }
    void tableViewDidScroll(bool animated) override { heard.append(QStringLiteral("scroll %1").arg(animated)); }
    void tableViewCellDidChange(NSIndexPath path) override {
        heard.append(QStringLiteral("cell %1").arg(path.row));
        if (atEachCell) atEachCell();
    }
};

struct Table : ::testing::Test {
    std::shared_ptr<Screen> screen = Screen::init();
    UITableView &table = *screen->tableView();
    std::shared_ptr<Watcher> watcher = std::make_shared<Watcher>();

    void SetUp() override { table.addTableObserver(watcher); }
    std::shared_ptr<UITextField> field(qint64 row) {
        return table.cellForRowAtIndexPath({row, 1})->editableTextField();
    }
    void fill(int count) {
        screen->editable.clear();
        for (int row = 0; row < count; ++row)
            screen->editable.append(QString::number(row));
        table.reloadData();
    }
};

} // namespace

TEST_F(Table, StandsWhereItsRowsAndHeadersPutIt) {
    EXPECT_EQ(table.rectForSection(1), CGRect(0, 180, 360, 132));
    EXPECT_EQ(table.rectForSection(2), CGRect(0, 312, 360, 28 + 88));
    EXPECT_EQ(table.rectForRowAtIndexPath({1, 2}), CGRect(0, 312 + 28 + 44, 360, 44));
    EXPECT_EQ(table.rectForHeaderInSection(2), CGRect(0, 312, 360, 28));
    EXPECT_EQ(table.rectForHeaderInSection(1).height(), 0);
    EXPECT_TRUE(table.rectForSection(3).isEmpty());
    EXPECT_TRUE(table.rectForRowAtIndexPath({2, 2}).isEmpty());
    EXPECT_EQ(table.contentSize().height(), 428);
    table.setRowHeight(50);
    EXPECT_EQ(table.rectForSection(1), CGRect(0, 180, 360, 150));
}

TEST_F(Table, HasCellsForTheRowsInViewAndMakesNoMoreThanThose) {
    screen->lastRows = 1000;
    table.reloadData();
    const int atFirst = screen->cellsMade;
    EXPECT_FALSE(table.cellForRowAtIndexPath({20, 2}));
    for (int row = 0; row < 1000; ++row)
        table.scrollToRowAtIndexPath({row, 2}, UITableViewScrollPositionNone, false);
    EXPECT_TRUE(table.cellForRowAtIndexPath({999, 2}));
    EXPECT_FALSE(table.cellForRowAtIndexPath({0, 2}));
    EXPECT_LE(screen->cellsMade, atFirst + 20);
    EXPECT_EQ(table.indexPathsForVisibleRows().back(), (NSIndexPath{999, 2}));
    const double end = table.bounds().top();
    table.scrollToRowAtIndexPath({999, 2}, UITableViewScrollPositionTop, false);
    EXPECT_EQ(table.bounds().top(), end) << "not beyond the end";
    table.scrollToRowAtIndexPath({1000, 2}, UITableViewScrollPositionTop, false);
    EXPECT_EQ(table.bounds().top(), end) << "to no row that is not there";
}

TEST_F(Table, ReloadGivesEachRowItsOwnCellBackAndItsEditingGoesOn) {
    const auto second = table.cellForRowAtIndexPath({1, 1});
    table.cellForRowAtIndexPath({1, 0})->setAccessoryType(UITableViewCellAccessoryCheckmark);
    field(1)->becomeFirstResponder();
    field(1)->setText(QStringLiteral("typed"));
    screen->editable[1] = QStringLiteral("new");
    table.reloadData();
    EXPECT_EQ(table.cellForRowAtIndexPath({1, 1}), second);
    EXPECT_EQ(field(1)->text(), QStringLiteral("new"));
    EXPECT_TRUE(field(1)->isFirstResponder());
    EXPECT_EQ(table.cellForRowAtIndexPath({1, 0})->accessoryType(), UITableViewCellAccessoryCheckmark);
    EXPECT_EQ(table.cellForRowAtIndexPath({0, 0})->accessoryType(), UITableViewCellAccessoryNone);
    screen->editable.clear();
    table.reloadData();
    EXPECT_FALSE(UIResponder::firstResponder()) << "the row that was being edited has gone";
}

TEST_F(Table, RowsComeAndGoAndTheOthersKeepTheirCells) {
    screen->lastRows = 100;
    table.reloadData();
    const auto first = field(0);
    const auto last = field(2);
    last->becomeFirstResponder();
    watcher->heard.clear();
    screen->editable.insert(1, QStringLiteral("between"));
    table.insertRowsAtIndexPaths({{1, 1}}, UITableViewRowAnimationTop);
    EXPECT_EQ(field(0), first);
    EXPECT_EQ(field(1)->text(), QStringLiteral("between"));
    EXPECT_EQ(field(3), last);
    EXPECT_TRUE(last->isFirstResponder());
    screen->editable.removeAt(0);
    table.deleteRowsAtIndexPaths({{0, 1}}, UITableViewRowAnimationAutomatic);
    EXPECT_EQ(field(2), last);
    EXPECT_EQ(table.numberOfRowsInSection(1), 3);
    screen->editable.removeAt(2);
    table.deleteRowsAtIndexPaths({{2, 1}}, UITableViewRowAnimationAutomatic);
    EXPECT_FALSE(last->isFirstResponder());
    const QString all = QStringLiteral("insert 1 3|cell 1|delete 0 100|cell 6|delete 2 100|cell 7");
    EXPECT_EQ(watcher->heard.join(u'|'), all) << "rows first, then the cells of those that come into view";
}

TEST_F(Table, ManyRowsGoAtOnceAndTheKeyboardWithOneOfThem) {
    fill(30);
    const auto second = field(1), fifth = field(4);
    field(0)->becomeFirstResponder();
    for (const int row : {3, 2, 0})
        screen->editable.removeAt(row);
    table.deleteRowsAtIndexPaths({{0, 1}, {2, 1}, {3, 1}}, UITableViewRowAnimationAutomatic);
    EXPECT_EQ(field(0), second);
    EXPECT_EQ(field(1), fifth);
    EXPECT_FALSE(UIResponder::firstResponder());
}

TEST_F(Table, ACellInTheMakingGoesWithItsRow) {
    fill(30);
    QStringList made;
    screen->whileMaking = [&](NSIndexPath path) {
        made.append(screen->editable[path.row]);
        if (made.size() > 1) return;
        screen->editable.removeFirst();
        table.deleteRowsAtIndexPaths({{0, 1}}, UITableViewRowAnimationAutomatic);
    };
    table.scrollToRowAtIndexPath({20, 1}, UITableViewScrollPositionBottom, false);
    EXPECT_GT(made.size(), 5);
    EXPECT_EQ(made.removeDuplicates(), 0);
    for (const NSIndexPath path : table.indexPathsForVisibleRows())
        EXPECT_EQ(field(path.row)->text(), screen->editable[path.row]);
}

TEST_F(Table, CellsThatAreNeverReusedDoNotGather) {
    screen->reusesCells = false;
    table.reloadData();
    const std::weak_ptr<UITableViewCell> cell = table.cellForRowAtIndexPath({0, 0});
    table.reloadData();
    table.reloadData();
    EXPECT_TRUE(cell.expired());
}

TEST_F(Table, ACellThatIsGivenToAnotherRowBringsNoTextAlong) {
    const auto former = table.cellForRowAtIndexPath({2, 1});
    former->editableTextField()->setText(QStringLiteral("left over"));
    screen->editable.removeAt(2);
    table.deleteRowsAtIndexPaths({{2, 1}}, UITableViewRowAnimationAutomatic);
    const auto reused = table.dequeueReusableCellWithIdentifier(QStringLiteral("editable"));
    EXPECT_EQ(reused, former);
    EXPECT_EQ(reused->editableTextField()->text(), QString());
    EXPECT_FALSE(table.dequeueReusableCellWithIdentifier(QStringLiteral("editable")));
}

TEST_F(Table, ACellThatIsBeingEditedStaysAlsoOutOfView) {
    screen->lastRows = 100;
    table.reloadData();
    const auto edited = field(0);
    edited->becomeFirstResponder();
    table.scrollToRowAtIndexPath({99, 2}, UITableViewScrollPositionBottom, false);
    ASSERT_TRUE(table.cellForRowAtIndexPath({0, 1}));
    EXPECT_EQ(field(0), edited);
    EXPECT_FALSE(table.cellForRowAtIndexPath({1, 1}));
    watcher->heard.clear();
    table.reloadData();
    EXPECT_EQ(watcher->heard.mid(0, 2).join(u'|'), QStringLiteral("reload|cell 0"));
    EXPECT_EQ(table.rowsWithCells().front(), (NSIndexPath{0, 1}));
    EXPECT_EQ(field(0), edited);
    EXPECT_TRUE(edited->isFirstResponder());
}

TEST_F(Table, AnAnimatedScrollArrivesLater) {
    screen->lastRows = 100;
    table.reloadData();
    watcher->heard.clear();
    table.scrollToRowAtIndexPath({50, 2}, UITableViewScrollPositionBottom, true);
    EXPECT_FALSE(table.cellForRowAtIndexPath({50, 2}));
    EXPECT_TRUE(waitFor([&] { return table.cellForRowAtIndexPath({50, 2}) != nullptr; }));
    EXPECT_EQ(watcher->heard.filter(QStringLiteral("scroll")), QStringList{QStringLiteral("scroll 1")});
}

TEST_F(Table, TellsWhoWatchesOfEachChangeInACell) {
    watcher->heard.clear();
    table.userSelectsRow({1, 0});
    EXPECT_EQ(table.indexPathForSelectedRow(), (NSIndexPath{1, 0}));
    table.deselectRowAtIndexPath({0, 0}, true);
    EXPECT_TRUE(table.indexPathForSelectedRow());
    table.deselectRowAtIndexPath({1, 0}, true);
    EXPECT_FALSE(table.indexPathForSelectedRow());
    const auto later = std::make_shared<Watcher>();
    table.addTableObserver(later);
    watcher->atEachCell = [&] { table.setBounds({0, 0, 360, 100}); }; // the row's cell goes
    field(2)->setText(screen->editable[2]);
    field(2)->setText(QStringLiteral("x"));
    EXPECT_EQ(later->heard, QStringList{QStringLiteral("cell 2")}) << "once, and of the row that was meant";
    EXPECT_EQ(watcher->heard,
              (QStringList{QStringLiteral("cell 1"), QStringLiteral("cell 1"), QStringLiteral("cell 2")}));
    table.userSelectsRow({7, 0});
    EXPECT_FALSE(table.indexPathForSelectedRow());
}
