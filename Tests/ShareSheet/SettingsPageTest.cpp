// The settings page, driven by mouse, touch and keys; sign-ins against the stand-in with a person at a scripted
// browser.
#include "Platform/Preferences/KorvaneSettings.h"
#include "Tests/ShareSheet/SheetHarness.h"
#include "Tests/Support/ScriptedBrowser.h"

using namespace korvane;
using namespace korvane::test;

namespace {

class SettingsPage : public SheetTest {
protected:
    void openPage(const char *argument = "prefs:root=FLICKR") {
        open({argument});
        for (SignInModel *signIn : {page().flickr()->signIn(), page().vimeo()->signIn()})
            signIn->setOpener([this](const QString &address) {
                opened = address;
                return browserWorks;
            });
        ASSERT_TRUE(waitFor([&] { return !page().flickr()->keys()->isBusy() && !page().vimeo()->keys()->isBusy(); }));
    }
    Settings &page() const { return *application->settings(); }
    ServiceAccess &flickrAccess() const { return *page().flickr(); }

    // Gives it the keyboard, which brings it into sight.
    bool goTo(const char *name) {
        QStringList stops;
        for (int i = 0; i < 80; ++i) {
            if (user->nameOfFocused() == text(name)) return true;
            stops.append(user->nameOfFocused());
            user->presses(Qt::Key_Tab);
        }
        ADD_FAILURE() << "the keyboard comes to " << qPrintable(stops.join(u'|')) << ", not to " << name;
        return false;
    }
    void fillIn(const char *field, const QString &value) {
        ASSERT_TRUE(goTo(field));
        user->presses(Qt::Key_A, Qt::ControlModifier);
        user->types(value);
    }
    void storeKeys(const QString &key, const QString &secret) {
        fillIn("Flickr: Consumer key", key);
        fillIn("Flickr: Consumer secret", secret);
        user->presses(Qt::Key_Return);
    }
    // Another program does.
    void storeKeys(const std::shared_ptr<ACAccount> &account, const standin::Credential &known) {
        ASSERT_TRUE(ApplicationKeys({QString::fromUtf8(known.consumerKey), QString::fromUtf8(known.consumerSecret)})
                        .store(account->accountType()));
    }
    void storeFlickrKeys() { storeKeys(flickr.account, standin::StandIn::flickrCredential()); }
    QString accountInUse() const { return ACAccountStore().accountInUse(ACAccountTypeIdentifierFlickr)->username(); }
    QByteArray preferences() const { return home.contents("config/korvane/preferences/com.zorvex.korvane.json"); }

    QString opened; // in the browser
    bool browserWorks = true;
};

} // namespace

TEST_F(SettingsPage, WritesWhatIsChosenAtOnceAndShowsWhatOthersHaveWritten) {
    home.file("config/korvane/preferences/com.zorvex.korvane.json", R"({"FlickrParallelUploads": 5, "Other": "kept"})");
    openPage("--settings");
    EXPECT_EQ(page().flickrParallelUploads(), 5);
    ASSERT_TRUE(goTo("5")) << "not among the usual numbers, and yet shown";
    EXPECT_TRUE(user->isChecked(text("5")));
    user->taps(text("8"));
    ASSERT_TRUE(goTo("Upload over the cellular network"));
    EXPECT_TRUE(user->isChecked(text("Upload over the cellular network")));
    user->presses(Qt::Key_Space);
    ASSERT_TRUE(goTo("2,048 pixels"));
    user->presses(Qt::Key_Return);
    EXPECT_FALSE(KorvaneSettings::uploadsOverCellular());
    EXPECT_EQ(KorvaneSettings::displayImageMaxPixels(), 2048);
    EXPECT_EQ(KorvaneSettings::flickrParallelUploads(), 8);
    EXPECT_TRUE(preferences().contains("kept"));
    EXPECT_TRUE(user->isChecked(text("2,048 pixels")));
    home.file("config/korvane/preferences/other.json", R"({"FlickrParallelUploads": 7})");
    ASSERT_TRUE(QFile::remove(home.path("config/korvane/preferences/com.zorvex.korvane.json")) &&
                QFile::rename(home.path("config/korvane/preferences/other.json"),
                              home.path("config/korvane/preferences/com.zorvex.korvane.json")));
    ASSERT_TRUE(waitFor([&] { return user->sees(text("7")) && user->isChecked(text("7")); })) << "set by others";
    user->presses(Qt::Key_Escape);
    EXPECT_TRUE(waitForEnd());
}

