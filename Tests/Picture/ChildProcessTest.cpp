// Child programs: what they see, how they end, and that nothing of them stays behind.
#include "Platform/Foundation/ChildProcess.h"

#include "Platform/Foundation/FileDescriptor.h"
#include "Tests/Support/TemporaryHome.h"
#include "Tests/Support/WaitFor.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <thread>
#include <vector>

namespace korvane::test {
namespace {

using namespace std::chrono_literals;

ChildProcess shell(const QByteArray &script) {
    return ChildProcess("/bin/sh", {"-c", script});
}

QByteArray contents(const QByteArray &path) {
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qsizetype openDescriptors() {
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
        .size();
}

// What the script writes to standard output.
QByteArray outputOf(const QByteArray &script) {
    const TemporaryHome home;
    const QByteArray path = home.file(QStringLiteral("output"), {});
    const FileDescriptor output(::open(path.constData(), O_WRONLY | O_CLOEXEC));
    ChildProcess child = shell(script);
    child.setStandardOutput(output.get());
    const auto result = child.run();
    EXPECT_TRUE(result && result->succeeded());
    return contents(path);
}

TEST(ChildProcess, ReportsHowItEnded) {
    const struct {
        const char *script;
        ChildProcess::Ending ending;
        int status;
        const char *errors;
    } table[] = {
        {"exit 0", ChildProcess::Exited, 0, ""},
        {"exit 7", ChildProcess::Exited, 7, ""},
        {"echo first >&2; echo 'no such luck' >&2; exit 1", ChildProcess::Exited, 1, "first\nno such luck\n"},
        {"kill -TERM $$", ChildProcess::Signalled, SIGTERM, ""},
        {"cat; exit 4", ChildProcess::Exited, 4, ""}, // standard input is at its end
    };
    for (const auto &one : table) {
        const auto result = shell(one.script).run();
        ASSERT_TRUE(result) << one.script;
        EXPECT_EQ(result->ending, one.ending) << one.script;
        EXPECT_EQ(result->status, one.status) << one.script;
        EXPECT_EQ(result->standardError, one.errors);
    }
    EXPECT_EQ(shell("echo first >&2; echo last >&2; exit 1").run()->description(),
              QStringLiteral("exit status 1: last"));
}

TEST(ChildProcess, HandsOverItsOutputAndEndsWhenItsWatcherSaysSo) {
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

    // One that never pauses, and one that never says a word.
    for (const char *script : {"exec cat /dev/zero", "exec sleep 1000"}) {
        ChildProcess child = shell(script);
        child.setOutputHandler([](const QByteArray &) {});
        int asked = 0;
        child.setWatch(5ms, [&] { return ++asked < 10; });
        EXPECT_EQ(child.run()->ending, ChildProcess::TimedOut) << script;
        EXPECT_EQ(asked, 10);
    }
}

TEST(ChildProcess, StandsBackWhereItIsToldTo) {
    ChildProcess child = shell("exec nice");
    QByteArray output;
    child.setOutputHandler([&](const QByteArray &piece) { output += piece; });
    child.run();
    const int usual = output.trimmed().toInt();
    output.clear();
    child.setNiceness(3);
    child.run();
    EXPECT_EQ(output.trimmed().toInt(), std::min(19, usual + 3));
}

TEST(ChildProcess, GetsItsInputOutputAndEnvironment) {
    const TemporaryHome home;
    const QByteArray from = home.file(QStringLiteral("from"), "one two\n");
    const QByteArray to = home.file(QStringLiteral("to"), {});
    const FileDescriptor input(::open(from.constData(), O_RDONLY | O_CLOEXEC));
    const FileDescriptor output(::open(to.constData(), O_WRONLY | O_CLOEXEC));
    ChildProcess child = shell("cat; echo \"$HOME|$NEW|$1\"");
    child.setStandardInput(input.get());
    child.setStandardOutput(output.get());
    child.setEnvironmentVariable("NEW", "a=b c");
    child.setEnvironmentVariable("HOME", "/elsewhere");
    ASSERT_TRUE(child.run()->succeeded());
    EXPECT_EQ(contents(to), "one two\n/elsewhere|a=b c|\n");
}

TEST(ChildProcess, SaysWhyItCouldNotBeStarted) {
    const TemporaryHome home;
    const QByteArray notExecutable = home.file(QStringLiteral("plain"), "#!/bin/sh\n");
    const struct {
        QByteArray program;
        int code;
    } table[] = {
        {"/nowhere/at-all", ENOENT}, {"korvane-no-such-program", ENOENT}, {notExecutable, EACCES}, {"/tmp", EACCES}};
    for (const auto &one : table) {
        std::optional<NSError> error;
        EXPECT_FALSE(ChildProcess(one.program, {}).run(&error));
        ASSERT_TRUE(error) << one.program.constData();
        EXPECT_EQ(error->domain(), NSPOSIXErrorDomain);
        EXPECT_EQ(error->code(), one.code) << one.program.constData();
        EXPECT_TRUE(error->localizedDescription().contains(QFile::decodeName(one.program)));
    }
}

TEST(ChildProcess, IsKilledWhenItTakesTooLongOrIsCancelled) {
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
    std::thread canceller([&] {
        std::this_thread::sleep_for(50ms);
        stop.request_stop();
    });
    EXPECT_EQ(endless.run()->ending, ChildProcess::Cancelled);
    canceller.join();
    EXPECT_EQ(endless.run()->ending, ChildProcess::Cancelled) << "the wish was there before the start";
    EXPECT_LT(timer.elapsed(), 20'000);
}

TEST(ChildProcess, MayWriteMoreErrorsThanAreKept) {
    const auto result = shell("i=0; while [ $i -lt 20000 ]; do echo \"line $i\"; i=$((i+1)); done >&2; exit 5").run();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 5);
    EXPECT_EQ(result->standardError.size(), 16 * 1024);
    EXPECT_TRUE(result->standardError.endsWith("line 19998\nline 19999\n"));
}

TEST(ChildProcess, IsNotWaitedForBeyondItsOwnEnd) {
    QElapsedTimer timer;
    timer.start();
    const auto result = shell("sleep 15 & echo gone >&2; exit 3").run();
    EXPECT_EQ(result->status, 3);
    EXPECT_EQ(result->standardError, "gone\n");
    EXPECT_LT(timer.elapsed(), 10'000);
}

TEST(ChildProcess, SeesNoDescriptorOfOurs) {
    const FileDescriptor inheritable(::open("/dev/null", O_RDONLY)); // without close-on-exec, on purpose
    const int high = ::fcntl(inheritable.get(), F_DUPFD, 500);
    const FileDescriptor far(high);
    const QByteArray seen = outputOf("exec ls /proc/self/fd");
    EXPECT_EQ(seen, "0\n1\n2\n3\n"); // the last is ls's own
}

TEST(ChildProcess, StartsWithDefaultSignals) {
    const auto oldHandler = std::signal(SIGPIPE, SIG_IGN);
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const QByteArray masks = outputOf("exec grep -E '^Sig(Blk|Ign)' /proc/self/status");
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

TEST(ChildProcess, RunsBesideOthers) {
    std::vector<std::thread> threads;
    std::atomic<int> right = 0;
    for (int i = 0; i < 16; ++i)
        threads.emplace_back([&right, i] {
            const auto number = QByteArray::number(i);
            const auto result = shell("sleep 0.1; echo " + number + " >&2; exit " + number).run();
            if (result && result->status == i && result->standardError == number + '\n') ++right;
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(right, 16);
}

// The process in the middle, started by the next test: it waits for its child until it is killed.
TEST(ChildProcess, DISABLED_WaitsForASleeper) {
    shell("echo $$ > \"$SLEEPER_FILE.new\"; mv \"$SLEEPER_FILE.new\" \"$SLEEPER_FILE\"; exec sleep 600").run();
}

bool isAlive(const QByteArray &process) {
    const QByteArray state = contents("/proc/" + process + "/stat");
    return !state.isEmpty() && !state.mid(state.lastIndexOf(')')).startsWith(") Z");
}

TEST(ChildProcess, DiesWithItsParent) {
    const TemporaryHome home;
    const QByteArray file = QFile::encodeName(home.path(QStringLiteral("sleeper")));
    std::stop_source stop;
    ChildProcess middle(QFile::encodeName(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))),
                        {"--gtest_filter=ChildProcess.DISABLED_WaitsForASleeper", "--gtest_also_run_disabled_tests"});
    middle.setEnvironmentVariable("SLEEPER_FILE", file);
    middle.setCancellation(stop.get_token());
    std::thread running([&] { middle.run(); });
    const bool started = waitFor([&] { return QFile::exists(QFile::decodeName(file)); });
    const QByteArray sleeper = contents(file).trimmed();
    const bool lived = started && isAlive(sleeper);
    stop.request_stop(); // kills the middle one with SIGKILL
    running.join();
    ASSERT_TRUE(lived);
    EXPECT_TRUE(waitFor([&] { return !isAlive(sleeper); }));
}

TEST(ChildProcess, FindsProgramsOfOursAndOthers) {
    EXPECT_EQ(QFileInfo(QFile::decodeName(ChildProcess::pathOfProgram("korvane-picture"))).canonicalFilePath(),
              QFileInfo(QStringLiteral(KORVANE_PICTURE_PROGRAM)).canonicalFilePath());
    EXPECT_TRUE(ChildProcess::pathOfProgram("sh").endsWith("/sh"));
    EXPECT_TRUE(ChildProcess::pathOfProgram("korvane-no-such-program").isEmpty());
}

} // namespace
} // namespace korvane::test
