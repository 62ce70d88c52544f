// What a video post is made of, and how Vimeo's answers are read.
#include "Korvane/VimeoPost.h"
#include "Korvane/VimeoUploadSession.h"
#include "Tests/Support/Testing.h"

using namespace korvane;
using namespace korvane::test;

TEST(VimeoPost, WritesItsRecordAndReadsAnyOther) {
    const QVariantMap bare{
        {QStringLiteral("accessType"), 0}, {QStringLiteral("privacy"), 0}, {QStringLiteral("videoSize"), 0}};
    EXPECT_EQ(VimeoPost::init()->serializedDictionary(), bare);

    const QVariantMap full{{QStringLiteral("assetURL"), QStringLiteral("file:///a%20b.mp4")},
                           {QStringLiteral("title"), QStringLiteral("ü")},
                           {QStringLiteral("description"), QString()},
                           {QStringLiteral("tags"), QStringList{QStringLiteral("a"), QStringLiteral("b")}},
                           {QStringLiteral("accessType"), quint64(7)},
                           {QStringLiteral("privacy"), quint64(5)},
                           {QStringLiteral("videoSize"), quint64(2)}};
    const auto post = VimeoPost::initWithDictionary(full);
    EXPECT_EQ(post->assetURL->absoluteString(), QStringLiteral("file:///a%20b.mp4"));
    EXPECT_EQ(post->postDescription, QString());
    EXPECT_EQ(post->privacySettings, 5);
    EXPECT_EQ(post->videoSize, VimeoVideoSizeLarge);
    EXPECT_EQ(post->serializedDictionary(), full);

    const QVariant data = QVariant::fromValue(NSData("bytes"));
    const auto both = VimeoPost::initWithDictionary(
        {{QStringLiteral("assetURL"), QStringLiteral("file:///a.mp4")}, {QStringLiteral("assetData"), data}});
    EXPECT_TRUE(both->assetURL && !both->assetData);
    const auto odd = VimeoPost::initWithDictionary({{QStringLiteral("assetURL"), 5},
                                                    {QStringLiteral("assetData"), data},
                                                    {QStringLiteral("title"), 5},
                                                    {QStringLiteral("tags"), QStringLiteral("a")},
                                                    {QStringLiteral("privacy"), QStringLiteral("1x")},
                                                    {QStringLiteral("more"), true}});
    EXPECT_EQ(odd->postSize(), 5);
    EXPECT_TRUE(!odd->assetURL && !odd->title && !odd->tags);
    EXPECT_EQ(odd->privacySettings, VimeoPrivacyPrivate);
}

TEST(VimeoPost, TellsAnswersFromFailuresAndLogsThem) {
    const std::tuple<std::optional<QByteArray>, qint64, const char *> cases[] = {
        {std::nullopt, VimeoPostErrorEmptyResponse, "Empty response data provided"},
        {"", VimeoPostErrorEmptyResponse, "Empty response data provided"},
        {"<html>", VimeoPostErrorBadResponse, "Failed to parse response data: "},
        {"[]", VimeoPostErrorBadResponse, "Failed to parse non-dictionary response data"},
        {"7", VimeoPostErrorBadResponse, "Failed to parse non-dictionary response data"},
        {R"({"err":{"code":"401"}})", VimeoPostErrorServiceCode401, "Vimeo Error Response: "},
        {R"({"err":{"code":708}})", VimeoPostErrorServiceCode708, "Vimeo Error Response: "},
        {R"({"err":{"code":"999","msg":"no"}})", VimeoPostErrorBadResponse, "Vimeo Error Response: "},
        {R"({"err":null,"stat":"ok"})", VimeoPostErrorBadResponse, "Vimeo Error Response: "},
        {R"({"stat":"fail"})", 0, nullptr},
    };
    for (const auto &[body, code, logged] : cases) {
        const LogCapture log;
        std::optional<NSError> error;
        const auto answer =
            VimeoPost::dictionaryWithResponseData(body ? std::optional(NSData(*body)) : std::nullopt, &error);
        EXPECT_EQ(answer.has_value(), code == 0);
        EXPECT_EQ(error, answer ? std::nullopt : std::optional(NSError(VimeoPublishPostErrorDomain, code)));
        EXPECT_EQ(log.lines().size(), logged ? 1 : 0);
        EXPECT_TRUE(log.lines().value(0).startsWith(QLatin1String(logged)));
        EXPECT_EQ(VimeoPost::dictionaryWithResponseData(NSData(body.value_or("")), nullptr), answer);
    }
}

TEST(VimeoUploadSessionDeathTest, StopsWithoutARemoteEnd) {
    const auto upload = [] {
        const auto session = VimeoUploadSession::init();
        session->setRemoteSession(nullptr);
        session->uploadPost(VimeoPost::init());
    };
    EXPECT_DEATH(upload(), "\\(_remoteSession\\).*\\[VimeoUploadSession uploadPost:error:\\].*"
                           "Korvane/VimeoUploadSession.*53");
}
