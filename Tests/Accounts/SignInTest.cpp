// The whole sign-in against the stand-in, with a person at a scripted browser.
#include "Platform/Accounts/SignIn.h"
#include "Platform/Accounts/ACError.h"
#include "StandIn/StandIn.h"
#include "Tests/Accounts/AccountsFixture.h"
#include "Tests/Support/ScriptedBrowser.h"
#include "Tests/Support/ScriptedServer.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTcpSocket>

namespace korvane::test {
namespace {

ApplicationKeys keysOf(const standin::Credential &user) {
    return {QString::fromUtf8(user.consumerKey), QString::fromUtf8(user.consumerSecret)};
}

// A sign-in under way, and everything that it says.
struct Attempt {
    std::shared_ptr<SignIn> signIn;
    QString page;
    std::vector<NSError> wrongCodes;
    std::optional<SignedInAccount> account;
    std::optional<NSError> error;
    int endings = 0;

    bool waitForPage() const {
        return waitFor([this] { return !page.isEmpty() || endings > 0; }) && endings == 0;
    }
    bool waitForEnd() const {
        return waitFor([this] { return endings > 0; }) && endings == 1;
    }
    QString said() const { return error ? error->localizedDescription() : QString(); }
};

class SignInTest : public AccountsFixture {
protected:
    SignInTest() {
        EXPECT_TRUE(server.start());
        pointAt(server.url());
    }
    ~SignInTest() override {
        EXPECT_EQ(server.protocolErrors(), QStringList());
        EXPECT_EQ(log.lines().filter(QStringLiteral("oauth")), QStringList());
    }

    void pointAt(const QString &url) {
        home.setEnvironment("KORVANE_FLICKR_URL", url.toUtf8());
        home.setEnvironment("KORVANE_VIMEO_URL", url.toUtf8());
    }

    std::unique_ptr<Attempt> begin(const ACAccountType &type, SignIn::Options options = {},
                                   std::optional<ApplicationKeys> keys = {}) {
        auto attempt = std::make_unique<Attempt>();
        const SignIn::Handlers handlers{
            .pageIsReady = [a = attempt.get()](const NSURL &page) { a->page = page.absoluteString(); },
            .codeWasWrong = [a = attempt.get()](const NSError &error) { a->wrongCodes.push_back(error); },
            .ended =
                [a = attempt.get()](const auto &account, const auto &error) {
                    a->account = account;
                    a->error = error;
                    ++a->endings;
                    a->signIn.reset(); // as a window does that closes
                }};
        const auto usual = type == flickr ? standin::StandIn::flickrCredential() : standin::StandIn::vimeoCredential();
        attempt->signIn = std::make_shared<SignIn>(type, keys.value_or(keysOf(usual)), handlers, std::move(options));
        attempt->signIn->start();
        EXPECT_EQ(attempt->endings, 0) << "never inside start()";
        return attempt;
    }

