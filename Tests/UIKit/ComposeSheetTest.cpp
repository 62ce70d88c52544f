// A share sheet and the screens over it: what those who watch it hear, and in which order.
#include "Platform/Social/SLComposeServiceViewController.h"
#include "Platform/UIKit/UITableViewController.h"
#include "Tests/Support/Testing.h"

#include <array>
#include <utility>

using namespace korvane;

namespace {

struct Option : UITableViewController {
    QStringList &heard;
    std::function<void()> whenChosen;
    std::function<void()> whenLeaving;

    Option(const QString &name, QStringList &list) : heard(list) { setTitle(name); }
    void tell(const char *what) { heard.append(*title() + QLatin1String(what)); }
    void viewWillAppear(bool animated) override {
        UITableViewController::viewWillAppear(animated);
        tell(" will appear");
    }
    void viewDidAppear(bool) override { tell(" did appear"); }
    void viewWillDisappear(bool) override {
        tell(" will disappear");
        if (whenLeaving) whenLeaving();
    }
    void viewDidDisappear(bool) override { tell(" did disappear"); }
    qint64 tableViewNumberOfRowsInSection(UITableView &, qint64) override { return 1; }
    std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView &, NSIndexPath) override {
        return UITableViewCell::initWithStyle(UITableViewCellStyleDefault, {});
    }
    void tableViewDidSelectRowAtIndexPath(UITableView &, NSIndexPath) override { whenChosen(); }
};

struct Sheet : SLComposeServiceViewController {
    QStringList heard;
    std::array<std::shared_ptr<Option>, 2> options{std::make_shared<Option>(QStringLiteral("a"), heard),
                                                   std::make_shared<Option>(QStringLiteral("b"), heard)};
    void begin() { _initWithNibName(std::nullopt, std::nullopt); }
    std::vector<std::shared_ptr<SLComposeSheetConfigurationItem>> configurationItems() override {
        std::vector<std::shared_ptr<SLComposeSheetConfigurationItem>> items;
        for (const auto &option : options) {
            items.push_back(SLComposeSheetConfigurationItem::init());
            items.back()->setTapHandler([this, option] { pushConfigurationViewController(option); });
        }
        return items;
    }
};

struct Recorder : SLComposeServiceViewControllerObserver {
    QStringList &heard;
    explicit Recorder(QStringList &list) : heard(list) {}
    void tell(const char *what, const QString &which = {}) { heard.append(QLatin1String(what) + which); }
    void composeTextDidChange() override { tell("text"); }
    void composeItemsDidChange() override { tell("items"); }
    void composeDidPush(const std::shared_ptr<UIViewController> &screen) override { tell("push ", *screen->title()); }
    void composeDidPop(const std::shared_ptr<UIViewController> &screen) override { tell("pop ", *screen->title()); }
    void composeDidPresentSettingsAlert(const SLSettingsAlert &alert) override { tell("alert ", alert.title); }
    void composeDidDismissSettingsAlert() override { tell("no alert"); }
    void composeDidEnd() override { tell("end"); }
};

struct ComposeSheet : ::testing::Test {
    std::shared_ptr<Sheet> sheet = std::make_shared<Sheet>();
    std::shared_ptr<Recorder> recorder = std::make_shared<Recorder>(sheet->heard);

    void SetUp() override {
        sheet->begin();
        sheet->addObserver(recorder);
        sheet->appear();
    }
    void tap(size_t item) { sheet->shownConfigurationItems().at(item)->tapHandler()(); }
    QString heard() { return std::exchange(sheet->heard, {}).join(u'|'); }
};

} // namespace

TEST_F(ComposeSheet, TellsEachStepInItsOrder) {
    EXPECT_EQ(heard(), QStringLiteral("items"));
    sheet->textView()->userReplacesText({0, 0}, QStringLiteral("x"));
    tap(0);
    EXPECT_EQ(heard(), QStringLiteral("text|a will appear|push a|a did appear"));
    tap(1);
    EXPECT_EQ(heard(), QStringLiteral("a will disappear|pop a|a did disappear|b will appear|push b|b did appear"));
    sheet->options[1]->whenChosen = [&] {
        sheet->shownConfigurationItems()[1]->setValue(QStringLiteral("chosen"));
        sheet->shownConfigurationItems()[1]->setValue(QStringLiteral("chosen"));
    };
    sheet->options[1]->tableView()->userSelectsRow({0, 0});
    EXPECT_EQ(heard(), QStringLiteral("items")) << "once";
    sheet->popConfigurationViewController();
    sheet->popConfigurationViewController();
    EXPECT_EQ(heard(), QStringLiteral("b will disappear|pop b|b did disappear"));
    sheet->userTapsPost();
    EXPECT_EQ(heard(), QStringLiteral("end"));
    sheet->userTapsPost();
    sheet->didSelectCancel();
    EXPECT_EQ(heard(), QString());
    EXPECT_EQ(sheet->extensionContext()->state(), NSExtensionContext::State::Completed);
}

TEST_F(ComposeSheet, PostTakesWhatIsStillOpenWithIt) {
    tap(0);
    heard();
    sheet->options[0]->whenLeaving = [&] { sheet->popConfigurationViewController(); }; // it is on its way already
    sheet->userTapsPost();
    EXPECT_EQ(heard(), QStringLiteral("a will disappear|pop a|a did disappear|end"));
}

TEST_F(ComposeSheet, TellsOfTheAlertAndOfTheRowsThatAreShown) {
    const auto former = sheet->shownConfigurationItems()[0];
    sheet->reloadConfigurationItems();
    heard();
    former->setValue(QStringLiteral("nobody sees this"));
    EXPECT_EQ(heard(), QString());
    sheet->presentSettingsAlert(QStringLiteral("No account"), {}, NSURL::fileURLWithPath("/"));
    sheet->dismissSettingsAlert();
    sheet->dismissSettingsAlert();
    EXPECT_EQ(heard(), QStringLiteral("alert No account|no alert"));
}
