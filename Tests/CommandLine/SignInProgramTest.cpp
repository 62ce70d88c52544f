// Signing in with the program korvane, by a person at a browser, a terminal or a script.
#include "Tests/EndToEnd/ServiceHarness.h"
#include "Tests/Support/ScriptedBrowser.h"

#include <QJsonDocument>
#include <QProcess>
#include <QRegularExpression>

#include <fcntl.h>
#include <termios.h>

using namespace korvane;
using namespace korvane::test;

namespace {

// A run of the program under way, and what it has said so far.
struct Session {
    QProcess program;
    QByteArray output;
    QByteArray notes;

    explicit Session(const QByteArrayList &arguments, const QString &terminal = {}) {
        QStringList texts;
        for (const QByteArray &argument : arguments)
            texts.append(QString::fromUtf8(argument));
        if (!terminal.isEmpty()) program.setStandardInputFile(terminal);
        program.start(QStringLiteral(KORVANE_PROGRAM), texts);
        EXPECT_TRUE(program.waitForStarted());
    }
    bool waitToSay(const char *text) {
        return waitFor([&] {
                   notes += program.readAllStandardError();
                   return notes.contains(text) || program.state() == QProcess::NotRunning;
               }) &&
               notes.contains(text);
    }
    // The exit status; -1 if it does not end by itself.
    int waitForEnd() {
        const bool ended = waitFor([&] { return program.state() == QProcess::NotRunning; });
        output += program.readAllStandardOutput();
        notes += program.readAllStandardError();
        return ended && program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }
    // The page's address, which stands on a line of its own.
    QString page() {
        EXPECT_TRUE(waitToSay("/authorize?")) << notes.constData();
        const QRegularExpression line(QStringLiteral("^http://\\S+/authorize\\?\\S+$"),
                                      QRegularExpression::MultilineOption);
        return line.match(QString::fromUtf8(notes)).captured();
    }
    void type(const QString &line) { program.write(line.toUtf8() + '\n'); }
};

class SignInProgram : public ServiceTest {
protected:
    SignInProgram() {
        // What the desktop would open goes into a file.
        const QByteArray opener = home.file("bin/xdg-open", "#!/bin/sh\nprintf %s \"$1\" >\"$HOME/opened.part\" && mv "
                                                            "\"$HOME/opened.part\" \"$HOME/opened\"\n");
        QFile::setPermissions(QFile::decodeName(opener), QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
        home.setEnvironment("PATH", home.path(u"bin").toUtf8() + ':' + qgetenv("PATH"));
        home.setEnvironment("DISPLAY", ":none");
    }

    QString openedPage() {
        EXPECT_TRUE(waitFor([this] { return !home.contents("opened").isEmpty(); }));
        const QByteArray page = home.contents("opened");
        QFile::remove(home.path(u"opened"));
        return QString::fromUtf8(page);
    }
    std::shared_ptr<ACAccount> account(const QString &type) const { return ACAccountStore().accountInUse(type); }

    const standin::Credential flickrUser = standin::StandIn::flickrCredential();
    const standin::Credential vimeoUser = standin::StandIn::vimeoCredential();
};

} // namespace

TEST_F(SignInProgram, SignsInThroughTheBrowserAndSharesWithTheAccount) {
    home.setEnvironment("KORVANE_CONSUMER_SECRET", flickrUser.consumerSecret);
    Session first({"accounts", "add", "flickr", "--json", "--consumer-key", flickrUser.consumerKey});
    const QString page = openedPage();
    EXPECT_EQ(first.page(), page) << "also said";
    EXPECT_EQ(decideAndReturn(page, "allow").status, 200);
    ASSERT_EQ(first.waitForEnd(), 0) << first.notes.constData();
    const auto json = QJsonDocument::fromJson(first.output);
    EXPECT_EQ(json[QStringLiteral("username")].toString(), QStringLiteral("standin"));
    EXPECT_EQ(json[QStringLiteral("id")].toString(), account(ACAccountTypeIdentifierFlickr)->identifier());
    const auto credential = account(ACAccountTypeIdentifierFlickr)->credential();
    EXPECT_NE(credential->token.toUtf8(), flickrUser.token);
    for (const QByteArray &secret :
         {flickrUser.consumerSecret, credential->token.toUtf8(), credential->tokenSecret.toUtf8()})
        EXPECT_FALSE(says(first.output + first.notes, secret));

    Session share({"share", "flickr", "--wait", home.file("a.jpg", jpegOfSize(2000))});
    ASSERT_EQ(share.waitForEnd(), 0) << share.notes.constData();
    ASSERT_EQ(flickr.server.photos().size(), 1u);
    EXPECT_TRUE(
        says(standin::valueOf(flickr.server.requests().back().headers, "Authorization"), credential->token.toUtf8()));

    home.setEnvironment("KORVANE_CONSUMER_SECRET", {});
    Session second({"accounts", "add", "flickr"}); // the keys are stored
    decideAndReturn(openedPage(), "refuse");
    EXPECT_EQ(second.waitForEnd(), 1);
    EXPECT_TRUE(says(second.notes, "not allowed"));
    EXPECT_EQ(account(ACAccountTypeIdentifierFlickr)->credential(), credential) << "as before";
}

TEST_F(SignInProgram, TakesACodeFromAScript) {
    Session run({"accounts", "add", "vimeo", "--no-browser", "--consumer-key", vimeoUser.consumerKey});
    run.type(QString::fromUtf8(vimeoUser.consumerSecret));
    const QString code = decide(run.page(), "allow").code();
    run.type(QStringLiteral("\n000-000-000"));
    EXPECT_TRUE(run.waitToSay("not the one"));
    run.type(code);
    ASSERT_EQ(run.waitForEnd(), 0) << run.notes.constData();
    EXPECT_TRUE(says(run.output, "The vimeo account of standin is ready."));
    EXPECT_NE(account(ACAccountTypeIdentifierVimeo)->credential()->token.toUtf8(), vimeoUser.token);
    EXPECT_FALSE(QFile::exists(home.path(u"opened")));

    Session without({"accounts", "add", "vimeo", "--no-browser"});
    EXPECT_FALSE(without.page().isEmpty());
    without.program.closeWriteChannel();
    EXPECT_EQ(without.waitForEnd(), 1);
    EXPECT_TRUE(says(without.notes, "No code"));
}

TEST_F(SignInProgram, AsksAtATerminalAndHidesTheSecret) {
    const FileDescriptor terminal(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK));
    ASSERT_TRUE(::grantpt(terminal.get()) == 0 && ::unlockpt(terminal.get()) == 0);
    const QString name = QString::fromLocal8Bit(::ptsname(terminal.get()));
    const FileDescriptor held(::open(name.toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_CLOEXEC));
    const auto type = [&](const QByteArray &line) {
        ASSERT_EQ(::write(terminal.get(), (line + '\n').constData(), size_t(line.size() + 1)), line.size() + 1);
    };
    const auto echoes = [&] {
        termios state{};
        return ::tcgetattr(held.get(), &state) == 0 && (state.c_lflag & ECHO) != 0;
    };
    Session run({"accounts", "add", "flickr", "--no-browser"}, name);
    ASSERT_TRUE(run.waitToSay("Key: ")) << run.notes.constData();
    EXPECT_TRUE(says(run.notes, "https://www.flickr.com/services/apps/create/"));
    type(flickrUser.consumerKey);
    ASSERT_TRUE(run.waitToSay("Secret"));
    ASSERT_TRUE(waitFor([&] { return !echoes(); }));
    type(flickrUser.consumerSecret);
    const QString code = decide(run.page(), "allow").code();
    EXPECT_TRUE(echoes());
    type(code.toUtf8());
    ASSERT_EQ(run.waitForEnd(), 0) << run.notes.constData();
    char seen[4096];
    const ssize_t count = ::read(terminal.get(), seen, sizeof seen);
    const QByteArray shown(seen, std::max<ssize_t>(count, 0));
    EXPECT_TRUE(says(shown, flickrUser.consumerKey));
    EXPECT_FALSE(says(shown, flickrUser.consumerSecret));

