// The details of a video: description, tags, size and privacy.
#include "Korvane/VimeoComposeViewController.h"
#include "Platform/Preferences/CFPreferences.h"
#include "Tests/Support/Testing.h"
#include "VimeoDetailsController.h"

using namespace korvane;
using namespace korvane::test;

namespace {

const QString domain = QStringLiteral("com.zorvex.vimeo-upload");

struct Finish : VimeoComposeOptionViewDelegate {
    std::optional<QString> description;
    QStringList tags;
    int count = 0;
    void vimeoComposeOptionsViewDidFinish(const std::shared_ptr<VimeoDetailsController> &options) override {
        ++count;
        description = options->videoDescription();
        tags = options->tags();
    }
};

struct Details : ::testing::Test {
    TemporaryHome home;
    std::shared_ptr<Finish> delegate = std::make_shared<Finish>();
    std::shared_ptr<VimeoDetailsController> sheet = open();
    UITableView &table = *sheet->tableView();

    std::shared_ptr<VimeoDetailsController> open() {
        const auto made = VimeoDetailsController::initWithStyle(UITableViewStyleGrouped);
        made->setDelegate(delegate);
        made->viewWillAppear(false);
        return made;
    }
    static std::shared_ptr<UITableViewCell> cell(VimeoDetailsController &of, qint64 row, qint64 section) {
        of.tableView()->scrollToRowAtIndexPath({row, section}, UITableViewScrollPositionNone, false);
        return of.tableView()->cellForRowAtIndexPath({row, section});
    }
    std::shared_ptr<UITextField> tag(qint64 row) { return cell(*sheet, row, 1)->editableTextField(); }
    void type(qint64 row, const QString &text) { tag(row)->userReplacesCharacters({tag(row)->text().size(), 0}, text); }
    // "small* medium large": what the rows of a section show.
    static QString shown(VimeoDetailsController &of, qint64 section) {
        QStringList rows;
        for (qint64 row = 0; row < of.tableView()->numberOfRowsInSection(section); ++row) {
            const auto shownCell = cell(of, row, section);
            rows.append(
                shownCell->textLabel()->text().value_or(QString()) +
                (shownCell->accessoryType() == UITableViewCellAccessoryCheckmark ? QStringLiteral("*") : QString()));
        }
        return rows.join(u'|');
    }
};

} // namespace

TEST_F(Details, ShowWhatWasChosenInAnEarlierShare) {
    EXPECT_EQ(shown(*sheet, 2), QStringLiteral("Small|Medium|Large*"));
    EXPECT_EQ(shown(*sheet, 3), QStringLiteral("Everyone*|Only Me"));
    table.userSelectsRow({0, 2});
    table.userSelectsRow({1, 3});
    EXPECT_EQ(shown(*sheet, 2), QStringLiteral("Small*|Medium|Large"));
    const auto later = open();
    EXPECT_EQ(shown(*later, 2), QStringLiteral("Small*|Medium|Large"));
    EXPECT_EQ(shown(*later, 3), QStringLiteral("Everyone|Only Me*"));
    EXPECT_EQ(VimeoDetailsController::defaultVideoSize(), 0);
    EXPECT_FALSE(table.indexPathForSelectedRow());
}

TEST_F(Details, TakeAnyRememberedNumberAndNothingElse) {
    struct {
        QVariant stored;
        qint64 size;
    } const cases[]{{7, 7}, {-1, -1}, {QStringLiteral("1"), 1}, {QStringLiteral("big"), 2}, {QVariantMap(), 2}};
    for (const auto &test : cases) {
        CFPreferencesSetAppValue(QStringLiteral("VideoSize"), test.stored, domain);
        EXPECT_EQ(open()->videoSize(), test.size) << qPrintable(test.stored.toString());
    }
    CFPreferencesSetAppValue(QStringLiteral("VideoSize"), 7, domain);
    EXPECT_EQ(shown(*open(), 2), QStringLiteral("Small|Medium|Large"));
}

TEST_F(Details, ShowTheSizesThatAreKnown) {
    sheet->videoSizes() = {QStringLiteral("1 MB"), QStringLiteral("%1 100%")};
    table.reloadData();
    EXPECT_EQ(shown(*sheet, 2), QStringLiteral("Small (about 1 MB)|Medium (about %1 100%)|Large*"));
}

TEST_F(Details, AreAsHighAsTheirRows) {
    const double before = sheet->preferredContentSize().height();
    EXPECT_EQ(table.rectForRowAtIndexPath({0, 0}).height(), 90);
    EXPECT_EQ(before, table.contentSize().height());
    type(0, QStringLiteral("x"));
    EXPECT_EQ(sheet->preferredContentSize().height(), before + table.rowHeight());
    EXPECT_EQ(sheet->preferredContentSize().width(), 0);
}

