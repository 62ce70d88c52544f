// Shares that something stands in the way of.
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
    ASSERT_TRUE(waitFor([&] { return !sheet().failure().isEmpty(); }));
    EXPECT_TRUE(user->reads(QStringLiteral("Nothing was shared.")));
    EXPECT_EQ(sheet().text(), QStringLiteral("Am Meer"));
    EXPECT_FALSE(status);
    home.setEnvironment("KORVANE_FLICKR_URL", server.url().toUtf8());
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 0);
    ASSERT_TRUE(waitForState("done", 1));
    EXPECT_EQ(titleOf(0), "Am Meer");

    home.setEnvironment("KORVANE_FLICKR_URL", other.url().toUtf8());
    open({"flickr", photo("sea.jpg")});
    ASSERT_TRUE(waitUntilPostable());
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitFor([&] { return !sheet().failure().isEmpty(); }));
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
    open({"flickr", photo("sea.jpg")});
    ASSERT_TRUE(waitUntilPostable());
    QObject::connect(&sheet(), &SheetModel::isHandingOverChanged, [&] {
        if (!sheet().isHandingOver()) return;
        for (const int key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Back})
            user->presses(key, key == Qt::Key_Return ? Qt::ControlModifier : Qt::NoModifier);
        sheet().post();
        application->window()->close();
    });
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 0);
    ASSERT_TRUE(waitForState("done", 1));
    EXPECT_EQ(server.photos().size(), 1u);
}

TEST_F(ShareWindow, WithoutAnAccountTheSettingsAreOffered) {
    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.account->identifier()));
    open({"flickr", photo("sea.jpg")});
    EXPECT_TRUE(user->find(QStringLiteral("No Flickr Account")));
    EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Settings"));
    user->presses(Qt::Key_Tab);
    EXPECT_EQ(user->nameOfFocused(), QStringLiteral("Not now")) << "nothing else is reached";
    leaveForSettings();
    EXPECT_FALSE(user->sees(QStringLiteral("No Flickr Account")));
    user->clicks(QStringLiteral("Close"));
    EXPECT_TRUE(user->find(QStringLiteral("No Flickr Account"))) << "the settings were left as they were";
    user->clicks(QStringLiteral("Not now"));
    user->types(QStringLiteral("t"));
    ASSERT_TRUE(waitUntilPostable());
    user->presses(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(user->find(QStringLiteral("No Flickr Account"))) << "asked for again";
    EXPECT_EQ(servicePid(), 0);
    user->presses(Qt::Key_Escape);
    EXPECT_FALSE(sheet().hasAlert());
    user->clicks(QStringLiteral("Cancel"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 3);

    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.vimeoAccount->identifier()));
    open({"vimeo", film().toUtf8()});
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
    open({"flickr", photo("sea.jpg")});
    EXPECT_TRUE(user->find(QStringLiteral("No Flickr Account")));
    leaveForSettings();
    ASSERT_TRUE(store.saveAccount(flickr.account->accountType(), QStringLiteral("standin"), *credential));
    user->swipes({8, 300}, {220, 310});
    user->waitsUntilStill();
    user->clicks(QStringLiteral("Album, No album"));
    user->clicks(QStringLiteral("Family & friends"));
    user->clicks(QStringLiteral("Back"));
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 0);
    ASSERT_TRUE(waitForState("done", 1)) << qPrintable(errorOf(0));
    EXPECT_EQ(server.albums().at(1).photos.size(), 1u) << "the albums are those of the new account";

    const auto videoCredential = flickr.vimeoAccount->credential();
    ASSERT_TRUE(store.removeAccount(flickr.vimeoAccount->identifier()));
    open({"vimeo", film().toUtf8()});
    EXPECT_TRUE(user->find(QStringLiteral("No Vimeo Account")));
    leaveForSettings();
    ASSERT_TRUE(store.saveAccount(flickr.vimeoAccount->accountType(), QStringLiteral("standin"), *videoCredential));
    user->presses(Qt::Key_Left, Qt::AltModifier);
    user->waitsUntilStill();
    EXPECT_FALSE(sheet().hasAlert());
    user->types(QStringLiteral("Film"));
    ASSERT_TRUE(waitUntilPostable());
    user->clicks(QStringLiteral("Post"));
    ASSERT_TRUE(waitForEnd());
    ASSERT_TRUE(waitForState("done", 2)) << qPrintable(errorOf(0));
    EXPECT_EQ(server.videos().at(0).title, QStringLiteral("Film"));
}

TEST_F(ShareWindow, FilesThatCannotBeUsedAreNamedAndLeftOutOnRequest) {
    open({"flickr", photo("sea.jpg"), home.file("notes.txt", "words"), home.path("gone.jpg").toUtf8(),
          "sftp://far/away.jpg", home.path().toUtf8()});
    ASSERT_TRUE(waitFor([&] { return !sheet().attachments()->isPreparing(); }));
    EXPECT_FALSE(sheet().canPost());
    EXPECT_EQ(sheet().attachments()->problems().split(u'\n').size(), 4)
        << qPrintable(sheet().attachments()->problems());
    EXPECT_TRUE(user->reads(QStringLiteral("notes.txt: the file is not a picture")));
    EXPECT_TRUE(user->reads(QStringLiteral("gone.jpg: there is no such file")));
    user->taps(QStringLiteral("Leave them out"));
    EXPECT_TRUE(sheet().canPost());
    EXPECT_EQ(sheet().attachments()->count(), 1);
    close();

    QByteArrayList gone{"flickr"};
    for (int i = 0; i < 500; ++i)
        gone.append(home.path(QStringLiteral("gone%1.jpg").arg(i)).toUtf8());
    open(gone);
    ASSERT_TRUE(waitFor([&] { return !sheet().attachments()->isPreparing(); }));
    const QStringList lines = sheet().attachments()->problems().split(u'\n');
    EXPECT_EQ(lines.size(), 6);
    EXPECT_EQ(lines.last(), QStringLiteral("and 495 more files"));
    close();

    const QString first = film();
    open({"vimeo", first.toUtf8(), first.toUtf8()});
    ASSERT_TRUE(waitFor([&] { return !sheet().attachments()->isPreparing(); }));
    EXPECT_TRUE(user->reads(QStringLiteral("only one video at a time")));
    close();

    open({"vimeo", photo("sea.jpg")});
    ASSERT_TRUE(waitFor([&] { return !sheet().attachments()->isPreparing(); }));
    user->presses(Qt::Key_Escape);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(*status, 2);
}
