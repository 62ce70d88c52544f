// Shares that something stands in the way of.
#include "Korvane/FlickrComposeViewController.h"
#include "Platform/Preferences/CFPreferences.h"
#include "Tests/ShareSheet/ShareWindow.h"

using namespace korvane;
using namespace korvane::test;

TEST_F(ShareWindow, ARefusedHandOverKeepsWhatWasEnteredForAnotherTry) {
    startService();
    standin::StandIn other;
    ASSERT_TRUE(other.start());
    home.setEnvironment("KORVANE_FLICKR_URL", other.url().toUtf8());
    open({"flickr", photo("sea.jpg")});
    user->types(QStringLiteral("Am Meer"));
    ASSERT_TRUE(waitUntilPostable());
    application->window()->setMinimumSize({});
    application->window()->resize(360, 200);
    for (int i = 0; i < 2; ++i)
        user->presses(Qt::Key_Tab);
    EXPECT_FALSE(user->sees(QStringLiteral("sea.jpg"))) << "it is scrolled";
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitToRead("Nothing was shared."));
    home.setEnvironment("KORVANE_FLICKR_URL", server.url().toUtf8());
    postUntilDone();
    EXPECT_EQ(titleOf(0), "Am Meer");

    home.setEnvironment("KORVANE_FLICKR_URL", other.url().toUtf8());
    openFully({"flickr", photo("sea.jpg")});
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitToRead("Nothing was shared."));
    user->presses(Qt::Key_Escape);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 4) << "why it was given up";
}

TEST_F(ShareWindow, APhotoThatChangesBeforePostIsNamedAndLookedAtAgain) {
    const QByteArray path = photo("sea.jpg");
    open({"flickr", path});
    ASSERT_TRUE(waitUntilPostable());
    photo("sea.jpg", 2);
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitFor([&] { return !sheet().failure().isEmpty(); }));
    EXPECT_TRUE(user->reads(QStringLiteral("sea.jpg: the file has changed since it was chosen")));
    ASSERT_TRUE(waitUntilPostable());
    home.file("sea.jpg", "words");
    user->clicks(QStringLiteral("Post"));
    EXPECT_TRUE(waitToRead("sea.jpg: the file is not a picture"));
    EXPECT_FALSE(sheet().canPost());
    user->presses(Qt::Key_Escape);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 2);
}

TEST_F(ShareWindow, WhatIsDoneDuringTheHandOverChangesNothing) {
    openFully({"flickr", photo("sea.jpg")});
    QObject::connect(&sheet(), &SheetModel::isHandingOverChanged, [&] {
        if (!sheet().isHandingOver()) return;
        for (const int key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Back})
            user->presses(key, key == Qt::Key_Return ? Qt::ControlModifier : Qt::NoModifier);
        sheet().post();
        application->window()->close();
    });
    postUntilDone();
    EXPECT_EQ(server.photos().size(), 1u);
}

TEST_F(ShareWindow, WithoutAnAccountTheSettingsAreOffered) {
    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.account->identifier()));
    open({"flickr", photo("sea.jpg")});
    leaveForSettings();
    user->clicks(QStringLiteral("Close"));
    EXPECT_TRUE(user->find(QStringLiteral("No Flickr Account"))) << "the settings were left as they were";
    user->clicks(QStringLiteral("Not now"));
    user->types(QStringLiteral("t"));
    ASSERT_TRUE(waitUntilPostable());
    user->presses(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(user->find(QStringLiteral("No Flickr Account"))) << "asked for again";
    EXPECT_EQ(servicePid(), 0);
    user->presses(Qt::Key_Escape);
    user->clicks(QStringLiteral("Cancel"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 3);

    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.vimeoAccount->identifier()));
    open({"vimeo", makeFilm(home, "film.mp4").toUtf8()});
    user->clicks(QStringLiteral("Not now"));
    user->types(QStringLiteral("Film"));
    ASSERT_TRUE(waitUntilPostable());
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 0) << "here the upload service waits for the account";
    EXPECT_TRUE(waitForState("waiting", 1));
}

TEST_F(ShareWindow, AnAccountThatIsAddedInTheSettingsIsUsed) {
    ACAccountStore store;
    const auto credential = flickr.account->credential();
    ASSERT_TRUE(store.removeAccount(flickr.account->identifier()));
    openFully({"flickr", photo("sea.jpg")});
    user->clicks(text("Not now"));
    user->clicks(text("Album, No album"));
    EXPECT_TRUE(waitToRead("could not be loaded"));
    user->clicks(text("Back"));
    user->clicks(text("Post"));
    leaveForSettings();
    ASSERT_TRUE(store.saveAccount(flickr.account->accountType(), text("standin"), *credential));
    user->swipes({8, 300}, {220, 310});
    user->waitsUntilStill();
    choose("Album, No album", "Family & friends");

    ASSERT_TRUE(store.saveAccount(flickr.account->accountType(), text("eva"), *credential));
    user->clicks(text("Post"));
    EXPECT_TRUE(waitToRead("Another account is in use now."));
    choose("Album, No album", "Holidays");
    postUntilDone();
    EXPECT_EQ(server.albums().at(0).photos.size(), 1u) << "the albums are those of the new account";
    EXPECT_TRUE(server.albums().at(1).photos.empty());

    const auto videoCredential = flickr.vimeoAccount->credential();
    ASSERT_TRUE(store.removeAccount(flickr.vimeoAccount->identifier()));
    open({"vimeo", makeFilm(home, "film.mp4").toUtf8()});
    leaveForSettings();
    ASSERT_TRUE(store.saveAccount(flickr.vimeoAccount->accountType(), QStringLiteral("standin"), *videoCredential));
    user->presses(Qt::Key_Left, Qt::AltModifier);
    user->waitsUntilStill();
    user->types(text("Film"));
    ASSERT_TRUE(waitUntilPostable());
    postUntilDone(2);
}

