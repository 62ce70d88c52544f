// Texts, units, columns and JSON of uploads.
#include "FrontEnd/UploadText.h"
#include "CommandLine/Arguments.h"
#include "Tests/Support/Testing.h"

#include <QJsonDocument>

using namespace korvane;
using namespace korvane::test;

namespace {

const QByteArray failedJSON = R"({"id": "12", "service": "flickr", "title": "a \"b\"\nc \u001b[31m 夏",
    "state": "failed", "bytesSent": 9007199254740993, "bytesTotal": 9007199254740995, "attempts": 3,
    "createdAt": "2024-05-01T10:00:00Z", "finishedAt": "2024-05-01T10:05:00Z",
    "error": {"domain": "D", "code": 98, "description": "no\u202E\u0007!"}})"; // the sizes are no doubles

Upload uploadOf(const QByteArray &json) {
    return Upload::fromDictionary(QJsonDocument::fromJson(json).toVariant().toMap());
}

} // namespace

TEST(UploadText, BytesAreRoundedIntoTheUnitThatFits) {
    const std::pair<qint64, const char *> cases[] = {
        {0, "0 bytes"},          {999, "999 bytes"},       {1000, "1 kB"},          {999499, "999 kB"},
        {999500, "1.0 MB"},      {12345678, "12.3 MB"},    {999949999, "999.9 MB"}, {999950000, "1.00 GB"},
        {1250000000, "1.25 GB"}, {2147483648LL, "2.15 GB"}};
    for (const auto &[count, text] : cases)
        EXPECT_EQ(UploadText::bytes(count).toStdString(), text) << count;
}

TEST(UploadText, PrintableTextHoldsNothingThatATerminalObeys) {
    const std::pair<QString, QString> cases[] = {
        {QStringLiteral("a\tb\nc\rd"), QStringLiteral("a b c d")},
        {QStringLiteral("\x1b]0;x\x07"), QStringLiteral("\uFFFD]0;x\uFFFD")},
        {QString(QChar(0x9B)) + QStringLiteral("31m"), QStringLiteral("\uFFFD31m")},
        {QStringLiteral("gpj.\u202Etxt"), QStringLiteral("gpj.\uFFFDtxt")},
        {QString(QChar(0xD83D)) + u'x', QStringLiteral("\uFFFDx")},
        {QStringLiteral("夏 é 🌅 \U0001F468\u200D\U0001F469"), QStringLiteral("夏 é 🌅 \U0001F468\u200D\U0001F469")}};
    for (const auto &[text, shown] : cases)
        EXPECT_EQ(UploadText::printable(text).toStdString(), shown.toStdString());
}

TEST(UploadText, JSONHasTheDocumentedMembersWithExactNumbers) {
    const QByteArray text = UploadText::json(uploadOf(failedJSON));
    EXPECT_FALSE(says(text, "\n"));
    EXPECT_TRUE(says(text, "9007199254740993"));
    EXPECT_EQ(QJsonDocument::fromJson(text), QJsonDocument::fromJson(failedJSON)) << text.constData();

    const auto queued = QJsonDocument::fromJson(UploadText::json(uploadOf(R"({"id": "1"})")));
    EXPECT_TRUE(queued[QStringLiteral("error")].isNull());
    EXPECT_TRUE(queued[QStringLiteral("finishedAt")].isNull());
    EXPECT_EQ(queued[QStringLiteral("title")], QJsonValue(QString(QLatin1String(""))));
}

TEST(UploadText, RowsTellTheReasonSafelyAndFitTheTerminal) {
    const QString row = UploadText::tableRow(uploadOf(failedJSON), 0);
    EXPECT_TRUE(says(row, "(no\uFFFD\uFFFD!)"));
    EXPECT_EQ(UploadText::printable(row), row);
    for (const int columns : {1, 20, 47, 48, 60, 200})
        EXPECT_LE(UploadText::width(UploadText::tableRow(uploadOf(failedJSON), columns)), columns);

    Upload waiting = uploadOf(failedJSON);
    waiting.state = QStringLiteral("waiting");
    waiting.waitingFor = QStringLiteral("network");
    waiting.nextTry = QDateTime::currentDateTimeUtc().addDays(1);
    const QString day = waiting.nextTry.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
    EXPECT_EQ(UploadText::reason(waiting),
              QStringLiteral("waiting for the network, at the latest %1: no\uFFFD\uFFFD!").arg(day));
    waiting.waitingFor = QStringLiteral("sign-in");
    EXPECT_TRUE(says(UploadText::reason(waiting), "waiting for an account (korvane accounts add flickr): no"));
}

TEST(Arguments, OnlyWhatCanBeCarriedIsTaken) {
    EXPECT_EQ(Arguments::problemWithText("Sommer\n夏 " + std::string(10'000, 'x')), "");
    EXPECT_NE(Arguments::problemWithText("caf\xe9"), "");
    EXPECT_NE(Arguments::problemWithText("\xed\xa0\x80"), "");
    EXPECT_NE(Arguments::problemWithText(std::string("a\0b", 3)), "");
    EXPECT_EQ(Arguments::problemWithNumber("9223372036854775807"), "");
    for (const char *text : {"", "0", "-1", "+1", "1.0", "9223372036854775808", "Summer"})
        EXPECT_NE(Arguments::problemWithNumber(text), "") << text;
}