TEST_F(SettingsPage, PutsAccountsIntoUseAndAsksBeforeItRemovesThem) {
    ACAccountStore store;
    ASSERT_TRUE(store.saveAccount(flickr.account->accountType(), text("eva"), *flickr.account->credential()));
    openPage();
    EXPECT_TRUE(user->isChecked(text("Flickr account “eva”"))) << "the one that was added last";
    user->taps(text("Flickr account “standin”"));
    ASSERT_TRUE(waitFor([&] { return user->isChecked(text("Flickr account “standin”")); }));
    EXPECT_EQ(accountInUse(), text("standin"));

    user->clicks(text("Remove the Flickr account “eva”"));
    ASSERT_TRUE(waitToRead("Remove the Flickr account “eva”?"));
    user->presses(Qt::Key_Escape);
    ASSERT_TRUE(waitFor([&] { return !user->reads(text("“eva”?")); }));
    user->clicks(text("Remove the Flickr account “eva”"));
    ASSERT_TRUE(waitToRead("“eva”?"));
    user->presses(Qt::Key_Tab);
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return flickrAccess().accounts()->rowCount() == 1; }));
    EXPECT_EQ(store.accountsWithAccountType(flickr.account->accountType()).size(), 1U);

    ASSERT_TRUE(store.saveAccount(flickr.account->accountType(), text("zoe"), *flickr.account->credential()));
    EXPECT_TRUE(waitFor([&] { return user->sees(text("Flickr account “zoe”")); })) << "added by another program";
    home.file("config/korvane/accounts.json", R"({"accounts": 7})");
    EXPECT_TRUE(waitToRead("accounts.json.damaged. Sign in again"));
    QFile::remove(home.path("config/korvane/accounts.json.damaged"));
    flickrAccess().accounts()->reload();
    flickrAccess().accounts()->use(text("nobody"));
    EXPECT_TRUE(waitToRead("There is no account \"nobody\""));
    ASSERT_TRUE(waitToRead("There is no account yet"));
    QDir().mkpath(home.path("config/korvane/accounts.json"));
    ASSERT_TRUE(waitFor([&] { return page().vimeo()->accounts()->problem().contains(text("accounts.json")); }));
    EXPECT_TRUE(waitToReadNoMore("There is no account yet")) << "nobody can tell";
    QDir().rmdir(home.path("config/korvane/accounts.json"));
    EXPECT_TRUE(waitToRead("There is no account yet"));
}

TEST_F(SettingsPage, FollowsTheKeysThatOthersStoreAndAsksBeforeItRemovesThem) {
    openPage();
    EXPECT_FALSE(user->isEnabled(text("Flickr: Add an account…")));
    storeFlickrKeys();
    ASSERT_TRUE(waitToRead("The consumer secret is stored."));
    EXPECT_TRUE(user->isEnabled(text("Flickr: Add an account…")));
    EXPECT_TRUE(user->reads(text("in a file that only you can read"))) << "and not in a keyring";

    ASSERT_TRUE(goTo("Flickr: Remove the keys"));
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitToRead("Remove the keys of your application at Flickr?"));
    EXPECT_EQ(user->nameOfFocused(), text("Keep")) << "the harmless answer is the one at hand";
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitToReadNoMore("Remove the keys of"));
    EXPECT_TRUE(ApplicationKeys::stored(flickr.account->accountType())) << "it was only asked";
    EXPECT_EQ(user->nameOfFocused(), text("Flickr: Remove the keys"));
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitToRead("Remove the keys of"));
    user->clicks(text("Remove"));
    ASSERT_TRUE(waitFor([&] { return !flickrAccess().keys()->areStored(); }));
    EXPECT_FALSE(ApplicationKeys::stored(flickr.account->accountType()));
    EXPECT_FALSE(user->isEnabled(text("Flickr: Add an account…")));
}

