// Whole shares through the share sheets: what a person does in them, and what arrives.
#include "FlickrPhotoSetController.h"
#include "Korvane/FlickrComposeViewController.h"
#include "Korvane/VimeoComposeViewController.h"
#include "Platform/Accounts/CredentialStore.h"
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Preferences/CFPreferences.h"
#include "Platform/UIKit/UIKeyboard.h"
#include "Tests/EndToEnd/ServiceHarness.h"

using namespace korvane;
using namespace korvane::test;

namespace {

SLAttachment photo(const QByteArray &bytes) {
    return {SLAttachmentTypeData, NSData(bytes), std::nullopt};
}

struct Compose : ServiceTest {
    standin::StandIn &server = flickr.server;
    LogCapture sheetLog;

    template <typename Sheet>
    std::shared_ptr<Sheet> open(std::vector<SLAttachment> attachments) {
        const auto sheet = Sheet::initWithNibName();
        sheet->setAttachments(std::move(attachments));
        sheet->appear();
        return sheet;
    }
    std::shared_ptr<FlickrComposeViewController> openFlickr(std::vector<SLAttachment> attachments) {
        return open<FlickrComposeViewController>(std::move(attachments));
    }
    std::shared_ptr<VimeoComposeViewController> openVimeo(std::vector<SLAttachment> attachments) {
        return open<VimeoComposeViewController>(std::move(attachments));
    }
    static UITableView &openOption(SLComposeServiceViewController &sheet, size_t item) {
        sheet.shownConfigurationItems().at(item)->tapHandler()();
        return *std::dynamic_pointer_cast<UITableViewController>(sheet.configurationViewController())->tableView();
    }
    static void choose(SLComposeServiceViewController &sheet, size_t item, qint64 row) {
        openOption(sheet, item).userSelectsRow({row, 0});
        sheet.popConfigurationViewController();
    }
    static QString value(const SLComposeServiceViewController &sheet, size_t item) {
        return sheet.shownConfigurationItems().at(item)->value().value_or(QStringLiteral("(null)"));
    }
    bool post(SLComposeServiceViewController &sheet) {
        sheet.userTapsPost();
        return sheet.extensionContext()->state() == NSExtensionContext::State::Completed;
    }
    bool logged(const char *line) const { return sheetLog.lines().join(u'\n').contains(QLatin1String(line)); }
};

// "public friend family": who sees a photo.
QString audienceOf(const standin::Photo &photo) {
    QStringList names;
    for (const char *name : {"is_public", "is_friend", "is_family"})
        if (standin::valueOf(photo.parameters, name) == "1") names.append(QLatin1String(name + 3));
    return names.join(u' ');
}

} // namespace

TEST_F(Compose, TheFirstShareIsPublicAndInNoAlbum) {
    const QByteArray bytes = jpegOfSize(5000);
    const auto sheet = openFlickr({photo(bytes)});
    EXPECT_EQ(sheet->title(), QStringLiteral("Flickr"));
    EXPECT_EQ(value(*sheet, 0), QStringLiteral("No album"));
    EXPECT_EQ(value(*sheet, 1), QStringLiteral("Public"));
    sheet->textView()->userReplacesText({0, 0}, QStringLiteral("Abend\nam See"));
    ASSERT_TRUE(post(*sheet));
    ASSERT_TRUE(waitForState("done", 1));
    const auto photos = server.photos();
    ASSERT_EQ(photos.size(), 1u);
    EXPECT_EQ(photos[0].sha256, sha256Of(bytes));
    EXPECT_EQ(standin::valueOf(photos[0].parameters, "title"), "Abend\nam See");
    EXPECT_EQ(audienceOf(photos[0]), QStringLiteral("public"));
    EXPECT_TRUE(logged("Got imageData with length 5000"));
    sheet->userTapsPost();
    EXPECT_EQ(uploads().size(), 1) << "a request that has ended is not posted again";
}

