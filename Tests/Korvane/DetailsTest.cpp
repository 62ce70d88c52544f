// The details of a video: description, tags, size and privacy.
#include "Korvane/VimeoComposeViewController.h"
#include "Platform/Foundation/NSByteCountFormatter.h"
#include "Platform/Preferences/CFPreferences.h"
#include "Tests/AVFoundation/VideoFixture.h"
#include "Tests/Support/ShownRows.h"
#include "Tests/Support/Testing.h"
#include "VimeoDetailsController.h"

#include <QRegularExpression>

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
    static QString shown(VimeoDetailsController &of, qint64 section) { return shownRows(*of.tableView(), section); }
    std::shared_ptr<UITextField> tag(qint64 row) { return cellAt(table, {row, 1})->editableTextField(); }
    void empty(qint64 row) { tag(row)->userReplacesCharacters({0, tag(row)->text().size()}, {}); }
    // What the tag rows show, the one for a new tag left out.
    QStringList shownTags() {
        QStringList texts;
        for (qint64 row = 0; row < table.numberOfRowsInSection(1); ++row)
            texts.append(tag(row)->text());
        EXPECT_EQ(texts.last(), QString());
        return texts.mid(0, texts.size() - 1);
    }
    void type(qint64 row, const QString &text) { tag(row)->userReplacesCharacters({tag(row)->text().size(), 0}, text); }
};

// The sheet for a video, with its details open.
std::pair<std::shared_ptr<VimeoComposeViewController>, std::shared_ptr<VimeoDetailsController>>
openDetails(const SLAttachment &attachment) {
    const auto sheet = VimeoComposeViewController::initWithNibName();
    sheet->setAttachments({attachment});
    sheet->appear();
    sheet->shownConfigurationItems().at(VimeoComposeItemDetails)->tapHandler()();
    return {sheet, std::dynamic_pointer_cast<VimeoDetailsController>(sheet->configurationViewController())};
}

using EstimatedSizes = VideoTest;

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
    empty(1);
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

TEST_F(Details, ReturnInAnEmptiedTagTakesItsRowAwayAndMovesOnOutOfView) {
    QStringList tags;
    for (int row = 0; row < 30; ++row) {
        tags.append(QStringLiteral("tag %1").arg(row));
        type(row, tags.last());
    }
    for (const qint64 row : {12, 28}) { // the second is the last, before the row for a new tag
        table.scrollToRowAtIndexPath({row, 1}, UITableViewScrollPositionBottom, false);
        empty(row);
        EXPECT_FALSE(tag(row)->userPressesReturn());
        ASSERT_TRUE(waitFor([&] { return !sheet->indexPathForPendingFirstResponder(); }));
        tags.removeAt(row);
        EXPECT_EQ(sheet->tags(), tags);
        const auto field = std::dynamic_pointer_cast<UITextField>(UIResponder::firstResponder());
        ASSERT_TRUE(field);
        EXPECT_EQ(shownTags(), tags);
        field->userReplacesCharacters({field->text().size(), 0}, QStringLiteral("!"));
        row < tags.size() ? void(tags[row].append(u'!')) : tags.append(QStringLiteral("!"));
        EXPECT_EQ(sheet->tags(), tags);
        EXPECT_EQ(shownTags(), tags);
    }
}

TEST_F(Details, AnEmptiedTagGoesAlsoWhenItIsOutOfView) {
    table.setBounds({0, 0, 360, 200});
    type(0, QStringLiteral("a"));
    type(1, QStringLiteral("b"));
    empty(1);
    cellAt(table, {1, 3});
    table.userSelectsRow({1, 3});
    ASSERT_TRUE(UIResponder::firstResponder());
    UIResponder::firstResponder()->resignFirstResponder();
    EXPECT_EQ(sheet->tags(), QStringList{QStringLiteral("a")});
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
    cellAt(table, {0, 0})->textView()->userReplacesText({0, 0}, QStringLiteral("line\nline"));
    type(0, QStringLiteral("tag"));
    table.userSelectsRow({0, 0});
    sheet->viewWillDisappear(true);
    EXPECT_EQ(delegate->count, 2);
    EXPECT_EQ(delegate->description, QStringLiteral("line\nline"));
    EXPECT_EQ(delegate->tags, QStringList{QStringLiteral("tag")});
    EXPECT_FALSE(VimeoDetailsController::initWithStyle(UITableViewStyleGrouped)->videoDescription());
}

TEST_F(Details, GoBeforeTheEditingEnds) {
    const auto [compose, details] = openDetails({SLAttachmentTypeVideo, NSData(QByteArray("film")), std::nullopt});
    const auto field = [&](qint64 row) { return cellAt(*details->tableView(), {row, 1})->editableTextField(); };
    field(0)->userReplacesCharacters({0, 0}, QStringLiteral("a"));
    field(1)->userReplacesCharacters({0, 0}, QStringLiteral("b"));
    field(1)->userReplacesCharacters({0, 1}, {});
    compose->popConfigurationViewController();
    EXPECT_EQ(compose->tags(), (QStringList{QStringLiteral("a"), QString()}));
    EXPECT_EQ(details->tags(), QStringList{QStringLiteral("a")});
    EXPECT_FALSE(UIResponder::firstResponder());
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

TEST_F(EstimatedSizes, AreThoseOfTheVideoThatWasLookedInto) {
    const QByteArray path = makeVideo("clip.mp4");
    const auto looked = openDetails(*SLAttachment::videoAttachment(path)).second;
    const QString size = QStringLiteral("([0-9.]+) ([kM])B");
    const QRegularExpression labels(
        QStringLiteral("^Small \\(about %1\\)\\|Medium \\(about %1\\)\\|Large \\(about %1\\)\\*$").arg(size));
    const auto match = labels.match(shownRows(*looked->tableView(), VimeoDetailsSectionVideoSize));
    ASSERT_TRUE(match.hasMatch()) << qPrintable(shownRows(*looked->tableView(), VimeoDetailsSectionVideoSize));
    const auto kilobytes = [&](int group) {
        return match.captured(group).toDouble() * (match.captured(group + 1) == u"M" ? 1000 : 1);
    };
    EXPECT_LT(10, kilobytes(1));
    EXPECT_LT(kilobytes(1), kilobytes(3));
    EXPECT_LT(kilobytes(3), kilobytes(5));
    EXPECT_NEAR(kilobytes(5), double(QFileInfo(QFile::decodeName(path)).size()) / 1000, kilobytes(5) / 10)
        << "large is the video as it is";

    const auto data = openDetails({SLAttachmentTypeVideo, *NSData::dataWithContentsOfFile(path), std::nullopt}).second;
    EXPECT_EQ(shownRows(*data->tableView(), VimeoDetailsSectionVideoSize), QStringLiteral("Small|Medium|Large*"));
}

TEST(ByteCounts, AreRoundedAsPeopleReadThem) {
    const std::pair<float, const char *> cases[] = {
        {0, "0 bytes"},      {999, "999 bytes"},  {1000, "1 kB"},          {2'501, "3 kB"},
        {999'400, "999 kB"}, {999'999, "1.0 MB"}, {12'345'678, "12.3 MB"}, {999'980'000, "1.0 GB"}};
    for (const auto &[bytes, text] : cases)
        EXPECT_EQ(NSByteCountFormatter::stringFromByteCount(bytes, NSByteCountFormatterCountStyleFile),
                  QLatin1String(text));
}
