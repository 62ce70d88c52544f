// The log switch, the service's session and the client's.
#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrUploadSession.h"
#include "Korvane/KRLog.h"
#include "Korvane/KRRemoteSession.h"
#include "Platform/Power/PowerAssertion.h"
#include "Tests/Support/FakeLogind.h"
#include "Tests/Support/Testing.h"

#include <thread>

using namespace korvane;
using namespace korvane::test;

namespace {

void switchLoggingOn(const TemporaryHome &home) {
    const QString name = QCoreApplication::applicationName() + QStringLiteral(".json");
    home.file(QStringLiteral("config/korvane/preferences/") + name, R"({"KRLoggingEnabled": true})");
}

// Answers with what the test gives it, from a thread of its own.
class FakeService : public FlickrRemoteSessionProtocol {
public:
    void uploadPosts(const QVariantList &posts, const XPCTransferCompletion &reply) override {
        received = posts;
        std::thread([this, reply] { reply(success, error); }).detach();
    }
    QVariantList received;
    std::optional<bool> success;
    std::optional<NSError> error;
};

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

TEST(FlickrUploadSession, PassesOnWhatTheServiceReplies) {
    const auto session = FlickrUploadSession::init();
    const auto service = std::make_shared<FakeService>();
    session->setRemoteSession(service);
    const auto post = FlickrPost::init();
    post->title = QStringLiteral("a");
    const NSError failure(QStringLiteral("D"), 1);
    for (const auto &[success, error] : {std::pair<std::optional<bool>, std::optional<NSError>>{true, std::nullopt},
                                         {true, failure},
                                         {false, failure},
                                         {std::nullopt, std::nullopt}}) {
        service->success = success;
        service->error = error;
        std::optional<NSError> placed = NSError(QStringLiteral("before"), 0);
        EXPECT_EQ(session->uploadPosts({post}, &placed), success.value_or(false));
        EXPECT_EQ(placed, error);
        EXPECT_EQ(session->uploadPosts({post}, nullptr), success.value_or(false));
    }
    EXPECT_EQ(service->received, QVariantList{post->serializedDictionary()});
    session->uploadPosts({}, nullptr);
    EXPECT_EQ(service->received, QVariantList());
    EXPECT_EQ(FlickrUploadSession::sharedSession(), FlickrUploadSession::sharedSession());
    EXPECT_NE(FlickrUploadSession::sharedSession(), session);
}
