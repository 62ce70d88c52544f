// Sign-ins at the stand-in, step by step, by a client that signs on its own.
#include "Tests/StandIn/Clients.h"
#include "Tests/Support/ScriptedBrowser.h"

using namespace korvane;
using namespace korvane::test;
using standin::StandIn;
using standin::valueOf;

namespace {

using Form = standin::Parameters;

const char *const callback = "http://127.0.0.1:9/back?from=here";

// An application of one of the services.
class Application {
public:
    Application(const StandIn &server, standin::Credential application, const char *path, const char *permission)
        : _server(server), _application(std::move(application)), _path(path), _permission(permission) {}

    // What a step is answered, signed with that token.
    QByteArray step(const char *name, const OAuthParameters &protocol, const Form &token = {}) {
        const std::string target = std::string(_path) + '/' + name;
        SignedClient client(_server, _userWith(token));
        const auto answer = client.Post(target, client.authorization("POST", target, {}, protocol), "",
                                        "application/x-www-form-urlencoded");
        return answer ? QByteArray::fromStdString(answer->body) : QByteArray();
    }
    Form requestToken(const char *back = callback) {
        return standin::decodedForm(step("request_token", {{QStringLiteral("oauth_callback"), QLatin1String(back)}}));
    }
    QByteArray accessToken(const Form &token, const QString &verifier) {
        return step("access_token", {{QStringLiteral("oauth_verifier"), verifier}}, token);
    }
    QString page(const Form &token) const {
        return _server.url() + QLatin1String(_path) + QStringLiteral("/authorize?") + QLatin1String(_permission) +
               QStringLiteral("=write&oauth_token=") + QString::fromUtf8(valueOf(token, "oauth_token"));
    }
    // The whole way.
    standin::Credential signIn() {
        const Form token = requestToken("oob");
        return _userWith(standin::decodedForm(accessToken(token, decide(page(token), "allow").code())));
    }

private:
    standin::Credential _userWith(const Form &token) const {
        standin::Credential user = _application;
        user.token = valueOf(token, "oauth_token");
        user.tokenSecret = valueOf(token, "oauth_token_secret");
        return user;
    }

    const StandIn &_server;
    const standin::Credential _application;
    const char *const _path;
    const char *const _permission;
};

class SignInDesk : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.start()); }

    StandIn server;
    Application flickr{server, StandIn::flickrCredential(), "/services/oauth", "perms"};
    Application vimeo{server, StandIn::vimeoCredential(), "/oauth", "permission"};
};

} // namespace

TEST_F(SignInDesk, GivesRequestTokensOnlyToItsApplication) {
    const auto problem = [](const QByteArray &answer) {
        return valueOf(standin::decodedForm(answer), "oauth_problem");
    };
    const OAuthParameters back{{QStringLiteral("oauth_callback"), QLatin1String(callback)}};
    EXPECT_EQ(valueOf(flickr.requestToken(), "oauth_callback_confirmed"), "true");
    EXPECT_EQ(problem(flickr.step("request_token", {})), "parameter_absent");
    EXPECT_EQ(problem(flickr.step("request_token", back, {{"oauth_token", "any"}})), "parameter_rejected");
    for (const char *bad : {"", "javascript:alert(1)", "http://", "/back", "http://h/#f"})
        EXPECT_EQ(valueOf(flickr.requestToken(bad), "oauth_problem"), "parameter_absent") << bad;
    Application stranger(server, StandIn::vimeoCredential(), "/services/oauth", "perms");
    EXPECT_EQ(problem(stranger.step("request_token", back)), "consumer_key_unknown");
}

TEST_F(SignInDesk, AsksThePersonAndSendsThemBack) {
    const Form token = flickr.requestToken();
    EXPECT_EQ(visit(flickr.page({{"oauth_token", "unknown"}})).status, 400);
    EXPECT_EQ(visit(vimeo.page(token)).status, 400) << "another service's";
    EXPECT_EQ(visit(flickr.page(token).replace(QStringLiteral("write"), QStringLiteral("read"))).status, 400);
    EXPECT_EQ(server.protocolErrors().size(), 1);

    EXPECT_TRUE(says(flickr.accessToken(token, QStringLiteral("1")), "permission_unknown"));
    EXPECT_TRUE(decide(flickr.page(token), "allow").location.startsWith(QLatin1String(callback) + u'&'));
    EXPECT_EQ(decide(flickr.page(token), "refuse").status, 400) << "it is decided";

    const Form refused = vimeo.requestToken();
    decide(vimeo.page(refused), "refuse");
    EXPECT_TRUE(says(vimeo.accessToken(refused, QStringLiteral("1")), "token_rejected"));
}

TEST_F(SignInDesk, ExchangesARequestTokenOnceForItsVerifier) {
    const Form token = vimeo.requestToken("oob");
    const QString code = decide(vimeo.page(token), "allow").code();
    Form forged = token;
    forged.last().second = "forged";
    EXPECT_TRUE(says(vimeo.accessToken(forged, code), "signature_invalid"));
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(says(vimeo.accessToken(token, QStringLiteral("1")), "verifier_invalid"));
    EXPECT_TRUE(says(vimeo.accessToken(token, code), "oauth_token_secret="));
    EXPECT_TRUE(says(vimeo.accessToken(token, code), "token_rejected")) << "used up";

    const Form guessed = flickr.requestToken("oob");
    const QString right = decide(flickr.page(guessed), "allow").code();
    for (int i = 0; i < 3; ++i)
        flickr.accessToken(guessed, QStringLiteral("1"));
    EXPECT_TRUE(says(flickr.accessToken(guessed, right), "token_rejected")) << "no guessing";
}

TEST(SignInDeskState, KeepsAccessTokensOverRestarts) {
    const QTemporaryDir folder;
    std::optional<standin::Credential> user;
    for (int run = 0; run < 2; ++run) {
        StandIn server({.stateFolder = folder.path()});
        ASSERT_TRUE(server.start());
        Application vimeo(server, StandIn::vimeoCredential(), "/oauth", "permission");
        if (!user) user = vimeo.signIn();
        SignedClient client(server, *user);
        const auto login = client.postForm("/api/rest/v2?format=json", {{"method", "vimeo.test.login"}});
        EXPECT_TRUE(says(QByteArray::fromStdString(login->body), "\"username\":\"standin\""));
        standin::Credential crossed = StandIn::flickrCredential();
        crossed.token = user->token;
        crossed.tokenSecret = user->tokenSecret;
        EXPECT_EQ(SignedClient(server, crossed).postForm("/services/rest/", {{"method", "flickr.test.login"}})->status,
                  401);
    }
}