TEST_F(Compose, EachAudienceArrivesAndIsRememberedWithTheAlbum) {
    struct {
        const char *shown;
        const char *audience;
    } const rows[]{{"Public", "public"}, {"Friends", "friend"}, {"Family", "family"}, {"Only Me", ""}};
    for (qint64 row = 0; row < 4; ++row) {
        const auto sheet = openFlickr({photo(jpegOfSize(5000 + row))});
        choose(*sheet, 1, row);
        EXPECT_EQ(value(*sheet, 1), QLatin1String(rows[row].shown));
        ASSERT_TRUE(post(*sheet));
        ASSERT_TRUE(waitForState("done", int(row) + 1));
        EXPECT_EQ(audienceOf(server.photos().back()), QLatin1String(rows[row].audience));
        EXPECT_EQ(value(*openFlickr({}), 1), QLatin1String(rows[row].shown)) << "remembered";
    }
    EXPECT_EQ(CFPreferencesCopyAppValue(FlickrUploadAudience, FlickrUploadDomain), QVariant(qint64(3)));

    const auto sheet = openFlickr({photo(jpegOfSize(6000))});
    openOption(*sheet, 0);
    const auto albums = std::dynamic_pointer_cast<FlickrPhotoSetController>(sheet->configurationViewController());
    ASSERT_TRUE(waitFor([&] { return albums->manager()->photoSets().has_value(); }));
    sheet->reloadConfigurationItems();
    EXPECT_EQ(value(*sheet, 0), QStringLiteral("(null)")) << "nothing has been chosen in the screen yet";
    albums->tableView()->userSelectsRow({2, 0});
    EXPECT_EQ(value(*sheet, 0), QStringLiteral("Family & friends"));
    const auto later = openFlickr({photo(jpegOfSize(7000))});
    EXPECT_EQ(value(*later, 0), QStringLiteral("Family & friends"));
    ASSERT_TRUE(post(*later));
    ASSERT_TRUE(waitForState("done", 5));
    EXPECT_EQ(server.albums()[1].photos.size(), 1u);
}

TEST_F(Compose, OneOfFiveHundredAlbumsIsChosen) {
    standin::StandInOptions options;
    options.albums = 500;
    standin::StandIn many(options);
    ASSERT_TRUE(many.start());
    setEnvironment("KORVANE_FLICKR_URL", many.url().toUtf8());
    const auto sheet = openFlickr({photo(jpegOfSize(5000))});
    UITableView &table = openOption(*sheet, 0);
    ASSERT_TRUE(waitFor([&] { return table.numberOfRowsInSection(0) == 501; }));
    table.scrollToRowAtIndexPath({500, 0}, UITableViewScrollPositionBottom, false);
    EXPECT_EQ(table.cellForRowAtIndexPath({500, 0})->textLabel()->text(), many.albums()[499].title);
    table.userSelectsRow({500, 0});
    table.scrollToRowAtIndexPath({0, 0}, UITableViewScrollPositionTop, false);
    EXPECT_EQ(table.cellForRowAtIndexPath({0, 0})->accessoryType(), UITableViewCellAccessoryNone);
    table.scrollToRowAtIndexPath({500, 0}, UITableViewScrollPositionBottom, false);
    EXPECT_EQ(table.cellForRowAtIndexPath({500, 0})->accessoryType(), UITableViewCellAccessoryCheckmark);
    ASSERT_TRUE(post(*sheet));
    ASSERT_TRUE(waitForState("done", 1));
    EXPECT_EQ(many.albums()[499].photos.size(), 1u);
}

