// A configuration folder of its own, without a keyring, and the log lines that a test causes.
#pragma once

#include "Platform/Accounts/ACAccountStore.h"
#include "Tests/Support/Testing.h"

namespace korvane::test {

class AccountsFixture : public testing::Test {
protected:
    AccountsFixture() {
        home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", {});
        home.setEnvironment("KORVANE_SECRETS", {});
    }

    static ACAccountCredential credentialOf(const char *owner) {
        const QString name = QLatin1String(owner);
        return {name + QStringLiteral("-key"), name + QStringLiteral("-hush1"), name + QStringLiteral("-hush2"),
                name + QStringLiteral("-hush3")};
    }
    // Stores an account with that credential, or one with the credential of its user's name.
    std::shared_ptr<ACAccount> add(const ACAccountType &type, const char *username, const char *credential = nullptr,
                                   std::optional<NSError> *error = nullptr) {
        return store.saveAccount(type, QString::fromUtf8(username), credentialOf(credential ? credential : username),
                                 error);
    }

    const ACAccountType flickr{ACAccountTypeIdentifierFlickr};
    const ACAccountType vimeo{ACAccountTypeIdentifierVimeo};
    const QString accounts = QStringLiteral("config/korvane/accounts.json"); // below the home folder
    const QString credentials = QStringLiteral("config/korvane/credentials.json");
    TemporaryHome home;
    LogCapture log;
    ACAccountStore store;
};

} // namespace korvane::test