    Session interrupted({"accounts", "add", "flickr", "--consumer-key", "other"}, name);
    ASSERT_TRUE(interrupted.waitToSay("Secret"));
    ASSERT_TRUE(waitFor([&] { return !echoes(); }));
    ::kill(pid_t(interrupted.program.processId()), SIGINT);
    EXPECT_EQ(interrupted.waitForEnd(), 130);
    EXPECT_TRUE(echoes());
}

TEST_F(SignInProgram, GivesUpAtCtrlCAndSaysWhereNoBrowserIs) {
    home.file("bin/xdg-open", "#!/bin/sh\nexit 3\n");
    home.setEnvironment("KORVANE_CONSUMER_SECRET", flickrUser.consumerSecret);
    Session run({"accounts", "add", "flickr", "--consumer-key", flickrUser.consumerKey});
    EXPECT_TRUE(run.waitToSay("--no-browser")) << run.notes.constData();
    EXPECT_FALSE(run.page().isEmpty());
    ::kill(pid_t(run.program.processId()), SIGINT);
    EXPECT_EQ(run.waitForEnd(), 130);
    EXPECT_TRUE(says(run.notes, "cancelled"));
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(Session({"accounts", "add", "flickr"}).waitForEnd(), 2) << "keys that were not tried are not kept";
}