TEST_F(Compose, ABatchLosesWhatHasNoDataAndKeepsWhatIsUnknown) {
    const QByteArray path = home.file("source.jpg", jpegOfSize(8000));
    const QByteArray picture = home.file("library/Pictures/a.png", dataBytes("16bit.png"));
    const auto sheet =
        openFlickr({photo(jpegOfSize(5000)),
                    {SLAttachmentTypeData, std::monostate(), std::nullopt},
                    {SLAttachmentTypeData, std::monostate(), NSURL::fileURLWithPath(home.path("missing.jpg").toUtf8())},
                    {SLAttachmentTypeData, std::monostate(), NSURL::fileURLWithPath(path)},
                    {1, NSData(QByteArray("what is this")), std::nullopt},
                    {SLAttachmentTypeAssetURL, *ALAssetsLibrary::assetURLForFile(picture), std::nullopt}});
    ASSERT_TRUE(post(*sheet));
    ASSERT_TRUE(waitForState("done", 3));
    ASSERT_TRUE(waitForState("failed", 1));
    EXPECT_EQ(server.photos().size(), 3u);
    EXPECT_EQ(uploads().size(), 4);
    EXPECT_TRUE(logged("Got imageData with length 0"));
    EXPECT_TRUE(logged("Loaded imageData with length 8000 from payloadSourceFileURL"));
    EXPECT_TRUE(logged("Can't get attachment data for flickr post. error "));
    EXPECT_TRUE(logged("Don't know what to do with attachment type 1"));
    EXPECT_TRUE(errorOf(2).contains(QStringLiteral("holds no photo"))) << qPrintable(errorOf(2));
}

TEST_F(Compose, ARefusedHandOverCancelsTheRequestWithTheServicesReason) {
    const auto sheet = openFlickr({{SLAttachmentTypeData, std::monostate(), std::nullopt}});
    EXPECT_FALSE(post(*sheet)) << "all attachments were dropped";
    EXPECT_EQ(sheet->extensionContext()->state(), NSExtensionContext::State::Cancelled);
    EXPECT_TRUE(says(sheet->extensionContext()->error(), "nothing to share"));
    EXPECT_TRUE(logged("uploadPosts error "));
    const auto cancelled = openFlickr({});
    cancelled->didSelectCancel();
    EXPECT_EQ(cancelled->extensionContext()->error()->code(), 3072);
}

TEST_F(Compose, ASheetThatIsCancelledIsKeptUntilItsAlbumsAreThere) {
    auto sheet = openFlickr({});
    EXPECT_FALSE(sheet->isWaitingForAnswers());
    server.on("getList").delay(300);
    openOption(*sheet, FlickrComposeItemPhotoSet);
    sheet->didSelectCancel();
    EXPECT_TRUE(sheet->isWaitingForAnswers());
    ASSERT_TRUE(waitFor([&] { return !sheet->isWaitingForAnswers(); }));
    const std::weak_ptr<FlickrComposeViewController> gone = sheet;
    sheet.reset();
    EXPECT_TRUE(gone.expired());
    QCoreApplication::processEvents();
}

TEST_F(Compose, WithoutAnAccountThereIsAnAlertAndNoPost) {
    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.account->identifier()));
    CredentialStore::remove(flickr.vimeoAccount->identifier(), SecretPlace::File);
    ASSERT_TRUE(openVimeo({})->settingsAlert()) << "an account without its credential is none";
    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.vimeoAccount->identifier()));
    const auto sheet = openFlickr({photo(jpegOfSize(5000))});
    ASSERT_TRUE(sheet->settingsAlert());
    EXPECT_EQ(sheet->settingsAlert()->title, QStringLiteral("No Flickr Account"));
    EXPECT_EQ(sheet->settingsAlert()->targetURL.absoluteString(), QStringLiteral("prefs:root=FLICKR"));
    sheet->userTapsPost();
    EXPECT_EQ(sheet->extensionContext()->state(), NSExtensionContext::State::Open);
    const auto video = openVimeo({});
    ASSERT_TRUE(video->settingsAlert());
    EXPECT_EQ(video->settingsAlert()->targetURL.absoluteString(), QStringLiteral("prefs:root=VIMEO"));
    EXPECT_EQ(servicePid(), 0);

    ACAccountStore store;
    const auto user = standin::StandIn::flickrCredential();
    ASSERT_TRUE(store.saveAccount(store.accountTypeWithAccountTypeIdentifier(ACAccountTypeIdentifierFlickr),
                                  QString::fromUtf8(user.username),
                                  {QString::fromUtf8(user.consumerKey), QString::fromUtf8(user.consumerSecret),
                                   QString::fromUtf8(user.token), QString::fromUtf8(user.tokenSecret)}));
    sheet->dismissSettingsAlert();
    sheet->appear();
    EXPECT_FALSE(sheet->settingsAlert());
    EXPECT_TRUE(post(*sheet));
}

