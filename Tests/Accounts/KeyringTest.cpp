// Credentials in the keyring of a private session bus.
#include "Tests/Accounts/AccountsFixture.h"
#include "Tests/TestBus.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>

namespace korvane {
namespace {

class Keyring : public AccountsFixture {
protected:
    void SetUp() override {
        ASSERT_TRUE(bus.start(QStringLiteral("session")));
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address());
    }
    void TearDown() override {
        daemon.terminate();
        daemon.waitForFinished();
    }
    void startKeyring() {
        if (QStandardPaths::findExecutable(QStringLiteral("gnome-keyring-daemon")).isEmpty())
            GTEST_SKIP() << "gnome-keyring-daemon is not installed";
        daemon.start(
            QStringLiteral("gnome-keyring-daemon"),
            {QStringLiteral("--unlock"), QStringLiteral("--components=secrets"), QStringLiteral("--foreground")});
        daemon.write("password");
        daemon.closeWriteChannel();
        ASSERT_TRUE(daemon.waitForBytesWritten());
        ASSERT_TRUE(bus.waitForName(QStringLiteral("org.freedesktop.secrets")));
    }

    TestBus bus;
    QProcess daemon;
};

TEST_F(Keyring, HoldsTheSecretsOfAccounts) {
    ASSERT_NO_FATAL_FAILURE(startKeyring());
    if (IsSkipped()) return;
    const auto ada = store.saveAccount(flickr, QStringLiteral("ada"), credentialOf("old"));
    ASSERT_TRUE(store.saveAccount(flickr, QStringLiteral("ada"), credentialOf("ada")));
    const auto eva = store.saveAccount(vimeo, QStringLiteral("eva"), credentialOf("eva"));
    EXPECT_EQ(ada->credential(), credentialOf("ada"));
    EXPECT_EQ(eva->credential(), credentialOf("eva"));
    EXPECT_TRUE(contents("accounts.json").contains("\"keyring\""));
    EXPECT_FALSE(contents("accounts.json").contains("hush"));
    EXPECT_FALSE(QFile::exists(path("credentials.json")));

    qputenv("KORVANE_SECRETS", "file");
    EXPECT_EQ(store.accountWithIdentifier(eva->identifier())->credential(), std::nullopt);
    ASSERT_TRUE(store.saveAccount(vimeo, QStringLiteral("eva"), credentialOf("file")));
    EXPECT_EQ(store.accountWithIdentifier(eva->identifier())->credential(), credentialOf("file"));
    qunsetenv("KORVANE_SECRETS");

    const auto again = store.accountWithIdentifier(ada->identifier());
    ASSERT_TRUE(store.removeAccount(ada->identifier()));
    EXPECT_EQ(again->credential(), std::nullopt);
}

TEST_F(Keyring, IsNotAskedForAPasswordWhileLocked) {
    ASSERT_NO_FATAL_FAILURE(startKeyring());
    if (IsSkipped()) return;
    const auto ada = store.saveAccount(flickr, QStringLiteral("ada"), credentialOf("ada"));
    ASSERT_TRUE(ada);
    bus.call(
        QStringLiteral("org.freedesktop.secrets"), QStringLiteral("/org/freedesktop/secrets"),
        QStringLiteral("org.freedesktop.Secret.Service"), QStringLiteral("Lock"),
        {QVariant::fromValue(QList{QDBusObjectPath(QStringLiteral("/org/freedesktop/secrets/collection/login"))})});
    EXPECT_EQ(ada->credential(), std::nullopt);
    EXPECT_EQ(log.filter(QStringLiteral("locked")).size(), 1);
    std::optional<NSError> error;
    EXPECT_EQ(store.saveAccount(flickr, QStringLiteral("eva"), credentialOf("eva"), &error), nullptr);
    EXPECT_TRUE(error && error->localizedDescription().contains(QStringLiteral("KORVANE_SECRETS=file")));
    EXPECT_FALSE(QFile::exists(path("credentials.json")));
}

TEST_F(Keyring, IsReplacedByTheFileWhereTheBusHasNone) {
    const auto ada = store.saveAccount(flickr, QStringLiteral("ada"), credentialOf("ada"));
    ASSERT_TRUE(ada);
    EXPECT_EQ(ada->credential(), credentialOf("ada"));
    EXPECT_TRUE(contents("credentials.json").contains("ada-hush1"));
}

TEST_F(Keyring, IsReplacedByTheFileWhereItDoesNotAnswer) {
    // A socket that nobody reads: connecting succeeds, the bus never greets.
    const int silent = bus.silentSocket(folder.path() + QStringLiteral("/silent"));
    ASSERT_GE(silent, 0);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(folder.path()) + "/silent");
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(store.saveAccount(flickr, QStringLiteral("ada"), credentialOf("ada")));
    EXPECT_LT(timer.elapsed(), 8000);
    EXPECT_TRUE(contents("credentials.json").contains("ada-hush1"));
    ::close(silent);
}

} // namespace
} // namespace korvane
