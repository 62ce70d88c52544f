// Power assertions against a logind on a private bus, and the launcher's mark.
#include "Platform/Foundation/NSData.h"
#include "Platform/Power/PowerAssertion.h"
#include "Platform/Power/SystemProgressIndicator.h"
#include "Tests/Support/FakeLogind.h"
#include "Tests/Support/Testing.h"

#include <QDBusConnectionInterface>
#include <QDBusReply>

namespace korvane::test {
namespace {

const QString reason = QStringLiteral("com.zorvex.test");

class Power : public testing::Test {
protected:
    FakeLogind logind;
    LogCapture log;
};

TEST_F(Power, HoldsALockUntilTheAssertionGoes) {
    auto assertion = PowerAssertionCreate(reason, 600);
    EXPECT_FALSE(assertion->isHeld()) << "nothing waits for the answer";
    ASSERT_TRUE(waitFor([&] { return assertion->isHeld(); }));
    EXPECT_EQ(logind.calls, QStringList{QStringLiteral("sleep:idle block com.zorvex.test")});
    EXPECT_EQ(logind.held(), 1);

    // No copy may leak into child processes, which would keep the machine awake after us.
    const auto pipe = FileIdentity::ofDescriptor(logind.locks[0].get());
    int copies = 0;
    for (int descriptor = 0; descriptor < 1024; ++descriptor) {
        if (FileIdentity::ofDescriptor(descriptor) != pipe) continue;
        ++copies;
        EXPECT_TRUE(::fcntl(descriptor, F_GETFD) & FD_CLOEXEC) << descriptor;
    }
    EXPECT_GE(copies, 2) << "both ends";
    assertion = nullptr;
    EXPECT_TRUE(waitFor([&] { return logind.held() == 0; }));
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(Power, LetsGoWhenTheTimeIsOver) {
    const auto assertion = PowerAssertionCreate(reason, 0.05);
    ASSERT_TRUE(waitFor([&] { return logind.locks.size() == 1 && logind.held() == 0; }));
    EXPECT_FALSE(assertion->isHeld());
}

TEST_F(Power, GivesBackALockThatArrivesTooLate) {
    logind.answersLate = true;
    auto gone = PowerAssertionCreate(reason, 600);
    const auto timedOut = PowerAssertionCreate(reason, 0);
    ASSERT_TRUE(waitFor([&] { return logind.waiting.size() == 2; }));
    gone = nullptr;
    logind.answerNow();
    EXPECT_TRUE(waitFor([&] { return logind.held() == 0; }));
    EXPECT_FALSE(timedOut->isHeld());
}

TEST_F(Power, DelaysSleepWhereItMayNotBlockAndSaysOnceThatItMayDoNeither) {
    logind.refusedModes = {QStringLiteral("block")};
    const auto delaying = PowerAssertionCreate(reason, 600);
    ASSERT_TRUE(waitFor([&] { return delaying->isHeld(); }));
    EXPECT_EQ(logind.calls.last(), QStringLiteral("sleep delay com.zorvex.test"));
    EXPECT_EQ(log.lines(), QStringList());

    logind.refusedModes = {QStringLiteral("block"), QStringLiteral("delay")};
    const auto first = PowerAssertionCreate(reason, 600);
    const auto second = PowerAssertionCreate(reason, 600);
    ASSERT_TRUE(waitFor([&] { return logind.calls.size() == 6 && !log.lines().isEmpty(); }));
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_FALSE(first->isHeld() || second->isHeld());
    EXPECT_EQ(log.lines().size(), 1);
}

// Hears what launchers are told.
class LauncherEar : public QObject {
    Q_OBJECT

public:
    QString entry;
    QList<bool> heard;

public Q_SLOTS:
    void update(const QString &application, const QVariantMap &properties) {
        entry = application;
        heard.append(properties.value(QStringLiteral("progress-visible")).toBool());
    }
};

TEST_F(Power, TellsLaunchersWhatIsUnderWay) {
    QDBusConnection bus = FakeLogind::bus();
    LauncherEar ear;
    ASSERT_TRUE(bus.connect(QString(), QString(), QStringLiteral("com.canonical.Unity.LauncherEntry"),
                            QStringLiteral("Update"), &ear, SLOT(update(QString, QVariantMap))));
    // The rule is in force once the bus has answered a later call.
    ASSERT_TRUE(bus.interface()->isServiceRegistered(QStringLiteral("org.freedesktop.login1")).isValid());
    setSystemProgressIndicator(true, 1800);
    setSystemProgressIndicator(false, 1800);
    setSystemProgressIndicator(true, 0);
    setSystemProgressIndicator(true, 1800); // renewed: nothing to tell, and the time-out before it no longer counts
    setSystemProgressIndicator(true, 0);
    ASSERT_TRUE(waitFor([&] { return ear.heard.size() >= 4; }));
    EXPECT_EQ(ear.heard, (QList<bool>{true, false, true, false}));
    EXPECT_EQ(ear.entry, QStringLiteral("application://korvane-sheet.desktop"));
}

TEST(PowerWithoutBus, ChangesNothing) {
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
} // namespace korvane::test

#include "PowerTest.moc"
