// The log switch and the service's session.
#include "Korvane/KRLog.h"
#include "Korvane/KRRemoteSession.h"
#include "Platform/Power/PowerAssertion.h"
#include "Tests/Support/FakeLogind.h"
#include "Tests/Support/Testing.h"

using namespace korvane;
using namespace korvane::test;

namespace {

void switchLoggingOn(const TemporaryHome &home) {
    const QString name = QCoreApplication::applicationName() + QStringLiteral(".json");
    home.file(QStringLiteral("config/korvane/preferences/") + name, R"({"KRLoggingEnabled": true})");
}

} // namespace

TEST(KRLog, IsSwitchedOnceAProcessWhileTheQuestionIsAnsweredAnew) {
    const TemporaryHome home;
    const LogCapture log;
    EXPECT_FALSE(KRIsLoggingEnabled());
    KRLog("Export progress: %f", 0.5);
    switchLoggingOn(home);
    EXPECT_TRUE(KRIsLoggingEnabled());
    KRLog("Export progress: %f", 0.5);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST(KRLogDeathTest, WritesItsLinesWhenSwitchedOnBeforeTheFirst) {
    const auto logAndEnd = [] {
        const TemporaryHome home;
        switchLoggingOn(home);
        KRLog("Setting privacy to %i", 1);
        std::abort();
    };
    EXPECT_DEATH(logAndEnd(), "Setting privacy to 1\n");
}

TEST(KRRemoteSession, HoldsOneAssertionForAllAndRenewsItWhenItIsOld) {
    FakeLogind logind;
    double now = 1000;
    KRRemoteSession::setClock([&now] { return now; });
    // How often logind is asked for a lock. The test's own call, which comes last, shows that no other is on its way.
    const auto locksAskedFor = [&](const std::function<void()> &during) {
        logind.calls.clear();
        during();
        const auto last = PowerAssertionCreate(QStringLiteral("last"), 600);
        EXPECT_TRUE(waitFor([&] { return last->isHeld(); }));
        return logind.calls.filter(QStringLiteral("block com.zorvex.korvane")).size();
    };
    const auto renewals = [&](double at) {
        now = at;
        return locksAskedFor(KRRemoteSession::refreshPowerAssertion);
    };
    EXPECT_EQ(renewals(1000), 0) << "idle";
    EXPECT_EQ(locksAskedFor(KRRemoteSession::incrementPowerAssertion), 1);
    EXPECT_EQ(locksAskedFor(KRRemoteSession::incrementPowerAssertion), 1) << "each starts the time anew";
    EXPECT_EQ(renewals(1300), 0);
    EXPECT_EQ(renewals(1300.5), 1);
    EXPECT_EQ(renewals(1600.5), 0);
    EXPECT_EQ(locksAskedFor(KRRemoteSession::decrementPowerAssertion), 0);
    EXPECT_EQ(renewals(1900), 1) << "one still holds it";
    EXPECT_TRUE(waitFor([&] { return logind.held() == 1; }));
    KRRemoteSession::decrementPowerAssertion();
    EXPECT_TRUE(waitFor([&] { return logind.held() == 0; }));
    EXPECT_EQ(renewals(5000), 0) << "idle again";
    KRRemoteSession::setClock({});
}

TEST(KRRemoteSessionDeathTest, StopsOnADecrementTooMany) {
    EXPECT_DEATH(KRRemoteSession::decrementPowerAssertion(),
                 "\\(_powerAssertionRetainCount > 0\\).*\\+\\[KRRemoteSession "
                 "decrementPowerAssertion\\].*Korvane/KRRemoteSession.*41");
}
