// The option screens of the Flickr share sheet, and the albums that one of them shows.
#include "FlickrAudienceController.h"
#include "FlickrPhotoSetController.h"
#include "Platform/Foundation/NSBundle.h"
#include "Tests/Support/ShownRows.h"
#include "Tests/Support/StandInAccount.h"
#include "Tests/Support/Testing.h"

using namespace korvane;
using namespace korvane::test;

namespace {

struct Sheet : FlickrComposeOptionViewDelegate {
    std::shared_ptr<ACAccount> account;
    std::vector<std::pair<std::shared_ptr<UITableViewController>, QVariant>> heard;

    std::shared_ptr<ACAccountStore> accountStore() const override { return nullptr; }
    std::shared_ptr<ACAccount> flickrAccount() const override { return account; }
    void flickrComposeOptionViewDidFinishWithSelection(const std::shared_ptr<UITableViewController> &optionView,
                                                       const QVariant &selection) override {
        heard.emplace_back(optionView, selection);
    }
};

struct Pickers : ::testing::Test {
    TemporaryHome home;
    StandInAccount flickr{home};
    std::shared_ptr<Sheet> sheet = std::make_shared<Sheet>();
    std::shared_ptr<FlickrPhotoSetManager> manager = FlickrPhotoSetManager::init();

    void SetUp() override {
        sheet->account = flickr.account;
        manager->setDelegate(sheet);
    }
    std::shared_ptr<FlickrPhotoSetController> albums() {
        const auto screen = FlickrPhotoSetController::initWithPhotoSetManager(manager);
        screen->setDelegate(sheet);
        screen->viewWillAppear(false);
        return screen;
    }
    bool loaded() {
        return waitFor([&] { return manager->photoSets().has_value(); });
    }
};

const QString someAlbums = QStringLiteral("No album*|Holidays|Family & friends|Straßenfotos 日本");

} // namespace

TEST_F(Pickers, AudienceMovesItsMarkAndTellsEachChoice) {
    const auto screen = FlickrAudienceController::init();
    screen->setDelegate(sheet);
    screen->setAudience(2);
    screen->viewWillAppear(false);
    EXPECT_EQ(shownRows(*screen->tableView()), QStringLiteral("Public|Friends|Family*|Only Me"));
    EXPECT_EQ(screen->preferredContentSize(), CGSize(0, 4 * screen->tableView()->rowHeight()));
    screen->tableView()->userSelectsRow({3, 0});
    screen->tableView()->userSelectsRow({3, 0});
    EXPECT_EQ(shownRows(*screen->tableView()), QStringLiteral("Public|Friends|Family|Only Me*"));
    ASSERT_EQ(sheet->heard.size(), 2u);
    EXPECT_EQ(sheet->heard[0].first, screen);
    EXPECT_EQ(sheet->heard[0].second, QVariant(quint32(3)));
}

TEST_F(Pickers, AnAudienceWithoutARowStopsTheProcess) {
    const std::string report = "\\(\\(int\\)audience < ARRAY_SIZE\\(titles\\)\\).*"
                               "\\+\\[FlickrAudienceController titleForAudience:\\].*FlickrAudienceController.*27";
    EXPECT_DEATH(FlickrAudienceController::titleForAudience(4), report);
    EXPECT_DEATH(FlickrAudienceController::titleForAudience(-1), report);
    const auto screen = FlickrAudienceController::init();
    screen->viewWillAppear(false);
    EXPECT_DEATH(screen->tableViewCellForRowAtIndexPath(*screen->tableView(), {4, 0}), "row < ARRAY_SIZE.*43");
}

TEST_F(Pickers, AlbumsAreLoadedAndOneIsChosen) {
    const auto screen = albums();
    EXPECT_FALSE(manager->photoSets());
    EXPECT_EQ(screen->tableView()->numberOfRowsInSection(0), 0);
    ASSERT_TRUE(loaded());
    EXPECT_EQ(shownRows(*screen->tableView()), someAlbums);
    EXPECT_EQ(screen->title(), QStringLiteral("Choose Album"));
    screen->tableView()->userSelectsRow({2, 0});
    EXPECT_EQ(shownRows(*screen->tableView()), QStringLiteral("No album|Holidays|Family & friends*|Straßenfotos 日本"));
    const qint64 id = flickr.server.albums()[1].id;
    EXPECT_EQ(screen->photoSetID(), id);
    EXPECT_EQ(sheet->heard.back().second, QVariant(id));
    EXPECT_EQ(screen->photoSetTitle(), QStringLiteral("Family & friends"));
    manager->refreshPhotoSets();
    ASSERT_TRUE(loaded());
    EXPECT_EQ(shownRows(*screen->tableView()), QStringLiteral("No album|Holidays|Family & friends*|Straßenfotos 日本"));
    screen->tableView()->userSelectsRow({0, 0});
    EXPECT_EQ(screen->photoSetID(), 0);
    EXPECT_EQ(flickr.server.protocolErrors(), QStringList());
}

TEST_F(Pickers, AlbumsThatCannotBeLoadedLeaveTheRowForNoneAndSayWhy) {
    const LogCapture log;
    flickr.server.on("getList")
        .answer(200, "text/xml", "<rsp stat=\"fail\"><err code=\"98\" msg=\"Invalid auth\"/></rsp>")
        .fail(500, 1)
        .thenOk();
    const auto screen = albums();
    for (const char *said : {"Flickr says: Invalid auth", "is not understood"}) {
        ASSERT_TRUE(loaded());
        EXPECT_TRUE(says(manager->problem(), said));
        EXPECT_EQ(shownRows(*screen->tableView()), QStringLiteral("No album*"));
        manager->refreshPhotoSets();
        EXPECT_FALSE(manager->problem());
    }
    ASSERT_TRUE(loaded());
    EXPECT_FALSE(manager->problem());
    EXPECT_EQ(shownRows(*screen->tableView()), someAlbums);
    flickr.server.stop();
    manager->refreshPhotoSets();
    ASSERT_TRUE(loaded());
    EXPECT_EQ(manager->problem()->domain(), NSURLErrorDomain);
    EXPECT_EQ(shownRows(*screen->tableView()), QStringLiteral("No album*"));
    EXPECT_TRUE(log.lines().join(u'\n').contains(QStringLiteral("########### Error ")));
}

TEST_F(Pickers, ASheetThatIsGoneIsNotAskedAndAScreenThatIsGoneStopsTheProcess) {
    const auto screen = albums();
    sheet.reset();
    ASSERT_TRUE(loaded());
    manager->refreshPhotoSets();
    ASSERT_TRUE(loaded()) << "without an account Flickr refuses, and that is an answer";
    EXPECT_EQ(shownRows(*screen->tableView()), QStringLiteral("No album*"));
    const auto lose = [&] {
        albums().reset();
        loaded();
    };
    EXPECT_DEATH(lose(), "\\(_tableDelegate\\).*FlickrPhotoSetManager.*157");
}
