// A hand-over whose service or bus goes away at the worst moment.
#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrRemoteSessionProtocol.h"
#include "Korvane/FlickrUploadSession.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/RemoteServiceSession.h"
#include "Platform/Social/ServiceSettings.h"
#include "Platform/Social/UploadsInterface.h"
#include "Tests/Support/TestBus.h"
#include "Tests/Support/Testing.h"

#include <QDBusMessage>

#include <future>

using namespace korvane;
using namespace korvane::test;

namespace {

// Agrees with every client on the settings.
class Greeting : public QDBusVirtualObject {
public:
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override {
        return connection.send(message.createReply(ServiceSettings::current().dictionary()));
    }
    QString introspect(const QString &) const override { return {}; }
};

class Service : public RemoteServiceSession {
public:
    using RemoteServiceSession::RemoteServiceSession;
    std::optional<RemoteMessage> message;

protected:
    void received(const QVariantList &, const RemoteMessage &received, const XPCTransferCompletion &) override {
        message = received;
    }
};

class HandOver : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(bus.emplace().start());
        home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", bus->address());
        auto connection = QDBusConnection::connectToBus(QString::fromLatin1(bus->address()), name);
        connection.registerVirtualObject(UploadsInterface::path(), &greeting);
        ASSERT_TRUE(service.registerOn(connection) && connection.registerService(FlickrRemoteServiceName));
    }
    void TearDown() override { QDBusConnection::disconnectFromBus(name); }
    // What the client is told, after what happens once its message is there.
    std::optional<NSError> share(const std::function<void()> &happens) {
        auto told = std::async(std::launch::async, [] {
            std::optional<NSError> error;
            EXPECT_FALSE(FlickrUploadSession::init()->uploadPosts({FlickrPost::init()}, &error));
            return error;
        });
        EXPECT_TRUE(waitFor([&] { return service.message.has_value(); }));
        happens();
        EXPECT_TRUE(waitFor([&] { return told.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
        return told.get();
    }

    const QString name = QStringLiteral("service");
    TemporaryHome home;
    std::optional<TestBus> bus;
    Greeting greeting;
    Service service{FlickrRemoteServiceName, FlickrRemoteSessionProtocol::interface()};
};

} // namespace

TEST_F(HandOver, ThatMayHaveBeenTakenIsNotToldAsRefused) {
    const auto error = share([this] {
        EXPECT_TRUE(service.message->isAwaited());
        service.message.reset();                  // which holds on to the connection
        QDBusConnection::disconnectFromBus(name); // as a service ends that may have recorded all
    });
    ASSERT_TRUE(says(error, "may have taken over"));
    EXPECT_EQ(error->code(), RemoteServiceErrorUnknownEnd);
}

TEST_F(HandOver, IsNoLongerAwaitedWithoutABus) {
    EXPECT_TRUE(share([this] { bus.reset(); }));
    EXPECT_FALSE(service.message->isAwaited());
}
