// Child programs: what they see, how they end, and that nothing of them stays behind.
#include "Platform/Foundation/ChildProcess.h"

#include "Platform/Foundation/FileDescriptor.h"
#include "Tests/Support/Testing.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <thread>

namespace korvane::test {
namespace {

using namespace std::chrono_literals;

ChildProcess shell(const QByteArray &script) {
    return ChildProcess("/bin/sh", {"-c", script});
}

qsizetype openDescriptors() {
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

TEST(ChildProcess, ReportsHowItEnded) {
    const QByteArray chatter = "i=0; while [ $i -lt 20000 ]; do echo \"line $i\"; i=$((i+1)); done >&2; exit 5";
    const std::tuple<QByteArray, const char *, const char *> table[] = {
        {"exit 0", "exit status 0", ""}, // with the end of its standard error
        {"echo first >&2; echo 'no such luck' >&2; exit 1", "exit status 1: no such luck", "first\nno such luck\n"},
        {"kill -TERM $$", "stopped by signal 15", ""},
        {"cat; exit 4", "exit status 4", ""}, // standard input is at its end
        {chatter, "exit status 5: line 19999", "line 19998\nline 19999\n"},
        {"sleep 100 & echo gone >&2; exit 3", "exit status 3: gone", "gone\n"}, // not waited for
    };
    QElapsedTimer timer;
    timer.start();
    for (const auto &[script, description, errors] : table) {
        SCOPED_TRACE(script.constData());
        const auto result = shell(script).run();
        ASSERT_TRUE(result);
        EXPECT_EQ(result->description(), QLatin1String(description));
        EXPECT_TRUE(result->standardError.endsWith(errors)) << result->standardError.constData();
        EXPECT_LE(result->standardError.size(), 16 * 1024) << "more are not kept";
    }
    EXPECT_LT(timer.elapsed(), 60'000);
}

TEST(ChildProcess, HandsOverItsOutput) {
    ChildProcess talker = shell("seq 1 20000; exec >&-; echo gone >&2; exit 3");
    QByteArray output;
    const auto thread = std::this_thread::get_id();
    talker.setOutputHandler([&](const QByteArray &piece) {
        output += piece;
        EXPECT_EQ(std::this_thread::get_id(), thread);
    });
    const auto result = talker.run();
    EXPECT_EQ(result->status, 3);
    EXPECT_EQ(result->standardError, "gone\n");
    EXPECT_EQ(output.split('\n').size(), 20'001);
    EXPECT_TRUE(output.endsWith("\n20000\n"));
}

TEST(ChildProcess, StandsBackWhereItIsToldTo) {
    ChildProcess child = shell("exec nice >&2");
    const int usual = child.run()->standardError.trimmed().toInt();
    child.setNiceness(3);
    EXPECT_EQ(child.run()->standardError.trimmed().toInt(), std::min(19, usual + 3));
}

TEST(ChildProcess, SaysWhyItCouldNotBeStarted) {
    const TemporaryHome home;
    const QByteArray notExecutable = home.file("plain", "#!/bin/sh\n");
    for (const auto &[program, code] : {std::pair<QByteArray, int>{"/nowhere/at-all", ENOENT},
                                        {"korvane-no-such-program", ENOENT},
                                        {notExecutable, EACCES},
                                        {"/tmp", EACCES}}) {
        std::optional<NSError> error;
        EXPECT_FALSE(ChildProcess(program, {}).run(&error));
        ASSERT_TRUE(says(error, program));
        EXPECT_EQ(error->domain(), NSPOSIXErrorDomain);
        EXPECT_EQ(error->code(), code) << program.constData();
    }
}

TEST(ChildProcess, IsKilledWhenItTakesTooLongOrIsNotWantedAnyMore) {
    QElapsedTimer timer;
    timer.start();
    ChildProcess slow = shell("echo working >&2; trap '' TERM; while :; do sleep 0.05; done");
    slow.setTimeLimit(300ms);
    const auto late = slow.run();
    ASSERT_TRUE(late);
    EXPECT_EQ(late->ending, ChildProcess::TimedOut);
    EXPECT_EQ(late->standardError, "working\n");
    EXPECT_GE(timer.elapsed(), 300);

    std::stop_source stop;
    ChildProcess endless("/bin/sleep", {"600"});
    endless.setCancellation(stop.get_token());
    stop.request_stop();
    EXPECT_EQ(endless.run()->ending, ChildProcess::Cancelled) << "the wish was there before the start";
    EXPECT_LT(timer.elapsed(), 20'000);
}

TEST(ChildProcess, StartsWithoutOurDescriptorsAndSignals) {
    const FileDescriptor inheritable(::open("/dev/null", O_RDONLY)); // without close-on-exec, on purpose
    const FileDescriptor far(::fcntl(inheritable.get(), F_DUPFD, 500));
    EXPECT_EQ(shell("exec ls /proc/self/fd >&2").run()->standardError, "0\n1\n2\n3\n") << "the last is ls's own";

    const auto oldHandler = std::signal(SIGPIPE, SIG_IGN);
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const QByteArray masks = shell("exec grep -E '^Sig(Blk|Ign)' /proc/self/status >&2").run()->standardError;
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    std::signal(SIGPIPE, oldHandler);
    EXPECT_EQ(masks, "SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n");
}

TEST(ChildProcess, LeavesNoDescriptorBehind) {
    shell("exit 0").run();
    const qsizetype before = openDescriptors();
    for (int i = 0; i < 20; ++i) {
        shell("echo x >&2; exit 1").run();
        ChildProcess("/nowhere", {}).run();
        ChildProcess late("/bin/sleep", {"600"});
        late.setTimeLimit(1ms);
        late.run();
    }
    EXPECT_EQ(openDescriptors(), before);
}

// The process in the middle, started by the next test: it waits for its child until it is killed.
TEST(ChildProcess, DISABLED_WaitsForASleeper) {
    shell("echo $$ > \"$SLEEPER_FILE.new\"; mv \"$SLEEPER_FILE.new\" \"$SLEEPER_FILE\"; exec sleep 600").run();
}

bool isAlive(const QByteArray &process) {
    QFile file(QStringLiteral("/proc/%1/stat").arg(QString::fromLatin1(process)));
    const QByteArray state = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return !state.isEmpty() && !state.mid(state.lastIndexOf(')')).startsWith(") Z");
}

TEST(ChildProcess, DiesWithItsParent) {
    const TemporaryHome home;
    std::stop_source stop;
    ChildProcess middle(QFile::encodeName(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))),
                        {"--gtest_filter=ChildProcess.DISABLED_WaitsForASleeper", "--gtest_also_run_disabled_tests"});
    middle.setEnvironmentVariable("SLEEPER_FILE", QFile::encodeName(home.path("sleeper")));
    middle.setCancellation(stop.get_token());
    std::thread running([&] { EXPECT_EQ(middle.run()->ending, ChildProcess::Cancelled); });
    const bool started = waitFor([&] { return QFile::exists(home.path("sleeper")); });
    const QByteArray sleeper = home.contents("sleeper").trimmed();
    const bool lived = started && isAlive(sleeper);
    stop.request_stop(); // kills the middle one with SIGKILL
    running.join();
    ASSERT_TRUE(lived);
    EXPECT_TRUE(waitFor([&] { return !isAlive(sleeper); }));
}

} // namespace
} // namespace korvane::test