TEST_F(Compose, StrangeRememberedChoicesAreReadAsTheyCanBe) {
    CFPreferencesSetAppValue(FlickrUploadPhotoSetTitle, 5, FlickrUploadDomain);
    CFPreferencesSetAppValue(FlickrUploadPhotoSetID, QStringLiteral("17x"), FlickrUploadDomain);
    CFPreferencesSetAppValue(FlickrUploadAudience, QVariantMap(), FlickrUploadDomain);
    const auto sheet = openFlickr({});
    EXPECT_EQ(value(*sheet, 0), QStringLiteral("No album"));
    EXPECT_EQ(value(*sheet, 1), QStringLiteral("Public"));
    CFPreferencesSetAppValue(FlickrUploadAudience, 7, FlickrUploadDomain);
    EXPECT_EQ(FlickrComposeViewController::initWithNibName()->postVisibility(), 7);
    FlickrComposeViewController::forgetUnknownAudience();
    EXPECT_EQ(value(*openFlickr({}), 1), QStringLiteral("Public"));
}

TEST_F(Compose, AVideoFromItsFirstTagToThePost) {
    const QByteArray bytes = variedBytes(3'000'000);
    const NSURL url = NSURL::fileURLWithPath(home.file("film.mp4", bytes));
    const auto sheet = openVimeo({{SLAttachmentTypeVideo, url, url}});
    EXPECT_FALSE(sheet->validateText({}));
    sheet->userTapsPost();
    EXPECT_EQ(sheet->extensionContext()->state(), NSExtensionContext::State::Open) << "a video needs a title";
    sheet->textView()->userReplacesText({0, 0}, QStringLiteral("Film"));

    UITableView &details = openOption(*sheet, 0);
    const auto tag = [&](qint64 row) { return details.cellForRowAtIndexPath({row, 1})->editableTextField(); };
    tag(0)->userReplacesCharacters({0, 0}, QStringLiteral("sea"));
    tag(0)->userPressesReturn();
    std::dynamic_pointer_cast<UITextField>(UIResponder::firstResponder())
        ->userReplacesCharacters({0, 0}, QStringLiteral("sun"));
    details.cellForRowAtIndexPath({0, 0})->textView()->userReplacesText({0, 0}, QStringLiteral("Am Meer"));
    details.userSelectsRow({1, 3});
    sheet->popConfigurationViewController();
    EXPECT_EQ(&openOption(*sheet, 0), &details) << "the same screen with what was entered";
    EXPECT_EQ(tag(1)->text(), QStringLiteral("sun"));
    sheet->popConfigurationViewController();
    EXPECT_FALSE(UIResponder::firstResponder());

    const auto keyboard = std::make_shared<UIKeyboard>([&] {
        sheet->textView()->userReplacesText({4, 0}, QStringLiteral(" am Abend"));
    });
    UIKeyboard::setActiveKeyboard(keyboard);
    ASSERT_TRUE(post(*sheet));
    ASSERT_TRUE(waitForState("done", 1)) << qPrintable(errorOf(0));
    const auto video = server.videos().at(0);
    EXPECT_EQ(video.sha256, sha256Of(bytes));
    EXPECT_EQ(video.title, QStringLiteral("Film am Abend")) << "with what was still being composed";
    EXPECT_EQ(video.description, QStringLiteral("Am Meer"));
    EXPECT_EQ(video.tags, (QStringList{QStringLiteral("sea"), QStringLiteral("sun")}));
    EXPECT_EQ(video.privacy, QStringLiteral("nobody"));

    const auto next = openVimeo({{SLAttachmentTypeVideo, url, url}});
    EXPECT_EQ(next->privacySettings(), VimeoPrivacyPublic) << "as long as the details are not opened";
    openOption(*next, 0);
    next->popConfigurationViewController();
    EXPECT_EQ(next->privacySettings(), VimeoPrivacyPrivate);
}