TEST_F(SettingsPage, SignsInAtVimeo) {
    storeKeys(flickr.vimeoAccount, standin::StandIn::vimeoCredential());
    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.vimeoAccount->identifier()));
    openPage("prefs:root=VIMEO");
    user->taps(text("Vimeo: Add an account…"));
    ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
    EXPECT_EQ(decideAndReturn(opened, "allow").status, 200);
    ASSERT_TRUE(waitToRead("is ready"));
    EXPECT_TRUE(waitFor([&] { return page().vimeo()->accounts()->rowCount() == 1; }));
    EXPECT_EQ(ACAccountStore().accountInUse(ACAccountTypeIdentifierVimeo)->username(),
              QString::fromUtf8(standin::StandIn::vimeoCredential().username));
}

TEST_F(SettingsPage, SignsInThroughTheBrowserOnceTheKeysAreThere) {
    const auto known = standin::StandIn::flickrCredential();
    openPage();
    EXPECT_FALSE(user->isEnabled(text("Flickr: Add an account…"))) << "there are no keys to sign in with";
    storeKeys(text("only half"), {});
    EXPECT_TRUE(waitFor([&] { return !flickrAccess().keys()->problem().isEmpty(); }));
    storeKeys(QString::fromUtf8("  " + known.consumerKey + " "), QString::fromUtf8(known.consumerSecret));
    ASSERT_TRUE(waitFor([&] { return flickrAccess().keys()->areStored(); }));
    EXPECT_FALSE(user->reads(QString::fromUtf8(known.consumerSecret)));
    EXPECT_EQ(ApplicationKeys::stored(flickr.account->accountType())->consumerKey,
              QString::fromUtf8(known.consumerKey));

    ASSERT_TRUE(ACAccountStore().removeAccount(flickr.account->identifier()));
    ASSERT_TRUE(goTo("Flickr: Add an account…"));
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
    EXPECT_EQ(flickrAccess().signIn()->step(), SignInModel::Step::Person);
    EXPECT_TRUE(user->reads(opened)) << "for a browser that does not open by itself";
    EXPECT_EQ(decideAndReturn(opened, "allow").status, 200);
    ASSERT_TRUE(waitToRead("“standin” is ready"));
    EXPECT_EQ(accountInUse(), text("standin"));
    EXPECT_TRUE(waitFor([&] { return flickrAccess().accounts()->rowCount() == 1; }));
}

TEST_F(SettingsPage, SignsInWithATypedCodeAndSaysWhatWentWrong) {
    storeFlickrKeys();
    browserWorks = false;
    openPage();
    ASSERT_TRUE(goTo("Flickr: Add with a code…"));
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitToRead("The browser did not open"));
    const QString code = decide(opened, "allow").code();
    fillIn("Code", text("wrong"));
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] {
        return flickrAccess().signIn()->step() == SignInModel::Step::Person &&
               !flickrAccess().signIn()->problem().isEmpty();
    }));
    fillIn("Code", code);
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitToRead("is ready"));

    opened.clear();
    browserWorks = true;
    ASSERT_TRUE(goTo("Flickr: Add an account…"));
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
    decideAndReturn(opened, "refuse");
    ASSERT_TRUE(waitFor([&] { return !flickrAccess().signIn()->problem().isEmpty(); })) << "it was refused";
    EXPECT_EQ(flickrAccess().signIn()->step(), SignInModel::Step::None);

    ASSERT_TRUE(goTo("Flickr: Add an account…"));
    user->presses(Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return flickrAccess().signIn()->step() == SignInModel::Step::Person; }));
    ASSERT_TRUE(goTo("Cancel the sign-in"));
    user->presses(Qt::Key_Space);
    EXPECT_EQ(flickrAccess().signIn()->step(), SignInModel::Step::None);
    EXPECT_TRUE(flickrAccess().signIn()->problem().isEmpty()) << "who gives up knows it";
    ASSERT_TRUE(goTo("Flickr: Add an account…"));
    user->presses(Qt::Key_Return);
    close(); // in the middle of it
}

TEST_F(SettingsPage, ShowsTheServiceFirstThatItWasOpenedFor) {
    for (const auto &[argument, first] :
         {std::pair{"prefs:root=VIMEO", "Vimeo accounts"}, {"prefs:root=FLICKR", "Flickr accounts"}}) {
        openPage(argument);
        const double top = user->find(text("Flickr accounts")) && user->find(text("Vimeo accounts"))
                               ? user->find(text(first))->mapToScene({}).y()
                               : 1e9;
        EXPECT_LT(top, 150) << argument;
        close();
    }
}
