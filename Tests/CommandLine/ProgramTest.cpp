// The program korvane as it is run: what it refuses, what it says, and its exit status.
#include "Tests/EndToEnd/ServiceHarness.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

using namespace korvane::test;

namespace {

struct Ending {
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

Ending run(const QByteArrayList &arguments, const QByteArray &input = {}) {
    QStringList texts;
    for (const QByteArray &argument : arguments)
        texts.append(QString::fromUtf8(argument));
    QProcess program;
    program.start(QStringLiteral(KORVANE_PROGRAM), texts);
    program.write(input);
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished(60'000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << program.readAllStandardError().constData();
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

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
        {{"share", "vimeo", photo}, "--title"},
        {{"share", "vimeo", "--title", QByteArray(129, 'x'), photo}, "129 bytes"},
        {{"share", "vimeo", "--title", "a", photo}, "picture"},
        {{"share", "flickr", photo, "--audience", "everybody"}, "everybody"},
        {{"share", "flickr", photo, "--album", "Summer", "--no-album"}, "no-album"},
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

TEST_F(KorvaneProgram, AnswersHelpAndVersionAlsoInTheCLocale) {
    home.setEnvironment("LC_ALL", "C");
    EXPECT_EQ(run({"--version"}).output, "korvane " KORVANE_VERSION "\n");
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
    const QByteArray huge = home.file("huge.jpg", jpegOfSize(2000));
    ASSERT_TRUE(QFile::resize(QFile::decodeName(huge), 2LL * 1024 * 1024 * 1024));
    const QByteArray folder = QFile::encodeName(home.path());
    const Ending ending = run({"share", "flickr", photo, empty, huge, folder + "/missing.jpg", folder});
    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(ending.output, "");
    for (const char *said : {"empty.jpg: the file is empty", "huge.jpg: the file has 2.15 GB",
                             "missing.jpg: No such file", ": Is a directory", "Nothing was shared."})
        EXPECT_TRUE(says(ending.errors, said));
    EXPECT_FALSE(says(ending.errors, "good.jpg"));
}

TEST_F(KorvaneProgram, TellsAMissingAccountFromAnUnreachableService) {
    const Ending without = run({"share", "flickr", photo});
    EXPECT_EQ(without.status, 3);
    EXPECT_TRUE(says(without.errors, "korvane accounts add flickr"));

    for (const char *name : {"first", "second"})
        ASSERT_EQ(addAccount(credentials(name)).status, 0);
    const Ending with = run({"share", "flickr", photo});
    EXPECT_EQ(with.status, 4);
    EXPECT_TRUE(says(with.errors, "Sharing as second, the last added of 2"));
    EXPECT_TRUE(says(with.errors, "Nothing was shared."));
    for (const QByteArrayList &arguments :
         {QByteArrayList{"uploads"}, {"uploads", "watch"}, {"uploads", "retry", "all"}})
        EXPECT_EQ(run(arguments).status, 4) << arguments.join(' ').constData();
}

TEST_F(KorvaneProgram, AccountsComeAndGoWithoutShowingSecrets) {
    const Ending refused = addAccount("{\"username\":\"a\",\"token\":\"hush\"}");
    EXPECT_EQ(refused.status, 2);
    EXPECT_TRUE(says(refused.errors, "consumerKey"));
    const QByteArray file = home.file("me.json", credentials("Zoë"));
    const Ending added = run({"accounts", "add", "flickr", "--credential-file", file});
    EXPECT_EQ(added.status, 0) << added.errors.constData();
    const Ending list = run({"accounts", "--json"});
    const auto accounts = QJsonDocument::fromJson(list.output);
    ASSERT_EQ(accounts.array().size(), 1);
    EXPECT_EQ(accounts[0][QStringLiteral("username")].toString(), QStringLiteral("Zoë"));
    EXPECT_EQ(accounts[0][QStringLiteral("service")].toString(), QStringLiteral("flickr"));
    const QByteArray said = refused.errors + added.output + added.errors + list.output + run({"accounts"}).output;
    EXPECT_FALSE(says(said, "hush"));
    EXPECT_EQ(run({"accounts", "remove", accounts[0][QStringLiteral("id")].toString().toUtf8()}).status, 0);
    EXPECT_TRUE(run({"accounts"}).output.startsWith("No accounts."));
}

using KorvaneProgramWithService = ServiceTest;

TEST_F(KorvaneProgramWithService, SharesWaitsAndTellsWhatBecameOfEachPhoto) {
    flickr.server.on("upload").thenOk().answer(401, "text/plain", "oauth_problem=token_rejected");
    home.file("config/korvane/preferences/com.zorvex.korvane.json", R"({"FlickrParallelUploads": 1})");
    const Ending ending = run({"share", "flickr", "--title", "Sommer 夏", "--wait", "--json",
                               home.file("a.jpg", jpegOfSize(2000)), home.file("b.jpg", jpegOfSize(3000))});
    EXPECT_EQ(ending.status, 1) << ending.errors.constData();
    const auto uploads = QJsonDocument::fromJson(ending.output);
    ASSERT_EQ(uploads.array().size(), 2) << ending.output.constData();
    EXPECT_EQ(uploads[0][QStringLiteral("state")].toString(), QStringLiteral("done"));
    EXPECT_EQ(uploads[1][QStringLiteral("state")].toString(), QStringLiteral("failed"));
    EXPECT_EQ(uploads[0][QStringLiteral("title")].toString(), QStringLiteral("Sommer 夏"));
    EXPECT_EQ(flickr.server.photos().at(0).sha256, sha256Of(jpegOfSize(2000)));
}

TEST_F(KorvaneProgramWithService, RemembersChoicesForTheNextProcessAndNamesTheAlbums) {
    const QByteArray photo = home.file("a.jpg", jpegOfSize(2000));
    ASSERT_EQ(run({"share", "flickr", photo, "--audience", "family", "--album", "Family & friends", "--wait"}).status,
              0);
    ASSERT_EQ(run({"share", "flickr", photo, "--wait"}).status, 0);
    const auto album = flickr.server.albums().at(1);
    EXPECT_EQ(album.photos.size(), 2u);
    const auto choices = flickr.server.photos().at(1).parameters;
    EXPECT_EQ(standin::valueOf(choices, "is_family"), "1");
    EXPECT_EQ(standin::valueOf(choices, "is_public"), "0");

    const Ending unknown = run({"share", "flickr", photo, "--album", "No such"});
    EXPECT_EQ(unknown.status, 2);
    for (const char *said : {"no album “No such”", "Holidays", "Family & friends"})
        EXPECT_TRUE(says(unknown.errors, said)) << unknown.errors.constData();
    const auto listed = QJsonDocument::fromJson(run({"albums", "--json"}).output);
    EXPECT_EQ(listed[1][QStringLiteral("id")].toString(), QString::number(album.id));
    EXPECT_EQ(run({"share", "flickr", photo, "--album", QByteArray::number(album.id), "--wait"}).status, 0);
    EXPECT_EQ(flickr.server.albums().at(1).photos.size(), 3u);
    EXPECT_EQ(run({"share", "flickr", photo, "--no-album", "--audience", "only-me", "--wait"}).status, 0);
    EXPECT_EQ(flickr.server.albums().at(1).photos.size(), 3u);
    flickr.server.on("getList").answer(200, "text/xml",
                                       "<rsp stat=\"fail\"><err code=\"98\" msg=\"Invalid auth\"/></rsp>");
    const Ending refused = run({"albums"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(says(refused.errors, "Invalid auth")) << refused.errors.constData();
}