TEST_F(Compose, AVideoGivenAsDataArrivesWithTheRememberedSizeAndPublic) {
    const QString domain = QStringLiteral("com.zorvex.vimeo-upload");
    CFPreferencesSetAppValue(QStringLiteral("VideoSize"), qint64(VimeoVideoSizeSmall), domain);
    CFPreferencesSetAppValue(QStringLiteral("PrivacySetting"), qint64(VimeoPrivacyPrivate), domain);
    const QByteArray bytes = variedBytes(300'000);
    const NSURL source = NSURL::fileURLWithPath(home.file("film.mp4", bytes));
    const SLAttachment attachments[] = {{SLAttachmentTypeVideo, NSData(bytes), std::nullopt},
                                        {SLAttachmentTypeVideo, std::monostate(), source}};
    for (int i = 0; i < 2; ++i) {
        const auto sheet = openVimeo({attachments[i]});
        EXPECT_EQ(sheet->videoSize(), VimeoVideoSizeSmall);
        EXPECT_FALSE(sheet->postDescription());
        EXPECT_FALSE(sheet->tags());
        sheet->textView()->userReplacesText({0, 0}, QStringLiteral("Film"));
        ASSERT_TRUE(post(*sheet));
        ASSERT_TRUE(waitForState("done", i + 1)) << qPrintable(errorOf(i));
        const auto video = server.videos().at(size_t(i));
        EXPECT_EQ(video.sha256, sha256Of(bytes));
        EXPECT_EQ(video.privacy, QStringLiteral("anybody"));
        EXPECT_EQ(video.description, QString());
        EXPECT_EQ(video.tags, QStringList());
    }
    EXPECT_TRUE(logged("Got videoData with length 300000"));
    EXPECT_TRUE(logged("Loaded videoData with length 300000 from payloadSourceFileURL"));
}

TEST_F(Compose, ATitleHasAtMost128BytesAndIsNeverCut) {
    const auto sheet = openVimeo({});
    const auto &text = sheet->textView();
    EXPECT_FALSE(text->userReplacesText({0, 0}, QString(129, u'x')));
    EXPECT_TRUE(text->userReplacesText({0, 0}, QString(127, u'x')));
    EXPECT_FALSE(text->userReplacesText({127, 0}, QStringLiteral("ü")));
    EXPECT_TRUE(text->userReplacesText({127, 0}, QStringLiteral("x")));
    EXPECT_FALSE(text->userReplacesText({0, 0}, QStringLiteral("x")));
    EXPECT_TRUE(text->userReplacesText({0, 4}, QStringLiteral("𝄞")));
    EXPECT_FALSE(text->userReplacesText({0, 2}, QStringLiteral("e\u0301e\u0301")));
    EXPECT_TRUE(text->userReplacesText({0, 2}, QStringLiteral("e\u0301")));
    EXPECT_TRUE(text->userReplacesText({0, text->text().size()}, QStringLiteral(" ")));
    EXPECT_TRUE(sheet->validateText(text->text()));
}

TEST_F(Compose, OtherAttachmentsThanVideosAreHeldBackAndLostVideosAreNot) {
    const auto picture = openVimeo({photo(jpegOfSize(5000))});
    picture->textView()->userReplacesText({0, 0}, QStringLiteral("t"));
    picture->userTapsPost();
    EXPECT_EQ(picture->extensionContext()->state(), NSExtensionContext::State::Open);
    EXPECT_TRUE(logged("Cannot upload attachment of type NSData"));

    const NSURL missing = NSURL::fileURLWithPath(home.path("missing.mp4").toUtf8());
    const auto lost = openVimeo({{SLAttachmentTypeVideo, std::monostate(), missing}});
    lost->textView()->userReplacesText({0, 0}, QStringLiteral("t"));
    EXPECT_TRUE(post(*lost));
    EXPECT_TRUE(logged("Can't get attachment data for vimeo post. error "));
    ASSERT_TRUE(waitForState("failed", 1));
}
