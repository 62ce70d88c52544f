// Accounts with their credentials in the private file.
#include "Platform/Accounts/ACError.h"
#include "Tests/Accounts/AccountsFixture.h"

#include <sys/stat.h>
#include <unistd.h>

namespace korvane::test {
namespace {

class AccountStore : public AccountsFixture {};

TEST_F(AccountStore, KeepsAccountsInOrderAndInUseAndTheirSecretsOutOfTheList) {
    const auto ada = add(flickr, "ada");
    const auto max = add(vimeo, "ada", "max");
    const auto eva = add(flickr, "eva é", "eva");
    ASSERT_TRUE(ada && max && eva);

    const auto found = store.accountsWithAccountType(store.accountTypeWithAccountTypeIdentifier(flickr.identifier()));
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0]->identifier(), ada->identifier());
    EXPECT_EQ(found[1]->username(), QStringLiteral("eva é"));
    EXPECT_EQ(found[1]->credential(), credentialOf("eva"));
    EXPECT_EQ(store.accountWithIdentifier(max->identifier())->credential(), credentialOf("max"));
    EXPECT_EQ(store.accountWithIdentifier(max->identifier())->accountType(), vimeo);
    EXPECT_EQ(store.accountWithIdentifier(QStringLiteral("nobody")), nullptr);

    ASSERT_TRUE(store.useAccount(ada->identifier()));
    EXPECT_EQ(store.accountInUse(flickr.identifier())->credential(), credentialOf("ada"));
    EXPECT_EQ(store.accountInUse(vimeo.identifier())->identifier(), max->identifier());
    std::optional<NSError> error;
    EXPECT_FALSE(store.useAccount(QStringLiteral("nobody"), &error));
    EXPECT_EQ(error->code(), ACErrorAccountMissing);

    // Fresh objects: what one job hangs on its account is not seen by another.
    found[0]->setUploadContext(std::make_shared<UploadContext>());
    EXPECT_EQ(store.accountWithIdentifier(ada->identifier())->uploadContext(), nullptr);

    for (const QString &file : {accounts, credentials}) {
        struct stat status;
        ASSERT_EQ(::stat(qPrintable(home.path(file)), &status), 0) << qPrintable(file);
        EXPECT_EQ(status.st_mode & 0777, 0600U) << qPrintable(file);
    }
    EXPECT_TRUE(says(home.contents(credentials), "eva-hush2"));
    EXPECT_FALSE(says(home.contents(accounts), "hush"));
    EXPECT_FALSE(says(home.contents(accounts), "-key"));
    EXPECT_FALSE(says(log.lines().join(u' '), "hush"));
    EXPECT_EQ(log.lines().filter(QStringLiteral("credentials.json")).size(), 1);
}

