// Signatures against published vectors.
#include "Platform/Social/OAuthSigner.h"
#include "Platform/Accounts/ACAccountCredential.h"

#include "Tests/Support/Testing.h"

using namespace korvane;
using namespace korvane::test;

namespace {

QString text(const char *latin1) {
    return QString::fromUtf8(latin1);
}

NSURL url(const char *text) {
    return *NSURL::URLWithString(QLatin1String(text));
}

ACAccountCredential credential(const char *key, const char *secret, const char *token, const char *tokenSecret) {
    return {text(key), text(secret), text(token), text(tokenSecret)};
}

} // namespace

// RFC 5849 section 3.4.1, whose printed signature is corrected by erratum 2550.
TEST(OAuthSigner, MakesTheBaseStringAndSignatureOfRFC5849) {
    const NSURL request = url("http://EXAMPLE.COM:80/request?b5=%3D%253D&a3=a&c%40=&a2=r%20b");
    const OAuthParameters parameters =
        OAuthSigner::parametersOfQuery(request.query()) +
        OAuthSigner::parametersOfQuery(
            text("c2&a3=2+q&oauth_consumer_key=9djdj82h48djs9d2&oauth_token=kkk9d7dh3k39sjv7"
                 "&oauth_signature_method=HMAC-SHA1&oauth_timestamp=137131201&oauth_nonce=7d8f3e4a"));
    const QByteArray base = OAuthSigner::signatureBaseString("post", request, parameters);
    EXPECT_EQ(
        base,
        "POST&http%3A%2F%2Fexample.com%2Frequest&a2%3Dr%2520b%26a3%3D2%2520q%26a3%3Da%26b5%3D%253D%25253D%26c%2540%3D%"
        "26"
        "c2%3D%26oauth_consumer_key%3D9djdj82h48djs9d2%26oauth_nonce%3D7d8f3e4a%26oauth_signature_method%3DHMAC-SHA1%26"
        "oauth_timestamp%3D137131201%26oauth_token%3Dkkk9d7dh3k39sjv7");
    EXPECT_EQ(OAuthSigner::signature(base, credential("", "j49sk3j29djd", "", "dh893hdasih9")),
              "r6/TJjbCOr97/+UU0NsvSne7s5g=");
}

TEST(OAuthSigner, MakesThePublishedHeaders) {
    // OAuth Core 1.0, appendix A.5
    const QByteArray photos = OAuthSigner::authorizationHeader(
        "GET", url("http://photos.example.net/photos?file=vacation.jpg&size=original"),
        OAuthSigner::parametersOfQuery(text("file=vacation.jpg&size=original")),
        credential("dpf43f3p2l4k3l03", "kd94hf93k423kf44", "nnch734d00sl2jdk", "pfkkdhi9sl3r4s00"), 1191242096,
        text("kllo9940pd9333jh"));
    EXPECT_TRUE(photos.startsWith("OAuth "));
    EXPECT_TRUE(says(photos, "oauth_version=\"1.0\""));
    EXPECT_TRUE(says(photos, "oauth_signature=\"tR3%2BTy81lMeYAr%2FFid0kMTYa%2FWM%3D\""));
    EXPECT_FALSE(says(photos, "kd94hf93k423kf44"));
    EXPECT_FALSE(says(photos, "pfkkdhi9sl3r4s00"));
    // dev.twitter.com, "Implementing sign in": its first step, without a token
    const QByteArray header = OAuthSigner::authorizationHeader(
        "POST", url("https://api.twitter.com/oauth/request_token"), {},
        credential("cChZNFj6T5R0TigYB9yd1w", "L8qq9PZyRg6ieKGEKhZolGC0vJWLw8iEJ88DRdyOg", "", ""), 1318467427,
        text("ea9ec8429b68d6b77cd5600adbbb0456"),
        {{text("oauth_callback"), text("http://localhost/sign-in-with-twitter/")}});
    EXPECT_TRUE(says(header, "oauth_signature=\"F1Li3tvehgcraF8DMJ7OyxO4w9Y%3D\""));
    EXPECT_TRUE(says(header, "oauth_callback=\"http%3A%2F%2Flocalhost%2Fsign-in-with-twitter%2F\""));
    EXPECT_FALSE(says(header, "oauth_token"));
}

TEST(OAuthSigner, KeepsPortsPathsAndRepeatedNamesApart) {
    const auto base = [](const char *target, const OAuthParameters &parameters) {
        return OAuthSigner::signatureBaseString("GET", url(target), parameters);
    };
    EXPECT_TRUE(base("http://h:8080/A%7e", {}).startsWith("GET&http%3A%2F%2Fh%3A8080%2FA%257e&"));
    EXPECT_TRUE(base("http://[::1]:8743/x", {}).startsWith("GET&http%3A%2F%2F%5B%3A%3A1%5D%3A8743%2Fx&"));
    EXPECT_TRUE(base("https://h:443", {}).startsWith("GET&https%3A%2F%2Fh%2F&"));
    EXPECT_TRUE(base("https://h:80/", {}).startsWith("GET&https%3A%2F%2Fh%3A80%2F&"));
    EXPECT_TRUE(base("http://h/", {{text("a"), text("2")}, {text("a"), text("10")}, {text("a"), text("")}})
                    .endsWith("&a%3D%26a%3D10%26a%3D2"));
    EXPECT_TRUE(base("http://h/", {{text("ü"), text("日 ~")}}).endsWith("&%25C3%25BC%3D%25E6%2597%25A5%2520~"));
}
