// The program korvane as it is run: what it refuses, what it says, and its exit status.
#include "Tests/Support/TemporaryHome.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

struct Ending {
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

// On a home folder of its own and without a bus.
class KorvaneProgram : public ::testing::Test {
protected:
    KorvaneProgram() { home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus"); }

    Ending run(const QStringList &arguments, const QByteArray &input = {}) const {
        QProcess program;
        program.start(QStringLiteral(KORVANE_PROGRAM), arguments);
        program.write(input);
        program.closeWriteChannel();
        EXPECT_TRUE(program.waitForFinished(60'000));
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << program.readAllStandardError().constData();
        return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
    }

    static QByteArray credentials(const char *name) {
        return R"({"username":")" + QByteArray(name) +
               R"(","consumerKey":"key","consumerSecret":"hush1","token":"token","tokenSecret":"hush2"})";
    }

    korvane::test::TemporaryHome home;
};

} // namespace

TEST_F(KorvaneProgram, BadUsageIsStatusTwoAndSaysWhat) {
    const QString photo = QFile::decodeName(home.file(QStringLiteral("a.jpg"), korvane::test::jpegOfSize(2000)));
    const QStringList share{QStringLiteral("share"), QStringLiteral("flickr")};
    const std::pair<QStringList, const char *> cases[] = {
        {{}, "subcommand"},
        {{QStringLiteral("dance")}, "dance"},
        {share, "FILE"},
        {{QStringLiteral("share"), QStringLiteral("vimeo"), photo}, "vimeo"},
        {share + QStringList{photo, QStringLiteral("--audience"), QStringLiteral("everybody")}, "everybody"},
        {share + QStringList{photo, QStringLiteral("--album"), QStringLiteral("Summer")}, "not a number"},
        {share + QStringList{photo, QStringLiteral("--album"), QStringLiteral("0")}, "not a number"},
        {{QStringLiteral("uploads"), QStringLiteral("retry")}, "ID"},
        {{QStringLiteral("uploads"), QStringLiteral("remove"), QStringLiteral("all")}, "not a number"},
        {{QStringLiteral("accounts"), QStringLiteral("add"), QStringLiteral("flickr")}, "\"consumerKey\""},
        {{QStringLiteral("accounts"), QStringLiteral("remove"), QStringLiteral("nobody")}, "nobody"},
        {{QStringLiteral("standin"), QStringLiteral("--port"), QStringLiteral("70000")}, "70000"},
    };
    for (const auto &[arguments, text] : cases) {
        const Ending ending = run(arguments);
        EXPECT_EQ(ending.status, 2) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(ending.errors.contains(text))
            << arguments.join(u' ').toStdString() << ": " << ending.errors.constData();
        EXPECT_EQ(ending.output, "");
    }
}

TEST_F(KorvaneProgram, AnswersHelpAndVersionAlsoInTheCLocale) {
    home.setEnvironment("LC_ALL", "C");
    EXPECT_EQ(run({QStringLiteral("--version")}).output, "korvane " KORVANE_VERSION "\n");
    for (const QStringList &command : {QStringList{},
                                       {QStringLiteral("share"), QStringLiteral("flickr")},
                                       {QStringLiteral("uploads")},
                                       {QStringLiteral("accounts")},
                                       {QStringLiteral("standin")}}) {
        const Ending ending = run(command + QStringList{QStringLiteral("--help")});
        EXPECT_EQ(ending.status, 0);
        EXPECT_EQ(ending.errors, "") << command.join(u' ').toStdString();
        EXPECT_TRUE(ending.output.contains("Usage")) << ending.output.constData();
    }
}

TEST_F(KorvaneProgram, EveryUnusableFileIsNamedAndNoneIsShared) {
    const QString photo = QFile::decodeName(home.file(QStringLiteral("good.jpg"), korvane::test::jpegOfSize(2000)));
    const QString empty = QFile::decodeName(home.file(QStringLiteral("empty.jpg"), {}));
    const QString text = QFile::decodeName(home.file(QStringLiteral("text.jpg"), "hello"));
    const QString huge = QFile::decodeName(home.file(QStringLiteral("huge.jpg"), korvane::test::jpegOfSize(2000)));
    ASSERT_TRUE(QFile::resize(huge, 2LL * 1024 * 1024 * 1024));
    const QString missing = home.path(QStringLiteral("missing.jpg"));
    const Ending ending =
        run({QStringLiteral("share"), QStringLiteral("flickr"), photo, empty, text, huge, missing, home.path()});
    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(ending.output, "");
    for (const char *said :
         {"empty.jpg: the file is empty", "text.jpg: the file is not a picture", "huge.jpg: the file has 2.15 GB",
          "missing.jpg: No such file", ": Is a directory", "Nothing was shared."})
        EXPECT_TRUE(ending.errors.contains(said)) << said << " in " << ending.errors.constData();
    EXPECT_FALSE(ending.errors.contains("good.jpg"));
}

