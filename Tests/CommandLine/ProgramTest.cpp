// The program korvane as it is run: what it refuses, what it says, and its exit status.
#include "Tests/CommandLine/ProgramRun.h"

#include <QJsonDocument>

using namespace korvane::test;

namespace {

// On a home folder of its own and without a bus.
class KorvaneProgram : public ::testing::Test {
protected:
    KorvaneProgram() { home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus"); }

    static QByteArray credentials(const QByteArray &name) {
        return R"({"username":")" + name +
               R"(","consumerKey":"key","consumerSecret":"hush1","token":"token","tokenSecret":"hush2"})";
    }
    static Ending addAccount(const QByteArray &input) {
        return run({"accounts", "add", "flickr", "--credential-file", "-"}, input);
    }

    TemporaryHome home;
    const QByteArray photo = home.file("good.jpg", jpegOfSize(2000));
};

} // namespace

TEST_F(KorvaneProgram, BadUsageIsStatusTwoAndSaysWhat) {
    const std::pair<QByteArrayList, const char *> cases[] = {
        {{}, "subcommand"},
        {{"dance"}, "dance"},
        {{"share", "flickr"}, "FILE"},
        {{"share", "flickr", "-x"}, "no option \"-x\""},
        {{"share", "flickr", "--title=", "missing.jpg"}, "missing.jpg: No such file"},
        {{"share", "vimeo", photo}, "--title"},
        {{"share", "vimeo", "--title", QByteArray(129, 'x'), photo}, "129 bytes"},
        {{"share", "vimeo", "--title", "a", photo}, "picture"},
        {{"share", "vimeo", "--title", "a", "--tag", "sea", "--tag", " ", photo}, "a tag must not be empty"},
        {{"share", "flickr", photo, "--audience", "everybody"}, "everybody"},
        {{"share", "flickr", photo, "--album", "Summer", "--no-album"}, "no-album"},
        {{"share", "flickr", photo, "--album="}, "for none there is --no-album"},
        {{"uploads", "retry"}, "ID"},
        {{"uploads", "remove", "all"}, "not a number"},
        {{"accounts", "add", "flickr"}, "https://www.flickr.com/services/apps/create/"},
        {{"accounts", "add", "vimeo", "--consumer-key", "key"}, "secret"},
        {{"accounts", "add", "vimeo", "--consumer-key", "key", "--credential-file", "-"}, "--consumer-key"},
        {{"accounts", "remove", "nobody"}, "nobody"},
        {{"standin", "--port", "70000"}, "70000"},
    };
    for (const auto &[arguments, text] : cases) {
        const Ending ending = run(arguments);
        EXPECT_EQ(ending.status, 2) << arguments.join(' ').constData();
        EXPECT_TRUE(says(ending.errors, text)) << arguments.join(' ').constData();
        EXPECT_EQ(ending.output, "");
    }
}

TEST_F(KorvaneProgram, AnswersHelpAlsoInTheCLocale) {
    home.setEnvironment("LC_ALL", "C");
    for (const QByteArrayList &command :
         {QByteArrayList{}, {"share", "flickr"}, {"uploads"}, {"accounts"}, {"standin"}}) {
        const Ending ending = run(command + QByteArrayList{"--help"});
        EXPECT_EQ(ending.status, 0);
        EXPECT_EQ(ending.errors, "") << command.join(' ').constData();
        EXPECT_TRUE(says(ending.output, "Usage"));
    }
}

TEST_F(KorvaneProgram, EveryUnusableFileIsNamedAndNoneIsShared) {
    const QByteArray empty = home.file("empty.jpg", {});
    const QByteArray huge = home.file("huge.jpg", {}); // one byte over the limit, and not looked into
    ASSERT_TRUE(QFile::resize(QFile::decodeName(huge), 200 * 1024 * 1024 + 1));
    const QByteArray folder = QFile::encodeName(home.path());
    const QByteArray crafty = home.file("a\nkorvane: \x1b[2J all done.jpg", {});
    const Ending ending = run({"share", "flickr", "FILE:" + photo, empty, huge, "file://" + folder + "/missing.jpg",
                               folder, crafty, "sftp://far/away.jpg"});
    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(ending.output, "");
    for (const char *said :
         {"empty.jpg: the file is empty", "huge.jpg: the file has 209.7 MB, Flickr takes photos of up to 200 MB",
          "missing.jpg: No such file", "sftp://far/away.jpg: this is not a file on this device", ": Is a directory",
          "/a korvane: \uFFFD[2J all done.jpg", "Nothing was shared."})
        EXPECT_TRUE(says(ending.errors, said));
    EXPECT_FALSE(says(ending.errors, "good.jpg"));
}

TEST_F(KorvaneProgram, AccountsComeAndGoWithoutShowingSecrets) {
    home.file("config/korvane/accounts.json", R"({"accounts": 7})");
    for (const QByteArrayList &arguments : {QByteArrayList{"share", "flickr", photo}, {"accounts"}}) {
        const Ending without = run(arguments);
        EXPECT_EQ(without.status, arguments.size() > 1 ? 3 : 0);
        EXPECT_TRUE(says(without.errors, "accounts.json.damaged. Sign in again"));
        EXPECT_TRUE(says(without.output + without.errors, "korvane accounts add flickr"));
    }
    const Ending refused = addAccount("{\"username\":\"a\",\"token\":\"hush\"}");
    EXPECT_EQ(refused.status, 2);
    EXPECT_TRUE(says(refused.errors, "consumerKey"));
    EXPECT_EQ(addAccount(credentials("first")).status, 0);
    const QByteArray file = home.file("me.json", credentials("Zoë"));
    const Ending added = run({"accounts", "add", "flickr", "--credential-file", file});
    EXPECT_EQ(added.status, 0) << added.errors.constData();

    const Ending with = run({"share", "flickr", photo});
    EXPECT_EQ(with.status, 4) << "there is no service";
    EXPECT_TRUE(says(with.errors, "Sharing as Zoë, the one in use of 2"));
    EXPECT_TRUE(says(with.errors, "Nothing was shared."));
    for (const QByteArrayList &arguments :
         {QByteArrayList{"uploads"}, {"uploads", "watch"}, {"uploads", "retry", "all"}})
        EXPECT_EQ(run(arguments).status, 4) << arguments.join(' ').constData();

    const Ending list = run({"accounts", "--json"});
    const auto accounts = QJsonDocument::fromJson(list.output);
    EXPECT_EQ(accounts[0][QStringLiteral("inUse")], QJsonValue(false));
    EXPECT_EQ(accounts[1][QStringLiteral("inUse")], QJsonValue(true));
    EXPECT_EQ(accounts[1][QStringLiteral("username")].toString(), QStringLiteral("Zoë"));
    EXPECT_EQ(accounts[1][QStringLiteral("service")].toString(), QStringLiteral("flickr"));
    const QByteArray shown = run({"accounts"}).output;
    EXPECT_TRUE(says(shown, "Zoë (in use)\n"));
    EXPECT_FALSE(says(refused.errors + added.output + added.errors + list.output + shown, "hush"));
    for (int i : {0, 1})
        EXPECT_EQ(run({"accounts", "remove", accounts[i][QStringLiteral("id")].toString().toUtf8()}).status, 0);
    EXPECT_TRUE(run({"accounts"}).output.startsWith("No accounts."));
}