TEST_F(ShareWindow, AlbumsThatCannotBeLoadedSayWhyAndAreLoadedOnRequest) {
    CFPreferencesSetAppValue(FlickrUploadPhotoSetTitle, text("Holidays"), FlickrUploadDomain);
    CFPreferencesSetAppValue(FlickrUploadPhotoSetID, server.albums().at(0).id, FlickrUploadDomain);
    CFPreferencesAppSynchronize(FlickrUploadDomain);
    server.on("getList").answer(200, "text/xml", R"(<rsp stat="fail"><err msg="Invalid auth"/></rsp>)").delay(1500);
    open({"flickr", photo("sea.jpg")});
    user->clicks(text("Album, Holidays"));
    EXPECT_TRUE(waitToRead("could not be loaded. Flickr says: Invalid auth"));
    EXPECT_EQ(user->nameOfFocused(), text("No album"));
    user->presses(Qt::Key_Tab);
    EXPECT_EQ(user->nameOfFocused(), text("Try again"));
    user->presses(Qt::Key_Return);
    EXPECT_TRUE(waitToRead("Loading…"));
    EXPECT_TRUE(user->find(text("Holidays")));
    EXPECT_EQ(user->nameOfFocused(), text("No album"));
    user->clicks(text("Back"));
    postUntilDone();
    EXPECT_EQ(server.albums().at(0).photos.size(), 1u) << "the album that was chosen before";
}

TEST_F(ShareWindow, LongAndTwistedNamesStayWithinTheirRowsAndAsTheyAre) {
    const QString name = QStringLiteral("one \u202Eowt ") + QString(600, u'x');
    const QByteArray list =
        R"(<rsp stat="ok"><photosets><photoset id="7"><title>%1</title></photoset></photosets></rsp>)";
    server.on("getList").answer(200, "text/xml", QByteArray(list).replace("%1", name.toUtf8()));
    ASSERT_TRUE(ACAccountStore().saveAccount(flickr.account->accountType(), name, *flickr.account->credential()));
    const auto isLow = [&](const QString &shown) {
        ASSERT_TRUE(waitFor([&] { return user->sees(shown); }));
        EXPECT_LT(user->find(shown)->height(), 100) << qPrintable(shown);
    };
    const QString shown = QString(name).replace(QChar(0x202E), QChar(0xFFFD));
    open({"flickr", photo("sea.jpg")});
    user->clicks(text("Album, No album"));
    isLow(shown);
    user->clicks(shown);
    user->clicks(text("Back"));
    isLow(text("Album, ") + shown);
    EXPECT_EQ(CFPreferencesCopyAppValue(FlickrUploadPhotoSetTitle, FlickrUploadDomain), name);
    open({"--settings"});
    isLow(text("Flickr account “%1”").arg(shown.left(99) + u'…'));
}

TEST_F(ShareWindow, FilesThatCannotBeUsedAreNamedAndLeftOutOnRequest) {
    openFully({"flickr", photo("sea.jpg"), home.file("notes.txt", "words"), home.path("gone.jpg").toUtf8(),
               "sftp://far/away.jpg", home.path().toUtf8()});
    EXPECT_FALSE(sheet().canPost());
    EXPECT_EQ(sheet().attachments()->problems().count(u'\n'), 3) << qPrintable(sheet().attachments()->problems());
    EXPECT_TRUE(user->reads(QStringLiteral("notes.txt: the file is not a picture")));
    EXPECT_TRUE(user->reads(QStringLiteral("gone.jpg: there is no such file")));
    user->taps(QStringLiteral("Leave them out"));
    EXPECT_TRUE(sheet().canPost());

    QByteArrayList gone{"flickr"};
    for (int i = 0; i < 500; ++i)
        gone.append(home.path(QStringLiteral("gone%1.jpg").arg(i)).toUtf8());
    openFully(gone);
    const QStringList lines = sheet().attachments()->problems().split(u'\n');
    EXPECT_EQ(lines.size(), 6);
    EXPECT_EQ(lines.last(), QStringLiteral("and 495 more files"));

    const QString first = makeFilm(home, "film.mp4");
    openFully({"vimeo", first.toUtf8(), first.toUtf8()});
    EXPECT_TRUE(user->reads(QStringLiteral("only one video at a time")));
    EXPECT_TRUE(user->reads(text("1 video")));

    openFully({"vimeo", photo("sea.jpg")});
    user->presses(Qt::Key_Escape);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 2);
}