TEST_F(AccountStore, KeepsOthersOutOfTheFileOfSecrets) {
    ASSERT_TRUE(add(flickr, "ada"));
    const QByteArray path = home.path(credentials).toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0644), 0);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(store.accountInUse(flickr.identifier())->credential(), credentialOf("ada"));
    struct stat status;
    ASSERT_EQ(::stat(path.constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    EXPECT_EQ(log.lines().filter(QStringLiteral("could be read by other users")).size(), 1);

    if (::chown(path.constData(), 1, 1) != 0) GTEST_SKIP() << "only root can give it to somebody else";
    std::optional<NSError> error;
    EXPECT_EQ(store.accountInUse(flickr.identifier())->credential(&error), std::nullopt);
    EXPECT_TRUE(says(error, "belongs to another user"));
    EXPECT_EQ(add(flickr, "eva", "eva", &error), nullptr);
    EXPECT_FALSE(says(home.contents(credentials), "eva-"));
}

TEST_F(AccountStore, ReplacesTheCredentialOfAKnownAccountAndRemovesItWithTheAccount) {
    const auto first = add(flickr, "ada", "old");
    ASSERT_TRUE(add(flickr, "eva"));
    EXPECT_EQ(first->credential(), credentialOf("old"));
    const auto second = add(flickr, "ada", "new");
    EXPECT_EQ(second->identifier(), first->identifier());
    EXPECT_EQ(second->credential(), credentialOf("new"));
    EXPECT_EQ(first->credential(), credentialOf("old")) << "kept by the object that has read it";
    EXPECT_EQ(store.accountInUse(flickr.identifier())->username(), QStringLiteral("ada")) << "who signed in last";
    EXPECT_FALSE(says(home.contents(credentials), "old-"));

    const auto third = store.accountWithIdentifier(first->identifier());
    EXPECT_TRUE(store.removeAccount(first->identifier()));
    EXPECT_EQ(third->credential(), std::nullopt);
    EXPECT_FALSE(says(home.contents(credentials), "new-"));
    ASSERT_EQ(store.accountsWithAccountType(flickr).size(), 1U);
    EXPECT_EQ(store.accountsWithAccountType(flickr)[0]->credential(), credentialOf("eva"));
    std::optional<NSError> error;
    EXPECT_FALSE(store.removeAccount(first->identifier(), &error));
    EXPECT_EQ(error->code(), ACErrorAccountMissing);
}

TEST_F(AccountStore, RefusesWhatCannotBeAnAccount) {
    const auto refusal = [this](const ACAccountType &type, const char *username,
                                const ACAccountCredential &credential) {
        std::optional<NSError> error;
        EXPECT_EQ(store.saveAccount(type, QString::fromUtf8(username), credential, &error), nullptr);
        return error ? error->code() : 0;
    };
    const ACAccountCredential good = credentialOf("ada");
    ACAccountCredential withoutToken = good;
    withoutToken.token.clear();
    EXPECT_EQ(refusal(ACAccountType(QStringLiteral("com.example")), "ada", good), ACErrorAccountTypeInvalid);
    EXPECT_EQ(refusal(flickr, "", good), ACErrorCredentialInvalid);
    EXPECT_EQ(refusal(flickr, "a\nb", good), ACErrorCredentialInvalid);
    EXPECT_EQ(refusal(flickr, "ada", withoutToken), ACErrorCredentialInvalid);
    EXPECT_FALSE(QFile::exists(home.path(accounts)));
}

TEST_F(AccountStore, SkipsAndKeepsEntriesThatItDoesNotUnderstand) {
    ASSERT_TRUE(add(flickr, "ada"));
    QByteArray list = home.contents(accounts);
    list.replace("\"accounts\": [", "\"accounts\": [ 5, {\"identifier\": 7, \"type\": \"later\"}, ");
    home.file(accounts, list);
    EXPECT_EQ(store.accountsWithAccountType(flickr).size(), 1U);
    ASSERT_TRUE(add(flickr, "eva"));
    EXPECT_EQ(store.accountsWithAccountType(flickr).size(), 2U);
    EXPECT_TRUE(says(home.contents(accounts), "\"later\""));
}

TEST_F(AccountStore, KeepsADamagedListAsideAndSaysSoUntilAnAccountIsAdded) {
    for (const QByteArray damaged : {R"({"accounts": 7})", R"({"accounts": {"a": [1]}})", "{\"acc"}) {
        const QString aside = accounts + QStringLiteral(".damaged");
        QFile::remove(home.path(aside));
        home.file(accounts, damaged);
        for (int i = 0; i < 2; ++i) {
            std::optional<NSError> error;
            EXPECT_TRUE(store.accountsWithAccountType(flickr, &error).empty());
            EXPECT_TRUE(says(error, home.path(aside).toUtf8() + ". Sign in again")) << damaged.constData();
        }
        EXPECT_EQ(home.contents(aside), damaged);
        ASSERT_TRUE(add(flickr, "ada"));
        std::optional<NSError> error;
        EXPECT_TRUE(store.accountsWithAccountType(vimeo, &error).empty());
        EXPECT_FALSE(error);
    }
    home.file(accounts, R"({"accounts": [7]})");
    std::optional<NSError> error;
    EXPECT_TRUE(store.accountsWithAccountType(flickr, &error).empty());
    EXPECT_TRUE(says(error, "No account in"));
    ASSERT_TRUE(add(flickr, "ada"));
    EXPECT_TRUE(says(home.contents(accounts), "7,")) << "not ours to throw away";
}

TEST_F(AccountStore, LeavesNoSecretBehindWhenTheListCannotBeWritten) {
    ASSERT_TRUE(add(flickr, "ada"));
    ASSERT_TRUE(QFile::remove(home.path(accounts)));
    ASSERT_TRUE(QFile::link(home.path(u"no/such/folder"), home.path(accounts)));
    std::optional<NSError> error;
    EXPECT_EQ(add(flickr, "eva", "eva", &error), nullptr);
    EXPECT_TRUE(says(error, "could not be written"));
    EXPECT_TRUE(says(home.contents(credentials), "ada-"));
    EXPECT_FALSE(says(home.contents(credentials), "eva-"));
}

} // namespace
} // namespace korvane::test
