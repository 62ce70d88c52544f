// Credentials in the keyring of a private session bus.
#include "Tests/Accounts/AccountsFixture.h"
#include "Tests/Support/ScriptedServer.h"
#include "Tests/Support/TestBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QStandardPaths>
#include <QUrl>

namespace korvane::test {
namespace {

class SessionBusWithoutKeyring : public AccountsFixture {
protected:
    void SetUp() override {
        ASSERT_TRUE(bus.start());
        home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", bus.address());
    }

    TestBus bus;
};

class Keyring : public SessionBusWithoutKeyring {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(SessionBusWithoutKeyring::SetUp());
        const QString program = QStringLiteral("gnome-keyring-daemon");
        if (QStandardPaths::findExecutable(program).isEmpty()) GTEST_SKIP() << "gnome-keyring-daemon is not installed";
        daemon.start(program, {QStringLiteral("--unlock"), QStringLiteral("--components=secrets"),
                               QStringLiteral("--foreground")});
        daemon.write("password");
        daemon.closeWriteChannel();
        ASSERT_TRUE(waitFor([this] {
            return bus.connection().interface()->isServiceRegistered(QStringLiteral("org.freedesktop.secrets")).value();
        }));
    }
    void TearDown() override {
        daemon.terminate();
        daemon.waitForFinished();
    }

    QProcess daemon;
};

TEST_F(Keyring, HoldsTheSecretsOfAccounts) {
    const auto ada = add(flickr, "ada", "old");
    ASSERT_TRUE(add(flickr, "ada"));
    const auto eva = add(vimeo, "eva");
    EXPECT_EQ(ada->credential(), credentialOf("ada"));
    EXPECT_EQ(eva->credential(), credentialOf("eva"));
    EXPECT_TRUE(says(home.contents(accounts), "\"keyring\""));
    EXPECT_FALSE(says(home.contents(accounts), "hush"));
    EXPECT_FALSE(QFile::exists(home.path(credentials)));

    home.setEnvironment("KORVANE_SECRETS", "file");
    EXPECT_EQ(store.accountWithIdentifier(eva->identifier())->credential(), std::nullopt);
    ASSERT_TRUE(add(vimeo, "eva", "file"));
    EXPECT_EQ(store.accountWithIdentifier(eva->identifier())->credential(), credentialOf("file"));
    home.setEnvironment("KORVANE_SECRETS", {});

    const auto again = store.accountWithIdentifier(ada->identifier());
    ASSERT_TRUE(store.removeAccount(ada->identifier()));
    EXPECT_EQ(again->credential(), std::nullopt);
}

TEST_F(Keyring, IsNotAskedForAPasswordWhileLocked) {
    const auto ada = add(flickr, "ada");
    ASSERT_TRUE(ada);
    auto lock = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.secrets"), QStringLiteral("/org/freedesktop/secrets"),
        QStringLiteral("org.freedesktop.Secret.Service"), QStringLiteral("Lock"));
    lock << QVariant::fromValue(QList{QDBusObjectPath(QStringLiteral("/org/freedesktop/secrets/collection/login"))});
    bus.connection().call(lock);
    EXPECT_EQ(ada->credential(), std::nullopt);
    EXPECT_EQ(log.lines().filter(QStringLiteral("locked")).size(), 1);
    std::optional<NSError> error;
    EXPECT_EQ(add(flickr, "eva", "eva", &error), nullptr);
    EXPECT_TRUE(says(error, "KORVANE_SECRETS=file"));
    EXPECT_FALSE(QFile::exists(home.path(credentials)));
}

TEST_F(SessionBusWithoutKeyring, MakesTheFileKeepTheSecrets) {
    const auto ada = add(flickr, "ada");
    ASSERT_TRUE(ada);
    EXPECT_EQ(ada->credential(), credentialOf("ada"));
    EXPECT_TRUE(says(home.contents(credentials), "ada-hush1"));
}

TEST_F(SessionBusWithoutKeyring, MayAlsoBeSilent) {
    const ScriptedServer silent([](ScriptedConnection &connection, int) { connection.waitForEnd(); });
    const int port = QUrl(silent.url()).port();
    home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", "tcp:host=127.0.0.1,port=" + QByteArray::number(port));
    QElapsedTimer timer;
    timer.start();
    std::optional<NSError> error;
    EXPECT_EQ(add(flickr, "eva", "eva", &error), nullptr) << "there may be a keyring";
    EXPECT_LT(timer.elapsed(), 8000);
    EXPECT_TRUE(says(error, "does not answer"));
    EXPECT_FALSE(QFile::exists(home.path(credentials)));
}

} // namespace
} // namespace korvane::test
