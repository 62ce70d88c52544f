// Accounts with their credentials in the private file.
#include "Platform/Accounts/ACError.h"
#include "Tests/Accounts/AccountsFixture.h"

#include <sys/stat.h>
#include <sys/wait.h>

#include <set>
#include <thread>

namespace korvane {
namespace {

class AccountStore : public AccountsFixture {};

TEST_F(AccountStore, KeepsAccountsInOrderAndTheirSecretsOutOfTheList) {
    const auto ada = store.saveAccount(flickr, QStringLiteral("ada"), credentialOf("ada"));
    const auto max = store.saveAccount(vimeo, QStringLiteral("ada"), credentialOf("max"));
    const auto eva = store.saveAccount(flickr, QStringLiteral("eva é"), credentialOf("eva"));
    ASSERT_TRUE(ada && max && eva);

    const auto found = store.accountsWithAccountType(store.accountTypeWithAccountTypeIdentifier(flickr.identifier()));
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0]->identifier(), ada->identifier());
    EXPECT_EQ(found[1]->username(), QStringLiteral("eva é"));
    EXPECT_EQ(found[1]->credential(), credentialOf("eva"));
    EXPECT_EQ(store.accountWithIdentifier(max->identifier())->credential(), credentialOf("max"));
    EXPECT_EQ(store.accountWithIdentifier(max->identifier())->accountType(), vimeo);
    EXPECT_EQ(store.accountWithIdentifier(QStringLiteral("nobody")), nullptr);

    // Fresh objects: what one job hangs on its account is not seen by another.
    found[0]->setUploadContext(std::make_shared<UploadContext>());
    EXPECT_EQ(store.accountWithIdentifier(ada->identifier())->uploadContext(), nullptr);

    for (const auto *name : {"accounts.json", "credentials.json"}) {
        struct stat status;
        ASSERT_EQ(::stat(QFile::encodeName(path(name)).constData(), &status), 0) << name;
        EXPECT_EQ(status.st_mode & 0777, 0600U) << name;
    }
    EXPECT_TRUE(contents("credentials.json").contains("eva-hush2"));
    EXPECT_FALSE(contents("accounts.json").contains("hush"));
    EXPECT_FALSE(contents("accounts.json").contains("-key"));
    EXPECT_FALSE(log.join(u' ').contains(QStringLiteral("hush")));
    EXPECT_EQ(log.filter(QStringLiteral("credentials.json")).size(), 2); // once for each reason, however many accounts
}

TEST_F(AccountStore, ReplacesTheCredentialOfAKnownAccountAndKeepsItsIdentifier) {
    const auto first = store.saveAccount(flickr, QStringLiteral("ada"), credentialOf("old"));
    ASSERT_TRUE(store.saveAccount(flickr, QStringLiteral("eva"), credentialOf("eva")));
    EXPECT_EQ(first->credential(), credentialOf("old"));
    const auto second = store.saveAccount(flickr, QStringLiteral("ada"), credentialOf("new"));
    EXPECT_EQ(second->identifier(), first->identifier());
    EXPECT_EQ(second->credential(), credentialOf("new"));
    EXPECT_EQ(first->credential(), credentialOf("old")); // kept by the object that has read it
    ASSERT_EQ(store.accountsWithAccountType(flickr).size(), 2U);
    EXPECT_EQ(store.accountsWithAccountType(flickr)[0]->username(), QStringLiteral("ada"));
    EXPECT_FALSE(contents("credentials.json").contains("old-"));
}

TEST_F(AccountStore, RemovesTheCredentialWithTheAccount) {
    const auto ada = store.saveAccount(flickr, QStringLiteral("ada"), credentialOf("ada"));
    const auto eva = store.saveAccount(flickr, QStringLiteral("eva"), credentialOf("eva"));
    std::optional<NSError> error;
    EXPECT_TRUE(store.removeAccount(ada->identifier(), &error));
    ASSERT_EQ(store.accountsWithAccountType(flickr).size(), 1U);
    EXPECT_EQ(store.accountsWithAccountType(flickr)[0]->credential(), credentialOf("eva"));
    EXPECT_FALSE(contents("credentials.json").contains("ada-"));
    EXPECT_FALSE(store.removeAccount(ada->identifier(), &error));
    EXPECT_EQ(error->code(), ACErrorAccountMissing);
    EXPECT_EQ(ada->credential(), std::nullopt);
}

