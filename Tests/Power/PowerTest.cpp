// Power assertions against a logind on a private bus, and the launcher's mark.
#include "Platform/Foundation/NSData.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Power/PowerAssertion.h"
#include "Platform/Power/SystemProgressIndicator.h"
#include "Tests/Power/FakeLogind.h"
#include "Tests/TestBus.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

const QString reason = QStringLiteral("com.zorvex.test");

bool waitFor(const std::function<bool()> &predicate) {
    for (const QDeadlineTimer deadline(5000); !deadline.hasExpired();) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        if (predicate()) return true;
    }
    return false;
}

// QtDBus keeps its system and session bus for the life of the process: all tests share one daemon.
TestBus &sharedBus() {
    static TestBus bus;
    return bus;
}

class Power : public testing::Test {
protected:
    static void SetUpTestSuite() {
        ASSERT_TRUE(sharedBus().start(QStringLiteral("system")));
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", sharedBus().address());
        qputenv("DBUS_SESSION_BUS_ADDRESS", sharedBus().address());
    }
    void SetUp() override {
        setLogSink([this](const QString &line) { log.append(line); });
        QDBusConnection bus = sharedBus().connection();
        ASSERT_TRUE(
            bus.registerObject(QStringLiteral("/org/freedesktop/login1"), &logind, QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.login1")));
    }
    void TearDown() override {
        sharedBus().connection().unregisterObject(QStringLiteral("/org/freedesktop/login1"));
        setLogSink(nullptr);
    }

    FakeLogind logind;
    QStringList log;
};

TEST_F(Power, HoldsALockUntilTheAssertionGoes) {
    auto assertion = PowerAssertionCreate(reason, 600);
    EXPECT_FALSE(assertion->isHeld()); // nothing waits for the answer
    ASSERT_TRUE(waitFor([&] { return assertion->isHeld(); }));
    EXPECT_EQ(logind.calls, QStringList{QStringLiteral("sleep:idle block com.zorvex.test")});
    EXPECT_TRUE(logind.isHeld(0));

    // No copy may leak into child processes, which would keep the machine awake after us.
    const auto pipe = FileIdentity::ofDescriptor(logind.locks[0].get());
    int copies = 0;
    for (int descriptor = 0; descriptor < 1024; ++descriptor) {
        if (FileIdentity::ofDescriptor(descriptor) != pipe) continue;
        ++copies;
        EXPECT_TRUE(::fcntl(descriptor, F_GETFD) & FD_CLOEXEC) << descriptor;
    }
    EXPECT_GE(copies, 2); // both ends
    assertion = nullptr;
    EXPECT_TRUE(waitFor([&] { return !logind.isHeld(0); }));
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(Power, LetsGoWhenTheTimeIsOver) {
    const auto assertion = PowerAssertionCreate(reason, 0.05);
    ASSERT_TRUE(waitFor([&] { return logind.locks.size() == 1 && !logind.isHeld(0); }));
    EXPECT_FALSE(assertion->isHeld());
    logind.answersLate = true;
    const auto late = PowerAssertionCreate(reason, 0);
    ASSERT_TRUE(waitFor([&] { return logind.waiting.size() == 1; }));
    logind.answerNow();
    EXPECT_TRUE(waitFor([&] { return !logind.isHeld(1); }));
    EXPECT_FALSE(late->isHeld());
}

TEST_F(Power, GivesBackALockThatArrivesAfterTheAssertionWent) {
    logind.answersLate = true;
    auto assertion = PowerAssertionCreate(reason, 600);
    ASSERT_TRUE(waitFor([&] { return logind.waiting.size() == 1; }));
    assertion = nullptr;
    logind.answerNow();
    EXPECT_TRUE(waitFor([&] { return !logind.isHeld(0); }));
}

TEST_F(Power, DelaysSleepWhereItMayNotBlockAndSaysOnceThatItMayDoNeither) {
    logind.refusedModes = {QStringLiteral("block")};
    const auto delaying = PowerAssertionCreate(reason, 600);
    ASSERT_TRUE(waitFor([&] { return delaying->isHeld(); }));
    EXPECT_EQ(logind.calls.last(), QStringLiteral("sleep delay com.zorvex.test"));
    EXPECT_TRUE(log.isEmpty());

    logind.refusedModes = {QStringLiteral("block"), QStringLiteral("delay")};
    const auto first = PowerAssertionCreate(reason, 600);
    const auto second = PowerAssertionCreate(reason, 600);
    ASSERT_TRUE(waitFor([&] { return logind.calls.size() == 6 && !log.isEmpty(); }));
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_FALSE(first->isHeld() || second->isHeld());
    EXPECT_EQ(log.size(), 1);
}

TEST_F(Power, TellsLaunchersWhatIsUnderWay) {
    QDBusConnection bus = sharedBus().connection();
    LauncherEar ear;
    ASSERT_TRUE(bus.connect(QString(), QString(), QStringLiteral("com.canonical.Unity.LauncherEntry"),
                            QStringLiteral("Update"), &ear, SLOT(update(QString, QVariantMap))));
    // The rule is in force once the bus has answered a later call.
    ASSERT_TRUE(bus.interface()->isServiceRegistered(QStringLiteral("org.freedesktop.login1")).isValid());
    setSystemProgressIndicator(true, 1800);
    setSystemProgressIndicator(false, 1800);
    setSystemProgressIndicator(true, 0);
    setSystemProgressIndicator(true, 1800); // renewed: the time-out before it no longer counts
    setSystemProgressIndicator(true, 0);
    ASSERT_TRUE(waitFor([&] { return ear.heard.size() >= 6; }));
    EXPECT_EQ(ear.heard, (QList<bool>{true, false, true, true, true, false}));
    EXPECT_EQ(ear.entry, QStringLiteral("application://korvane-sheet.desktop"));
}

TEST(PowerWithoutBus, ChangesNothing) {
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // a process of its own, since QtDBus keeps its buses
    EXPECT_EXIT(
        {
            qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent");
            qunsetenv("DBUS_SESSION_BUS_ADDRESS");
            qputenv("XDG_RUNTIME_DIR", "/nonexistent");
            const auto assertion = PowerAssertionCreate(reason, 600);
            const auto other = PowerAssertionCreate(reason, 600);
            setSystemProgressIndicator(true, 1800);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
            std::_Exit(assertion->isHeld() ? 1 : 0);
        },
        testing::ExitedWithCode(0), "^[^\n]*no system bus\n$");
}

} // namespace
} // namespace korvane

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
