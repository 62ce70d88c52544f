#include "StandIn/OAuthCheck.h"

#include <gtest/gtest.h>

namespace standin {

namespace {

const Credential PhotosUser{"jane", "dpf43f3p2l4k3l03", "kd94hf93k423kf44", "nnch734d00sl2jdk", "pfkkdhi9sl3r4s00"};
const Credential ExampleUser{"example", "9djdj82h48djs9d2", "j49sk3j29djd", "kkk9d7dh3k39sjv7", "dh893hdasih9"};

const SignedRequest ExampleRequest{"POST", "EXAMPLE.COM:80", "/request?b5=%3D%253D&a3=a&c%40=&a2=r%20b",
                                   "OAuth realm=\"Example\", oauth_consumer_key=\"9djdj82h48djs9d2\", "
                                   "oauth_token=\"kkk9d7dh3k39sjv7\", oauth_signature_method=\"HMAC-SHA1\", "
                                   "oauth_timestamp=\"137131201\", oauth_nonce=\"7d8f3e4a\", "
                                   "oauth_signature=\"r6%2FTJjbCOr97%2F%2BUU0NsvSne7s5g%3D\"",
                                   decodedForm("c2&a3=2+q")};

QByteArray problemAt(qint64 now, const Credential &user, const SignedRequest &request) {
    return OAuthCheck(user, [now] { return now; }).problem(request).value_or(QByteArray("none"));
}

} // namespace

// RFC 5849 section 3.4.1.1; the signature is that of erratum 2550.
TEST(OAuthCheck, BuildsThePublishedBaseString) {
    const auto oauth = OAuthCheck::parametersOfHeader(ExampleRequest.authorization);
    ASSERT_TRUE(oauth);
    EXPECT_EQ(
        OAuthCheck::baseString(ExampleRequest, *oauth),
        "POST&http%3A%2F%2Fexample.com%2Frequest&a2%3Dr%2520b%26a3%3D2%2520q%26a3%3Da%26b5%3D%253D%25253D%26c%2540"
        "%3D%26c2%3D%26oauth_consumer_key%3D9djdj82h48djs9d2%26oauth_nonce%3D7d8f3e4a%26oauth_signature_method%3D"
        "HMAC-SHA1%26oauth_timestamp%3D137131201%26oauth_token%3Dkkk9d7dh3k39sjv7");
}

TEST(OAuthCheck, AcceptsThePublishedRequests) {
    EXPECT_EQ(problemAt(137131201, ExampleUser, ExampleRequest), "none");

    // RFC 5849 section 1.2.
    const SignedRequest vacation{"GET",
                                 "photos.example.net",
                                 "/photos?file=vacation.jpg&size=original",
                                 "OAuth realm=\"Photos\", oauth_consumer_key=\"dpf43f3p2l4k3l03\", "
                                 "oauth_token=\"nnch734d00sl2jdk\", oauth_signature_method=\"HMAC-SHA1\", "
                                 "oauth_timestamp=\"137131202\", oauth_nonce=\"chapoH\", "
                                 "oauth_signature=\"MdpQcU8iPSUjWoN%2FUDMsK2sui9I%3D\"",
                                 {}};
    EXPECT_EQ(problemAt(137131202, PhotosUser, vacation), "none");

    // OAuth Core 1.0, appendix A.5.
    const SignedRequest older{"GET",
                              "photos.example.net",
                              "/photos?file=vacation.jpg&size=original",
                              "oauth oauth_consumer_key=\"dpf43f3p2l4k3l03\",oauth_token=\"nnch734d00sl2jdk\","
                              "oauth_signature_method=\"HMAC-SHA1\",oauth_timestamp=\"1191242096\","
                              "oauth_nonce=\"kllo9940pd9333jh\",oauth_version=\"1.0\","
                              "oauth_signature=\"tR3%2BTy81lMeYAr%2FFid0kMTYa%2FWM%3D\"",
                              {}};
    EXPECT_EQ(problemAt(1191242096, PhotosUser, older), "none");
}

TEST(OAuthCheck, SignsEverythingThatTheBaseStringCovers) {
    const auto changed = [](auto change) {
        SignedRequest request = ExampleRequest;
        change(request);
        return problemAt(137131201, ExampleUser, request).left(31);
    };
    const QByteArray invalid("oauth_problem=signature_invalid");
    EXPECT_EQ(changed([](SignedRequest &request) { request.method = "GET"; }), invalid);
    EXPECT_EQ(changed([](SignedRequest &request) { request.host = "example.com:8080"; }), invalid);
    EXPECT_EQ(changed([](SignedRequest &request) { request.target.replace("/request", "/Request"); }), invalid);
    EXPECT_EQ(changed([](SignedRequest &request) { request.target.append("&a3=a"); }), invalid);
    EXPECT_EQ(changed([](SignedRequest &request) { request.body.removeFirst(); }), invalid);
    EXPECT_EQ(changed([](SignedRequest &request) { request.body.append(Parameter("empty", "")); }), invalid);
    EXPECT_EQ(changed([](SignedRequest &request) { request.authorization.replace("Example", "Other"); }), "none");
}

TEST(OAuthCheck, RefusesStaleAndFutureTimestamps) {
    EXPECT_EQ(problemAt(137131201 + 300, ExampleUser, ExampleRequest), "none");
    EXPECT_EQ(problemAt(137131201 - 300, ExampleUser, ExampleRequest), "none");
    const QByteArray refused("oauth_problem=timestamp_refused&oauth_acceptable_timestamps=");
    EXPECT_EQ(problemAt(137131201 + 301, ExampleUser, ExampleRequest), refused + "137131202-137131802");
    EXPECT_EQ(problemAt(137131201 - 301, ExampleUser, ExampleRequest), refused + "137130600-137131200");
}

TEST(OAuthCheck, RefusesAReplayButNotANonceSpoiltByAWrongSignature) {
    OAuthCheck check(ExampleUser, [] { return qint64(137131201); });
    SignedRequest forged = ExampleRequest;
    forged.body.append(Parameter("a", "b"));
    EXPECT_TRUE(check.problem(forged)->startsWith("oauth_problem=signature_invalid&debug_sbs=POST%26http"));
    EXPECT_FALSE(check.problem(ExampleRequest));
    EXPECT_EQ(check.problem(ExampleRequest), "oauth_problem=nonce_used");
}

TEST(OAuthCheck, NamesWhatIsWrongWithTheHeader) {
    struct Case {
        QByteArray before, after, problem;
    };
    const Case cases[] = {
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
        SignedRequest request = ExampleRequest;
        request.authorization.replace(wrong.before, wrong.after);
        EXPECT_EQ(problemAt(137131201, ExampleUser, request), wrong.problem) << wrong.after.toStdString();
    }
}

} // namespace standin