TEST_F(Details, TagsFollowWhatIsTyped) {
    type(0, QStringLiteral("s"));
    EXPECT_EQ(sheet->tags(), QStringList{QStringLiteral("s")});
    ASSERT_EQ(table.numberOfRowsInSection(1), 2);
    EXPECT_EQ(tag(1)->text(), QString());
    type(0, QStringLiteral("ea, 海"));
    tag(0)->userReplacesCharacters({1, 4}, QStringLiteral("un and "));
    EXPECT_EQ(sheet->tags(), QStringList{QStringLiteral("sun and 海")});
    EXPECT_EQ(tag(0)->text(), QStringLiteral("sun and 海"));
    type(1, QStringLiteral("two"));
    type(2, QStringLiteral("three"));
    tag(1)->userReplacesCharacters({0, 3}, {});
    EXPECT_EQ(sheet->tags(), (QStringList{QStringLiteral("sun and 海"), QString(), QStringLiteral("three")}))
        << "it is still being edited";
    tag(2)->becomeFirstResponder();
    EXPECT_EQ(sheet->tags(), (QStringList{QStringLiteral("sun and 海"), QStringLiteral("three")}));
    EXPECT_EQ(tag(1)->text(), QStringLiteral("three"));
    tag(2)->becomeFirstResponder();
    tag(2)->resignFirstResponder();
    EXPECT_EQ(table.numberOfRowsInSection(1), 3) << "the row for a new tag stays";
}

TEST_F(Details, ReturnMovesOnToTheNextTag) {
    type(0, QStringLiteral("one"));
    EXPECT_FALSE(tag(0)->userPressesReturn());
    EXPECT_TRUE(tag(1)->isFirstResponder());
    for (int row = 1; row < 30; ++row)
        type(row, QString::number(row));
    tag(0)->becomeFirstResponder();
    const auto visible = table.indexPathsForVisibleRows();
    const auto last =
        *std::find_if(visible.rbegin(), visible.rend(), [](NSIndexPath path) { return path.section == 1; });
    EXPECT_FALSE(table.cellForRowAtIndexPath(last)->editableTextField()->userPressesReturn());
    EXPECT_EQ(sheet->indexPathForPendingFirstResponder(), (NSIndexPath{last.row + 1, 1}));
    EXPECT_TRUE(waitFor([&] { return !sheet->indexPathForPendingFirstResponder(); }));
    EXPECT_TRUE(table.cellForRowAtIndexPath({last.row + 1, 1})->editableTextField()->isFirstResponder());
}

TEST_F(Details, ReturnInTheLastRowLosesNothingOfWhatIsTypedNext) {
    type(0, QStringLiteral("one"));
    EXPECT_FALSE(tag(1)->userPressesReturn());
    type(1, QStringLiteral("two"));
    EXPECT_EQ(sheet->tags(), (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
    EXPECT_EQ(tag(1)->text(), QStringLiteral("two"));
}

TEST_F(Details, TellWhatWasEnteredEachTimeTheyGo) {
    sheet->viewWillDisappear(true);
    EXPECT_EQ(delegate->description, QString());
    std::dynamic_pointer_cast<UITextView>(cell(*sheet, 0, 0)->subviews().back())
        ->userReplacesText({0, 0}, QStringLiteral("line\nline"));
    type(0, QStringLiteral("tag"));
    table.userSelectsRow({0, 0});
    sheet->viewWillDisappear(true);
    EXPECT_EQ(delegate->count, 2);
    EXPECT_EQ(delegate->description, QStringLiteral("line\nline"));
    EXPECT_EQ(delegate->tags, QStringList{QStringLiteral("tag")});
    EXPECT_FALSE(VimeoDetailsController::initWithStyle(UITableViewStyleGrouped)->videoDescription());
}

TEST_F(Details, HaveFourSectionsAndStopTheProcessOnAFifth) {
    EXPECT_EQ(table.numberOfSections(), 4);
    EXPECT_EQ(table.titleForHeaderInSection(3), QStringLiteral("Who Can See It"));
    const std::string report = "\\(0\\).*VimeoDetailsController";
    EXPECT_DEATH(sheet->tableViewNumberOfRowsInSection(table, 4), report);
    EXPECT_DEATH(sheet->tableViewTitleForHeaderInSection(table, 4), report);
    EXPECT_DEATH(sheet->tableViewCellForRowAtIndexPath(table, {0, 4}), report);
}

TEST_F(Details, ASheetWithoutAVideoStopsTheProcess) {
    const auto compose = VimeoComposeViewController::initWithNibName();
    EXPECT_DEATH(compose->didSelectPost(), "\\(attachment\\).*Korvane/VimeoComposeViewController");
}
