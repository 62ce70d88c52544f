// The tokens of sign-ins at the stand-in.
#include "StandIn/TokenStore.h"
#include "Tests/Support/Testing.h"

using standin::TokenStore;

TEST(TokenStore, GivesAnAccessTokenOnceForItsVerifierAndKeepsItOverRestarts) {
    const QTemporaryDir folder;
    QString error;
    std::optional<TokenStore> store(std::in_place);
    ASSERT_TRUE(store->open(folder.path(), &error)) << qPrintable(error);
    const QByteArray token = store->addRequestToken("key", "oob").token;
    QByteArray problem;
    const auto exchange = [&](const char *application, const QByteArray &verifier) {
        return store->exchange(application, token, verifier, &problem);
    };
    EXPECT_FALSE(exchange("key", "1"));
    EXPECT_EQ(problem, "permission_unknown");
    EXPECT_FALSE(store->allow("other", token));
    const QByteArray verifier = *store->allow("key", token);
    EXPECT_FALSE(store->allow("key", token)) << "it is decided";
    EXPECT_FALSE(exchange("other", verifier));
    EXPECT_FALSE(exchange("key", "1"));
    EXPECT_EQ(problem, "verifier_invalid");
    const auto access = exchange("key", verifier);
    ASSERT_TRUE(access);
    EXPECT_FALSE(exchange("key", verifier)) << "used up";
    EXPECT_EQ(problem, "token_rejected");

    store.emplace();
    ASSERT_TRUE(store->open(folder.path(), &error)) << qPrintable(error);
    EXPECT_EQ(store->accessSecret("key", access->token), access->secret);
    EXPECT_FALSE(store->accessSecret("other", access->token));
}
