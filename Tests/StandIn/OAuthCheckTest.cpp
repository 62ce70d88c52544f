// Signatures, against the published examples and spoilt ones.
#include "StandIn/OAuthCheck.h"
#include "Tests/Support/Testing.h"

namespace standin {

namespace {

// RFC 5849 section 3.4.1; the signature is that of erratum 2550.
const SignedRequest example{"POST", "EXAMPLE.COM:80", "/request?b5=%3D%253D&a3=a&c%40=&a2=r%20b",
                            "OAuth realm=\"Example\", oauth_consumer_key=\"9djdj82h48djs9d2\", "
                            "oauth_token=\"kkk9d7dh3k39sjv7\", oauth_signature_method=\"HMAC-SHA1\", "
                            "oauth_timestamp=\"137131201\", oauth_nonce=\"7d8f3e4a\", "
                            "oauth_signature=\"r6%2FTJjbCOr97%2F%2BUU0NsvSne7s5g%3D\"",
                            decodedForm("c2&a3=2+q")};
constexpr qint64 exampleTime = 137131201;

QByteArray problemAt(qint64 now, const SignedRequest &request) {
    const Credential user{"example", "9djdj82h48djs9d2", "j49sk3j29djd", "kkk9d7dh3k39sjv7", "dh893hdasih9"};
    return OAuthCheck(user, [now] { return now; }).problem(request).value_or(QByteArray("none"));
}

} // namespace

TEST(OAuthCheck, AcceptsThePublishedRequestWithinItsTime) {
    EXPECT_EQ(problemAt(exampleTime + 300, example), "none");
    EXPECT_EQ(problemAt(exampleTime - 300, example), "none");
    const QByteArray refused("oauth_problem=timestamp_refused&oauth_acceptable_timestamps=");
    EXPECT_EQ(problemAt(exampleTime + 301, example), refused + "137131202-137131802");
    EXPECT_EQ(problemAt(exampleTime - 301, example), refused + "137130600-137131200");
}

TEST(OAuthCheck, NoticesEveryChange) {
    const auto inHeader = [](const char *before, const char *after) {
        return [=](SignedRequest &request) { request.authorization.replace(before, after); };
    };
    const std::pair<const char *, std::function<void(SignedRequest &)>> changes[] = {
        {"signature_invalid", [](SignedRequest &request) { request.method = "GET"; }},
        {"signature_invalid", [](SignedRequest &request) { request.host = "example.com:8080"; }},
        {"signature_invalid", [](SignedRequest &request) { request.target.replace("/request", "/Request"); }},
        {"signature_invalid", [](SignedRequest &request) { request.target.append("&a3=a"); }},
        {"signature_invalid", [](SignedRequest &request) { request.body.removeFirst(); }},
        {"signature_invalid", [](SignedRequest &request) { request.body.append(Parameter("empty", "")); }},
        {"signature_invalid", inHeader("7d8f3e4a", "7d8f3e4b")},
        {"parameter_absent", inHeader("oauth_token=\"kkk9d7dh3k39sjv7\", ", "")},
        {"parameter_absent", inHeader("\"7d8f3e4a\"", "\"\"")},
        {"token_rejected", inHeader("kkk9d7dh3k39sjv7", "other")},
        {"consumer_key_unknown", inHeader("9djdj82h48djs9d2", "other")},
        {"signature_method_rejected", inHeader("HMAC-SHA1", "PLAINTEXT")},
        {"version_rejected", inHeader("oauth_nonce", "oauth_version=\"1.1\", oauth_nonce")},
        {"parameter_rejected", inHeader("oauth_nonce", "oauth_token=\"kkk9d7dh3k39sjv7\", oauth_nonce")},
        {"parameter_rejected", inHeader("OAuth ", "Bearer ")},
        {"parameter_rejected", inHeader("\"HMAC-SHA1\", ", "\"HMAC-SHA1\" ")},
        {"none", inHeader("Example", "Other")}, // the realm is not signed
    };
    for (const auto &[problem, spoil] : changes) {
        SignedRequest request = example;
        spoil(request);
        EXPECT_TRUE(korvane::test::says(problemAt(exampleTime, request), problem));
    }
}

} // namespace standin
