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

using Flickr = FlickrComposeViewController;
using Vimeo = VimeoComposeViewController;

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
    static UITableView &openOption(SLComposeServiceViewController &sheet, size_t item) {
        sheet.shownConfigurationItems().at(item)->tapHandler()();
        return *std::dynamic_pointer_cast<UITableViewController>(sheet.configurationViewController())->tableView();
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

TEST_F(Compose, EachAudienceArrivesAndIsRememberedWithTheAlbum) {
    const std::pair<const char *, const char *> audiences[]{
        {"Public", "public"}, {"Friends", "friend"}, {"Family", "family"}, {"Only Me", ""}};
    EXPECT_EQ(value(*open<Flickr>({}), 0), QStringLiteral("No album"));
    EXPECT_EQ(value(*open<Flickr>({}), 1), QStringLiteral("Public"));
    for (qint64 row = 0; row < 4; ++row) {
        const auto &[shown, audience] = audiences[row];
        const auto sheet = open<Flickr>({photo(jpegOfSize(5000 + row))});
        sheet->textView()->userReplacesText({0, 0}, QStringLiteral("Abend\nam See"));
        openOption(*sheet, 1).userSelectsRow({row, 0});
        sheet->popConfigurationViewController();
        EXPECT_EQ(value(*sheet, 1), QLatin1String(shown));
        ASSERT_TRUE(post(*sheet));
        ASSERT_TRUE(waitForState("done", int(row) + 1));
        EXPECT_EQ(audienceOf(server.photos().back()), QLatin1String(audience));
        EXPECT_EQ(standin::valueOf(server.photos().back().parameters, "title"), "Abend\nam See");
        EXPECT_EQ(value(*open<Flickr>({}), 1), QLatin1String(shown)) << "remembered";
    }
    EXPECT_TRUE(logged("Got imageData with length 5000"));
    EXPECT_EQ(CFPreferencesCopyAppValue(FlickrUploadAudience, FlickrUploadDomain), QVariant(qint64(3)));

    const auto sheet = open<Flickr>({});
    openOption(*sheet, 0);
    const auto albums = std::dynamic_pointer_cast<FlickrPhotoSetController>(sheet->configurationViewController());
    ASSERT_TRUE(waitFor([&] { return albums->manager()->photoSets().has_value(); }));
    sheet->reloadConfigurationItems();
    EXPECT_EQ(value(*sheet, 0), QStringLiteral("(null)")) << "nothing has been chosen in the screen yet";
    albums->tableView()->userSelectsRow({2, 0});
    EXPECT_EQ(value(*sheet, 0), QStringLiteral("Family & friends"));
    EXPECT_EQ(value(*open<Flickr>({}), 0), QStringLiteral("Family & friends"));
}

TEST_F(Compose, ABatchLosesWhatHasNoDataAndKeepsWhatIsUnknown) {
    const QByteArray path = home.file("source.jpg", jpegOfSize(8000));
    const QByteArray picture = home.file("library/Pictures/a.png", dataBytes("16bit.png"));
    const auto sheet = open<Flickr>(
        {photo(jpegOfSize(5000)),
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
    const auto sheet = open<Flickr>({{SLAttachmentTypeData, std::monostate(), std::nullopt}});
    EXPECT_FALSE(post(*sheet)) << "all attachments were dropped";
    EXPECT_EQ(sheet->extensionContext()->state(), NSExtensionContext::State::Cancelled);
    EXPECT_TRUE(says(sheet->extensionContext()->error(), "nothing to share"));
    EXPECT_TRUE(logged("uploadPosts error "));
    const auto cancelled = open<Flickr>({});
    cancelled->didSelectCancel();
    EXPECT_EQ(cancelled->extensionContext()->error()->code(), 3072);
}

TEST_F(Compose, ASheetThatIsCancelledIsKeptUntilItsAlbumsAreThere) {
    auto sheet = open<Flickr>({});
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
    ASSERT_TRUE(open<Vimeo>({})->settingsAlert()) << "an account without its credential is none";
    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.vimeoAccount->identifier()));
    const auto sheet = open<Flickr>({photo(jpegOfSize(5000))});
    ASSERT_TRUE(sheet->settingsAlert());
    EXPECT_EQ(sheet->settingsAlert()->title, QStringLiteral("No Flickr Account"));
    EXPECT_EQ(sheet->settingsAlert()->targetURL.absoluteString(), QStringLiteral("prefs:root=FLICKR"));
    EXPECT_FALSE(post(*sheet));
    EXPECT_EQ(open<Vimeo>({})->settingsAlert()->targetURL.absoluteString(), QStringLiteral("prefs:root=VIMEO"));
    EXPECT_EQ(servicePid(), 0);
}

TEST_F(Compose, StrangeRememberedChoicesAreReadAsTheyCanBe) {
    CFPreferencesSetAppValue(FlickrUploadPhotoSetTitle, 5, FlickrUploadDomain);
    CFPreferencesSetAppValue(FlickrUploadPhotoSetID, QStringLiteral("17x"), FlickrUploadDomain);
    CFPreferencesSetAppValue(FlickrUploadAudience, QVariantMap(), FlickrUploadDomain);
    const auto sheet = open<Flickr>({});
    EXPECT_EQ(value(*sheet, 0), QStringLiteral("No album"));
    EXPECT_EQ(value(*sheet, 1), QStringLiteral("Public"));
    CFPreferencesSetAppValue(FlickrUploadAudience, 7, FlickrUploadDomain);
    EXPECT_EQ(FlickrComposeViewController::initWithNibName()->postVisibility(), 7);
    FlickrComposeViewController::forgetUnknownAudience();
    EXPECT_EQ(value(*open<Flickr>({}), 1), QStringLiteral("Public"));
}

TEST_F(Compose, DetailsOfAVideoStayWithItsSheetAndTheirChoicesWithTheNext) {
    const NSURL url = NSURL::fileURLWithPath(home.file("film.mp4", variedBytes(3'000)));
    const auto sheet = open<Vimeo>({{SLAttachmentTypeVideo, url, url}});
    EXPECT_FALSE(post(*sheet)) << "a video needs a title";
    UITableView &details = openOption(*sheet, 0);
    details.cellForRowAtIndexPath({0, 0})->textView()->userReplacesText({0, 0}, QStringLiteral("Am Meer"));
    details.userSelectsRow({1, 3});
    sheet->popConfigurationViewController();
    EXPECT_EQ(&openOption(*sheet, 0), &details) << "the same screen with what was entered";
    EXPECT_EQ(sheet->postDescription(), QStringLiteral("Am Meer"));

    const auto next = open<Vimeo>({{SLAttachmentTypeVideo, url, url}});
    EXPECT_EQ(next->privacySettings(), VimeoPrivacyPublic) << "as long as the details are not opened";
    openOption(*next, 0);
    next->popConfigurationViewController();
    EXPECT_EQ(next->privacySettings(), VimeoPrivacyPrivate);
    EXPECT_EQ(next->postDescription(), QString()) << "shown and left empty";
}

TEST_F(Compose, AVideoArrivesWithTheRememberedSizeAndPublic) {
    const QString domain = QStringLiteral("com.zorvex.vimeo-upload");
    CFPreferencesSetAppValue(QStringLiteral("VideoSize"), qint64(VimeoVideoSizeSmall), domain);
    CFPreferencesSetAppValue(QStringLiteral("PrivacySetting"), qint64(VimeoPrivacyPrivate), domain);
    const QByteArray bytes = variedBytes(300'000);
    const NSURL source = NSURL::fileURLWithPath(home.file("film.mp4", bytes));
    const SLAttachment attachments[] = {{SLAttachmentTypeVideo, NSData(bytes), std::nullopt},
                                        {SLAttachmentTypeVideo, std::monostate(), source},
                                        {SLAttachmentTypeVideo, source, source}};
    for (int i = 0; i < 3; ++i) {
        const auto sheet = open<Vimeo>({attachments[i]});
        EXPECT_EQ(sheet->videoSize(), VimeoVideoSizeSmall);
        sheet->textView()->userReplacesText({0, 0}, QStringLiteral("Film"));
        const auto keyboard = std::make_shared<UIKeyboard>([&] {
            sheet->textView()->userReplacesText({4, 0}, QStringLiteral(" am Abend"));
        });
        UIKeyboard::setActiveKeyboard(keyboard);
        ASSERT_TRUE(post(*sheet));
        ASSERT_TRUE(waitForState("done", i + 1)) << qPrintable(errorOf(i));
        const auto video = server.videos().at(size_t(i));
        EXPECT_EQ(video.sha256, sha256Of(bytes));
        EXPECT_EQ(video.title, QStringLiteral("Film am Abend")) << "with what was still being composed";
        EXPECT_EQ(video.privacy, QStringLiteral("anybody"));
        EXPECT_EQ(video.description, QString());
        EXPECT_EQ(video.tags, QStringList());
    }
    EXPECT_TRUE(logged("Got videoData with length 300000"));
    EXPECT_TRUE(logged("Loaded videoData with length 300000 from payloadSourceFileURL"));
}

TEST_F(Compose, OtherAttachmentsThanVideosAreHeldBackAndLostVideosAreNot) {
    const auto picture = open<Vimeo>({photo(jpegOfSize(5000))});
    picture->textView()->userReplacesText({0, 0}, QStringLiteral("t"));
    picture->userTapsPost();
    EXPECT_EQ(picture->extensionContext()->state(), NSExtensionContext::State::Open);
    EXPECT_TRUE(logged("Cannot upload attachment of type NSData"));

    const NSURL missing = NSURL::fileURLWithPath(home.path("missing.mp4").toUtf8());
    const auto lost = open<Vimeo>({{SLAttachmentTypeVideo, std::monostate(), missing}});
    lost->textView()->userReplacesText({0, 0}, QStringLiteral("t"));
    EXPECT_TRUE(post(*lost));
    EXPECT_TRUE(logged("Can't get attachment data for vimeo post. error "));
    ASSERT_TRUE(waitForState("failed", 1));
}
