// Signatures, against the published examples and spoilt ones.
#include "StandIn/OAuthCheck.h"

#include <gtest/gtest.h>

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

TEST(OAuthCheck, AcceptsThePublishedRequests) {
    EXPECT_EQ(problemAt(exampleTime, example), "none");

    // OAuth Core 1.0, appendix A.5.
    const Credential jane{"jane", "dpf43f3p2l4k3l03", "kd94hf93k423kf44", "nnch734d00sl2jdk", "pfkkdhi9sl3r4s00"};
    const SignedRequest vacation{"GET",
                                 "photos.example.net",
                                 "/photos?file=vacation.jpg&size=original",
                                 "oauth oauth_consumer_key=\"dpf43f3p2l4k3l03\",oauth_token=\"nnch734d00sl2jdk\","
                                 "oauth_signature_method=\"HMAC-SHA1\",oauth_timestamp=\"1191242096\","
                                 "oauth_nonce=\"kllo9940pd9333jh\",oauth_version=\"1.0\","
                                 "oauth_signature=\"tR3%2BTy81lMeYAr%2FFid0kMTYa%2FWM%3D\"",
                                 {}};
    EXPECT_FALSE(OAuthCheck(jane, [] { return qint64(1191242096); }).problem(vacation));
}

TEST(OAuthCheck, SignsEverythingThatTheBaseStringCovers) {
    const std::pair<const char *, void (*)(SignedRequest &)> changes[] = {
        {"method", [](SignedRequest &request) { request.method = "GET"; }},
        {"port", [](SignedRequest &request) { request.host = "example.com:8080"; }},
        {"path", [](SignedRequest &request) { request.target.replace("/request", "/Request"); }},
        {"query", [](SignedRequest &request) { request.target.append("&a3=a"); }},
        {"one less", [](SignedRequest &request) { request.body.removeFirst(); }},
        {"one more", [](SignedRequest &request) { request.body.append(Parameter("empty", "")); }},
    };
    for (const auto &[what, change] : changes) {
        SignedRequest request = example;
        change(request);
        EXPECT_TRUE(problemAt(exampleTime, request).startsWith("oauth_problem=signature_invalid")) << what;
    }
}

TEST(OAuthCheck, RefusesStaleAndFutureTimestamps) {
    const QByteArray refused("oauth_problem=timestamp_refused&oauth_acceptable_timestamps=");
    EXPECT_EQ(problemAt(exampleTime + 300, example), "none");
    EXPECT_EQ(problemAt(exampleTime - 300, example), "none");
    EXPECT_EQ(problemAt(exampleTime + 301, example), refused + "137131202-137131802");
    EXPECT_EQ(problemAt(exampleTime - 301, example), refused + "137130600-137131200");
}

TEST(OAuthCheck, NamesWhatIsWrongWithTheHeader) {
    struct Case {
        QByteArray before, after, problem;
    };
    const Case cases[] = {
        {"Example", "Other", "none"}, // the realm is not signed
        {"oauth_token=\"kkk9d7dh3k39sjv7\", ", "",
         "oauth_problem=parameter_absent&oauth_parameters_absent=oauth_token"},
        {"\"7d8f3e4a\"", "\"\"", "oauth_problem=parameter_absent&oauth_parameters_absent=oauth_nonce"},
        {"kkk9d7dh3k39sjv7", "other", "oauth_problem=token_rejected"},
        {"9djdj82h48djs9d2", "other", "oauth_problem=consumer_key_unknown"},
        {"HMAC-SHA1", "PLAINTEXT", "oauth_problem=signature_method_rejected"},
        {"oauth_nonce", "oauth_version=\"1.1\", oauth_nonce",
         "oauth_problem=version_rejected&oauth_acceptable_versions=1.0-1.0"},
        {"oauth_nonce", "oauth_token=\"kkk9d7dh3k39sjv7\", oauth_nonce",
         "oauth_problem=parameter_rejected&oauth_parameters_rejected=oauth_token"},
        {"OAuth ", "Bearer ", "oauth_problem=parameter_rejected"},
        {"\"HMAC-SHA1\"", "HMAC-SHA1", "oauth_problem=parameter_rejected"},
        {"\"HMAC-SHA1\", ", "\"HMAC-SHA1\" ", "oauth_problem=parameter_rejected"},
    };
    for (const Case &wrong : cases) {
        SignedRequest request = example;
        request.authorization.replace(wrong.before, wrong.after);
        EXPECT_EQ(problemAt(exampleTime, request), wrong.problem) << wrong.after.toStdString();
    }
}

} // namespace standin