    standin::StandIn server;
};

TEST_F(SignInTest, EndsWithAnAccountWhateverElseIsUnderWay) {
    const std::unique_ptr<Attempt> attempts[] = {begin(flickr), begin(flickr), begin(vimeo)};
    for (const auto &attempt : attempts)
        ASSERT_TRUE(attempt->waitForPage()) << qPrintable(attempt->said());
    for (const auto &attempt : attempts) {
        const Visit back = decideAndReturn(attempt->page, "allow");
        EXPECT_EQ(back.status, 200);
        EXPECT_TRUE(says(back.body, "close this page"));
        ASSERT_TRUE(attempt->waitForEnd());
        ASSERT_TRUE(attempt->account) << qPrintable(attempt->said());
        EXPECT_EQ(attempt->account->username, QStringLiteral("standin"));
        EXPECT_FALSE(says(log.lines().join(u' '), attempt->account->credential.tokenSecret.toUtf8()));
    }
    EXPECT_NE(attempts[0]->account->credential, attempts[1]->account->credential);
    EXPECT_EQ(store.accountInUse(flickr.identifier()), nullptr) << "nothing is stored yet";
    ASSERT_TRUE(attempts[1]->account->save());
    EXPECT_EQ(store.accountInUse(flickr.identifier())->credential(), attempts[1]->account->credential);
}

TEST_F(SignInTest, TakesATypedCodeWithThreeTries) {
    for (const int wrongOnes : {0, 2, 3}) {
        const auto attempt = begin(wrongOnes == 2 ? vimeo : flickr, {.typesCode = true});
        ASSERT_TRUE(attempt->waitForPage());
        const QString code = decide(attempt->page, "allow").code();
        attempt->signIn->enterCode(QStringLiteral("  "));
        for (int i = 1; i <= wrongOnes; ++i) {
            attempt->signIn->enterCode(QStringLiteral("000-000-00&oauth_token=1"));
            ASSERT_TRUE(waitFor([&] { return int(attempt->wrongCodes.size()) == i || attempt->endings > 0; }));
        }
        if (attempt->signIn) attempt->signIn->enterCode(QStringLiteral(" %1\n").arg(code));
        ASSERT_TRUE(attempt->waitForEnd());
        EXPECT_EQ(attempt->account.has_value(), wrongOnes < SignIn::mostCodes) << qPrintable(attempt->said());
        EXPECT_EQ(attempt->error ? attempt->error->code() : 0, attempt->account ? 0 : qint64(ACErrorSignInCodeWrong));
    }
}

TEST_F(SignInTest, EndsWhereThePersonRefuses) {
    for (const char *manner : {"flickr", "vimeo", "denied", "problem", "empty verifier"}) {
        const auto attempt = begin(qstrcmp(manner, "vimeo") == 0 ? vimeo : flickr);
        ASSERT_TRUE(attempt->waitForPage());
        QString way = decide(attempt->page, "refuse").location;
        if (qstrcmp(manner, "denied") == 0)
            way.replace(QStringLiteral("&oauth_problem=user_refused"), QString())
                .replace(QStringLiteral("oauth_token"), QStringLiteral("denied"));
        if (qstrcmp(manner, "problem") == 0)
            way.replace(QRegularExpression(QStringLiteral("oauth_token=\\w+&")), QString());
        if (qstrcmp(manner, "empty verifier") == 0)
            way.replace(QStringLiteral("oauth_problem=user_refused"), QStringLiteral("oauth_verifier="));
        const Visit back = visit(way);
        EXPECT_EQ(back.status, 200) << manner;
        EXPECT_TRUE(says(back.body, "Not signed in")) << manner;
        ASSERT_TRUE(attempt->waitForEnd()) << manner;
        EXPECT_EQ(attempt->error->code(), ACErrorSignInRefused) << manner;
    }
}

TEST_F(SignInTest, SaysByHowMuchTheClockIsWrong) {
    const std::tuple<qint64, const char *, const char *> cases[] = {{3600, "1 hour fast", ""},
                                                                    {-3600, "1 hour slow", ""},
                                                                    {400, "7 minutes fast", ""},
                                                                    {-86400LL * 400, "400 days slow", ""},
                                                                    {3600, "1 hour fast", "an unknown reason"}};
    for (const auto &[offset, words, answer] : cases) {
        if (*answer) server.on("request_token").answer(401, "text/plain", answer);
        const auto attempt = begin(flickr, {.clock = [offset] { return QDateTime::currentSecsSinceEpoch() + offset; }});
        ASSERT_TRUE(attempt->waitForEnd());
        EXPECT_EQ(attempt->error->code(), ACErrorClockWrong) << words;
        EXPECT_TRUE(says(attempt->said(), words)) << qPrintable(attempt->said());
    }
}

TEST_F(SignInTest, TellsWhatFailedAndWhatToDo) {
    const QByteArray good = "oauth_callback_confirmed=true&oauth_token=a&oauth_token_secret=hush";
    using Plan = std::function<void(standin::FaultQueue &)>;
    const auto answer = [](int status, const QByteArray &body) {
        return [=](standin::FaultQueue &queue) { queue.answer(status, "text/plain", body); };
    };
    const std::tuple<const char *, Plan, qint64, const char *> cases[] = {
        {"request_token", answer(503, "hush"), ACErrorSignInNotPossible, "503"},
        {"request_token", answer(401, "oauth_problem=additional_authorization_required&hush"), ACErrorSignInNotPossible,
         "additional_"},
        {"request_token", answer(302, good), ACErrorSignInNotUnderstood, "302"},
        {"request_token", answer(200, ""), ACErrorSignInNotUnderstood, "\"oauth_token\""},
        {"request_token", answer(200, "oauth_callback_confirmed=true&oauth_token=a"), ACErrorSignInNotUnderstood,
         "\"oauth_token_secret\""},
        {"request_token", answer(200, QByteArray(good).replace("true", "false")), ACErrorSignInNotUnderstood,
         "confirm"},
        {"request_token", answer(200, good + "&oauth_token=b"), ACErrorSignInNotUnderstood, "twice"},
        {"request_token", answer(200, QByteArray(good).replace("=a", "=a%0D%0Ab")), ACErrorSignInNotUnderstood,
         "\"oauth_token\""},
        {"request_token", answer(200, good + "&more=" + QByteArray(20'000, 'x')), ACErrorSignInNotUnderstood, "long"},
        {"request_token", answer(401, "oauth_problem=verifier_invalid"), ACErrorSignInNotPossible,
         "refused the sign-in (verifier_invalid)"},
        {"request_token", answer(401, "oauth_problem=token_rejected"), ACErrorSignInNotPossible, "(token_rejected)"},
        {"request_token", [](auto &queue) { queue.truncate(); }, NSURLErrorNetworkConnectionLost, "reached"},
        {"access_token", answer(401, "oauth_problem=token_used"), ACErrorSignInExpired, "again"},
        {"access_token", answer(401, "oauth_problem=verifier_invalid"), ACErrorSignInCodeWrong, "again"},
        {"access_token", answer(200, "oauth_token=a&oauth_token_secret=hush"), ACErrorSignInNotUnderstood,
         "\"username\""},
        {"access_token", [](auto &queue) { queue.dropBeforeAnswer(); }, NSURLErrorNetworkConnectionLost, "reached"},
        {"login", answer(200, "{\"user\": {\"username\": [\"hush\"]}}"), ACErrorSignInNotUnderstood, "user"},
        {"login", [](auto &queue) { queue.fail(500); }, ACErrorSignInNotPossible, "500"},
    };
    for (const auto &[operation, plan, code, words] : cases) {
        plan(server.on(operation));
        const auto attempt = begin(qstrcmp(operation, "login") == 0 ? vimeo : flickr);
        if (qstrcmp(operation, "request_token") != 0) {
            ASSERT_TRUE(attempt->waitForPage());
            decideAndReturn(attempt->page, "allow");
        }
        ASSERT_TRUE(attempt->waitForEnd()) << operation << code;
        EXPECT_EQ(attempt->error->code(), code) << qPrintable(attempt->said());
        EXPECT_TRUE(says(attempt->said(), words)) << qPrintable(attempt->said());
        EXPECT_FALSE(says(attempt->said(), "hush")) << qPrintable(attempt->said());
    }
    const QByteArray known = standin::StandIn::flickrCredential().consumerKey;
    for (const auto &[key, secret] :
         {std::pair("unknown", "hush"), {known.constData(), "hush"}, {"a b", "hush"}, {"a", ""}}) {
        const auto attempt = begin(flickr, {}, ApplicationKeys{QLatin1String(key), QLatin1String(secret)});
        ASSERT_TRUE(attempt->waitForEnd());
        EXPECT_EQ(attempt->error->code(), ACErrorApplicationKeyRefused) << key;
        EXPECT_FALSE(says(attempt->said(), "hush"));
    }
    const ScriptedServer chatty([](ScriptedConnection &connection, int) {
        connection.readBodyOf(connection.readHead());
        connection.write("HTTP/1.1 200 OK\r\n" + QByteArray("X-More: and more\r\n").repeated(1'000'000));
    });
    pointAt(chatty.url());
    const auto attempt = begin(flickr);
    ASSERT_TRUE(attempt->waitForEnd());
    EXPECT_TRUE(says(attempt->said(), "does not understand (it is too long)")) << qPrintable(attempt->said());
}

TEST_F(SignInTest, EndsAfterItsTimeOrWhenItIsGivenUp) {
    using std::chrono_literals::operator""ms;
    for (const bool hangs : {true, false}) {
        if (hangs) server.on("request_token").hang(3);
        const auto late = begin(flickr, {.timeLimit = 300ms});
        ASSERT_TRUE(late->waitForEnd());
        EXPECT_EQ(late->error->code(), ACErrorSignInTimedOut);

        const auto given = begin(flickr);
        ASSERT_TRUE(hangs ? waitFor([&] { return server.requests().size() > 1; }) : given->waitForPage());
        const QString page = given->page;
        given->signIn->cancel();
        EXPECT_EQ(given->endings, 1) << "before cancel() returns";
        EXPECT_EQ(given->error->code(), ACErrorSignInCancelled);
        EXPECT_TRUE(hangs || decideAndReturn(page, "allow").status == 0) << "nobody listens any more";

        const auto dropped = begin(flickr);
        ASSERT_TRUE(hangs || dropped->waitForPage());
        dropped->signIn.reset();
        server.release();
        EXPECT_FALSE(waitFor([&] { return dropped->endings > 0; }, 50)) << "not a word";
    }
}

TEST_F(SignInTest, TurnsHostileCallsAway) {
    const auto attempt = begin(flickr);
    ASSERT_TRUE(attempt->waitForPage());
    const QUrl way(decide(attempt->page, "allow").location);
    const QByteArray path = way.path().toUtf8();
    const QByteArray query = way.query().toUtf8();
    const auto call = [&](const QByteArray &bytes) {
        QTcpSocket socket;
        socket.connectToHost(way.host(), quint16(way.port()));
        socket.write(bytes);
        waitFor([&] { return socket.state() == QTcpSocket::UnconnectedState; }, 5'000);
        return socket.readAll().left(12);
    };
    std::vector<std::unique_ptr<QTcpSocket>> halves;
    for (int i = 0; i < 40; ++i) {
        halves.push_back(std::make_unique<QTcpSocket>());
        halves.back()->connectToHost(way.host(), quint16(way.port()));
        halves.back()->write(i % 2 ? "GET " + path + '?' + query + " HTTP/1.1\r\nHost: x\r\n" : QByteArray());
    }
    const auto isClosed = [](const auto &half) { return half->state() == QTcpSocket::UnconnectedState; };
    EXPECT_TRUE(waitFor([&] { return std::ranges::count_if(halves, isClosed) == 40 - 16; }, 5'000))
        << "no more than 16 are kept";
    const std::pair<QByteArray, const char *> cases[] = {
        {"GET / HTTP/1.1\r\n\r\n", "HTTP/1.1 404"},
        {"GET /favicon.ico HTTP/1.1\r\n\r\n", "HTTP/1.1 404"},
        {"GET /signed-in/?" + query + " HTTP/1.1\r\n\r\n", "HTTP/1.1 404"},
        {"GET " + path + "0?" + query + " HTTP/1.1\r\n\r\n", "HTTP/1.1 404"},
        {"GET " + path + '?' + query + "\r\n\r\n", "HTTP/1.1 404"},
        {QByteArray(1000, '\0') + "\r\n\r\n", "HTTP/1.1 404"},
        {"POST " + path + '?' + query + " HTTP/1.1\r\n\r\n", "HTTP/1.1 405"},
        {"GET " + path + " HTTP/1.1\r\n\r\n", "HTTP/1.1 400"},
        {"GET " + path + "?oauth_token=other&oauth_verifier=1 HTTP/1.1\r\n\r\n", "HTTP/1.1 400"},
        {"GET " + path + "?denied=other HTTP/1.1\r\n\r\n", "HTTP/1.1 400"},
        {"GET " + path + '?' + query + "&oauth_token=other HTTP/1.1\r\n\r\n", "HTTP/1.1 400"},
        {"GET " + path + '?' + query + "&oauth_verifier=other HTTP/1.1\r\n\r\n", "HTTP/1.1 400"},
        {"GET " + path + '?' + QByteArray(20'000, 'x'), "HTTP/1.1 431"},
    };
    for (const auto &[request, status] : cases)
        EXPECT_EQ(call(request), status) << request.left(100).constData();
    EXPECT_EQ(attempt->endings, 0);
    EXPECT_EQ(visit(way.toString(QUrl::FullyEncoded)).status, 200);
    ASSERT_TRUE(attempt->waitForEnd());
    EXPECT_TRUE(attempt->account);
}

TEST_F(SignInTest, KeepsTheApplicationsKeysApartFromAccounts) {
    std::optional<NSError> error;
    EXPECT_EQ(ApplicationKeys::stored(flickr, &error), std::nullopt);
    EXPECT_EQ(error, std::nullopt);
    const ApplicationKeys keys{QStringLiteral("key"), QStringLiteral("hush")};
    ASSERT_TRUE(keys.store(flickr));
    ASSERT_TRUE(keysOf(standin::StandIn::vimeoCredential()).store(vimeo));
    EXPECT_EQ(ApplicationKeys::stored(flickr), keys);
    EXPECT_TRUE(says(home.contents(credentials), "hush"));
    EXPECT_FALSE(says(home.contents(QStringLiteral("config/korvane/application-keys.json")), "hush"));
    EXPECT_TRUE(store.accountsWithAccountType(flickr).empty());

    for (const ApplicationKeys &wrong :
         {ApplicationKeys{QStringLiteral("a"), QStringLiteral("ü")}, {QString(300, u'a'), QStringLiteral("c")}}) {
        EXPECT_FALSE(wrong.store(flickr, &error));
        EXPECT_EQ(error->code(), ACErrorCredentialInvalid);
    }
    EXPECT_EQ(ApplicationKeys::stored(flickr), keys) << "as before";
    EXPECT_TRUE(ApplicationKeys::remove(flickr));
    EXPECT_FALSE(says(home.contents(credentials), "hush"));
    EXPECT_EQ(ApplicationKeys::stored(flickr), std::nullopt);
    EXPECT_TRUE(ApplicationKeys::stored(vimeo));

    home.file(credentials, "{}");
    error.reset();
    EXPECT_EQ(ApplicationKeys::stored(vimeo, &error), std::nullopt);
    EXPECT_TRUE(error) << "lost, not absent";
}

} // namespace
} // namespace korvane::test