TEST_F(AccountStore, RefusesWhatCannotBeAnAccount) {
    const ACAccountCredential good = credentialOf("ada");
    struct {
        const char *what;
        ACAccountType type;
        QString username;
        ACAccountCredential credential;
        ACErrorCode code;
    } const cases[] = {
        {"type", ACAccountType(QStringLiteral("com.example")), QStringLiteral("ada"), good, ACErrorAccountTypeInvalid},
        {"no name", flickr, {}, good, ACErrorCredentialInvalid},
        {"line break", flickr, QStringLiteral("a\nb"), good, ACErrorCredentialInvalid},
        {"no token",
         flickr,
         QStringLiteral("ada"),
         {good.consumerKey, good.consumerSecret, {}, good.tokenSecret},
         ACErrorCredentialInvalid},
    };
    for (const auto &[what, type, username, credential, code] : cases) {
        std::optional<NSError> error;
        EXPECT_EQ(store.saveAccount(type, username, credential, &error), nullptr) << what;
        ASSERT_TRUE(error) << what;
        EXPECT_EQ(error->code(), code) << what;
    }
    EXPECT_FALSE(QFile::exists(path("accounts.json")));
}

TEST_F(AccountStore, SkipsAndKeepsEntriesThatItDoesNotUnderstand) {
    ASSERT_TRUE(store.saveAccount(flickr, QStringLiteral("ada"), credentialOf("ada")));
    QByteArray list = contents("accounts.json");
    list.replace("\"accounts\": [", "\"accounts\": [ 5, {\"identifier\": 7, \"type\": \"later\"}, ");
    QFile file(path("accounts.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(list);
    file.close();
    EXPECT_EQ(store.accountsWithAccountType(flickr).size(), 1U);
    ASSERT_TRUE(store.saveAccount(flickr, QStringLiteral("eva"), credentialOf("eva")));
    EXPECT_EQ(store.accountsWithAccountType(flickr).size(), 2U);
    EXPECT_TRUE(contents("accounts.json").contains("\"later\""));
}

TEST_F(AccountStore, LeavesNoSecretBehindWhenTheListCannotBeWritten) {
    ASSERT_TRUE(store.saveAccount(flickr, QStringLiteral("ada"), credentialOf("ada")));
    QFile file(path("accounts.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(R"({"accounts": "none"})");
    file.close();
    std::optional<NSError> error;
    EXPECT_EQ(store.saveAccount(flickr, QStringLiteral("eva"), credentialOf("eva"), &error), nullptr);
    EXPECT_EQ(error->code(), ACErrorAccountListDamaged);
    EXPECT_FALSE(contents("credentials.json").contains("eva-"));
    EXPECT_EQ(contents("accounts.json"), R"({"accounts": "none"})");
}

TEST_F(AccountStore, LosesNothingWhenProcessesAddAccountsAtOnce) {
    const auto add = [this](const char *prefix) {
        bool added = true;
        for (int i = 0; i < 15; ++i) {
            const QString username = QLatin1String(prefix) + QString::number(i);
            added = store.saveAccount(flickr, username, credentialOf(username.toLatin1())) && added;
            added = store.saveAccount(flickr, QStringLiteral("both%1").arg(i), credentialOf("both")) && added;
        }
        return added;
    };
    const pid_t child = ::fork();
    if (child == 0) ::_exit(add("child") ? 0 : 1);
    EXPECT_TRUE(add("parent"));
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    const auto accounts = store.accountsWithAccountType(flickr);
    EXPECT_EQ(accounts.size(), 45U); // an account that both added is one account
    std::set<QString> identifiers;
    for (const auto &account : accounts) {
        identifiers.insert(account->identifier());
        EXPECT_TRUE(account->credential()) << account->username().toStdString();
    }
    EXPECT_EQ(identifiers.size(), 45U);
}

} // namespace
} // namespace korvane
