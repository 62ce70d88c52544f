// Credential files, good and bad.
#include "Platform/Accounts/ACCredentialFile.h"
#include "Platform/Accounts/ACError.h"
#include "Tests/Support/Testing.h"

namespace korvane::test {
namespace {

// The good file with one piece of its text replaced.
QByteArray fileWith(const QByteArray &old, const QByteArray &replacement) {
    return QByteArray(R"({"username": "ada", "consumerKey": "hush1", "consumerSecret": "hush2", "token": "hush3",
                         "tokenSecret": "hush4", "comment": [1]})")
        .replace(old, replacement);
}

TEST(CredentialFile, GivesEveryPart) {
    const auto file = ACCredentialFile::credentialFileWithData(NSData(fileWith("ada", "Ad\\u00e9 \xf0\x9f\x93\xb7")));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->username, QStringLiteral("Adé \U0001F4F7"));
    const ACAccountCredential expected{QStringLiteral("hush1"), QStringLiteral("hush2"), QStringLiteral("hush3"),
                                       QStringLiteral("hush4")};
    EXPECT_EQ(file->credential, expected);
    EXPECT_TRUE(ACCredentialFile::credentialFileWithData(NSData("\xef\xbb\xbf" + fileWith("", ""))));
}

TEST(CredentialFile, NamesWhatIsWrongAndQuotesNothing) {
    const std::pair<QByteArray, const char *> cases[] = {
        {"", "empty"},
        {"hush", "not JSON"},
        {fileWith("\"hush3\"", "hush3"), "not JSON at byte"},
        {fileWith("hush2", "hush2\xff"), "not JSON"},
        {"[\"hush\"]", "object"},
        {QByteArray(60000, '['), "not JSON"},
        {QByteArray(20000, '[') + QByteArray(20000, ']'), "deep"},
        {fileWith("[1]", "1e999"), "out of range"},
        {fileWith("\"username\"", "\"userName\""), "\"username\" is missing"},
        {fileWith("\"tokenSecret\"", "\"hush\""), "\"tokenSecret\" is missing"},
        {fileWith("\"hush1\"", "17"), "\"consumerKey\" is not a text"},
        {fileWith("hush3", "  "), "\"token\" is empty"},
        {fileWith("hush2", "hush2\\n"), "\"consumerSecret\" holds control characters"},
        {fileWith("hush2", "hush\\u0000"), "\"consumerSecret\" holds control characters"},
        {fileWith("[1]", '"' + QByteArray(64 * 1024, 'x') + '"'), "larger than 64 KB"},
    };
    for (const auto &[text, named] : cases) {
        SCOPED_TRACE(text.left(80).constData());
        std::optional<NSError> error;
        EXPECT_FALSE(ACCredentialFile::credentialFileWithData(NSData(text), &error));
        ASSERT_TRUE(says(error, named));
        EXPECT_EQ(error->domain(), ACErrorDomain);
        EXPECT_FALSE(says(error->description(), "hush"));
    }
}

} // namespace
} // namespace korvane::test