TEST_F(KorvaneProgram, TellsAMissingAccountFromAnUnreachableService) {
    const QString photo = QFile::decodeName(home.file(QStringLiteral("a.jpg"), korvane::test::jpegOfSize(2000)));
    const QStringList share{QStringLiteral("share"), QStringLiteral("flickr"), photo};
    const Ending without = run(share);
    EXPECT_EQ(without.status, 3);
    EXPECT_TRUE(without.errors.contains("korvane accounts add flickr")) << without.errors.constData();

    const QStringList add{QStringLiteral("accounts"), QStringLiteral("add"), QStringLiteral("flickr"),
                          QStringLiteral("--credential-file"), QStringLiteral("-")};
    for (const char *name : {"first", "second"})
        ASSERT_EQ(run(add, credentials(name)).status, 0);
    const Ending with = run(share);
    EXPECT_EQ(with.status, 4) << with.errors.constData();
    EXPECT_TRUE(with.errors.contains("Sharing as second, the last added of 2")) << with.errors.constData();
    EXPECT_TRUE(with.errors.contains("Nothing was shared.")) << with.errors.constData();
    for (const QStringList &arguments : {QStringList{QStringLiteral("uploads")},
                                         {QStringLiteral("uploads"), QStringLiteral("watch")},
                                         {QStringLiteral("uploads"), QStringLiteral("retry"), QStringLiteral("all")}})
        EXPECT_EQ(run(arguments).status, 4) << arguments.join(u' ').toStdString();
}

TEST_F(KorvaneProgram, AccountsComeAndGoWithoutShowingSecrets) {
    const QString file = QFile::decodeName(home.file(QStringLiteral("me.json"), credentials("Zoë")));
    const Ending added = run({QStringLiteral("accounts"), QStringLiteral("add"), QStringLiteral("flickr"),
                              QStringLiteral("--credential-file"), file});
    EXPECT_EQ(added.status, 0) << added.errors.constData();
    const Ending list = run({QStringLiteral("accounts"), QStringLiteral("--json")});
    const QJsonArray accounts = QJsonDocument::fromJson(list.output).array();
    ASSERT_EQ(accounts.size(), 1);
    EXPECT_EQ(accounts[0].toObject().value(QStringLiteral("username")).toString(), QStringLiteral("Zoë"));
    EXPECT_EQ(accounts[0].toObject().value(QStringLiteral("service")).toString(), QStringLiteral("flickr"));
    EXPECT_FALSE(
        (added.output + added.errors + list.output + run({QStringLiteral("accounts")}).output).contains("hush"));
    const QString id = accounts[0].toObject().value(QStringLiteral("id")).toString();
    EXPECT_EQ(run({QStringLiteral("accounts"), QStringLiteral("remove"), id}).status, 0);
    EXPECT_TRUE(run({QStringLiteral("accounts")}).output.startsWith("No accounts."));

    const std::pair<QByteArray, const char *> wrong[] = {{"", "empty"},
                                                         {"{\"username\":\"a\",\"token\":\"hush\"}", "consumerKey"},
                                                         {"hush{", "credential file"},
                                                         {QByteArray(200'000, 'S'), "larger"}};
    for (const auto &[input, said] : wrong) {
        const Ending refused = run({QStringLiteral("accounts"), QStringLiteral("add"), QStringLiteral("flickr"),
                                    QStringLiteral("--credential-file"), QStringLiteral("-")},
                                   input);
        EXPECT_EQ(refused.status, 2);
        EXPECT_TRUE(refused.errors.contains(said)) << refused.errors.constData();
        EXPECT_FALSE(refused.errors.contains("hush"));
    }
}
