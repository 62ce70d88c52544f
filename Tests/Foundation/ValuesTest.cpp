// Values: numbers and texts, URLs, data, the log.
#include "Platform/Foundation/NSData.h"
#include "Platform/Foundation/NSNumber.h"
#include "Platform/Foundation/NSURL.h"
#include "Tests/Support/Testing.h"

#include <unistd.h>

#include <cmath>
#include <limits>

using namespace korvane;
using namespace korvane::test;

TEST(Numbers, AreReadFromAnythingThatARecordMayHold) {
    const qint64 most = std::numeric_limits<qint64>::max(), least = std::numeric_limits<qint64>::min();
    const std::tuple<QVariant, qint64, qint32, bool> cases[] = {
        {{}, 0, 0, false},
        {QStringLiteral("12abc"), 12, 12, true},
        {QStringLiteral(" \t-7"), -7, -7, true},
        {QStringLiteral("+5"), 5, 5, true},
        {QStringLiteral("abc"), 0, 0, false},
        {QStringLiteral("no"), 0, 0, false},
        {QStringLiteral("YES"), 0, 0, true},
        {QStringLiteral("true"), 0, 0, true},
        {QStringLiteral("000"), 0, 0, false},
        {QStringLiteral("0010"), 10, 10, true},
        {QStringLiteral("99999999999999999999"), most, std::numeric_limits<qint32>::max(), true},
        {QStringLiteral("-99999999999999999999"), least, std::numeric_limits<qint32>::min(), true},
        {Q_INT64_C(4294967299), 4294967299, 3, true},
        {quint32(4294967295), 4294967295, -1, true},
        {true, 1, 1, true},
        {2.9, 2, 2, true},
        {-2.9, -2, -2, true},
        {0.4, 0, 0, true},
        {std::nan(""), 0, 0, true},
        {1e300, most, -1, true},
        {QStringList{QStringLiteral("3")}, 0, 0, false},
        {QVariantMap{{QStringLiteral("a"), 1}}, 0, 0, false},
    };
    for (const auto &[value, integer, narrow, boolean] : cases) {
        SCOPED_TRACE(::testing::Message() << qPrintable(value.toString()) << " as " << value.metaType().name());
        EXPECT_EQ(integerValue(value), integer);
        EXPECT_EQ(intValue(value), narrow);
        EXPECT_EQ(boolValue(value), boolean);
    }
    EXPECT_EQ(textValue(true), QStringLiteral("1"));
    EXPECT_EQ(textValue(false), QStringLiteral("0"));
    EXPECT_EQ(textValue(3), QStringLiteral("3"));
}

TEST(URLs, KeepTheirExactTextAndRefuseWhatIsNone) {
    for (const char *text :
         {"assets-library://asset/asset.JPG?id=pictures%2F%7Ea%2e&ext=JPG", "file:///tmp/a%20b%c3%bc.jpg",
          "http://127.0.0.1:8743/services/upload/?a=%7E", "https://[::1]/x"}) {
        const auto url = NSURL::URLWithString(QLatin1String(text));
        ASSERT_TRUE(url) << text;
        EXPECT_EQ(url->absoluteString(), QLatin1String(text));
    }
    for (const char *text : {"http://a b/", "file:///100%", "http://x/%zz", "http://x/\xc3\xbc", "a\nb:c"})
        EXPECT_FALSE(NSURL::URLWithString(QString::fromUtf8(text))) << text;

    const auto asset = *NSURL::URLWithString(QStringLiteral("assets-library://asset/asset.JPG?id=a%2Fb#f"));
    EXPECT_EQ(asset.scheme(), QStringLiteral("assets-library"));
    EXPECT_EQ(asset.query(), QStringLiteral("id=a%2Fb"));
}

TEST(URLs, CarryFileNamesThatAreNotUTF8) {
    const QByteArray path("/tmp/caf\xe9 100%.jpg");
    const NSURL url = NSURL::fileURLWithPath(path);
    EXPECT_EQ(url.fileSystemRepresentation(), path);
    EXPECT_EQ(NSURL::URLWithString(url.absoluteString())->fileSystemRepresentation(), path);
}

TEST(Data, StandsForAPartOfAFileAndNoticesThatTheFileChanged) {
    const TemporaryHome home;
    const QByteArray bytes = jpegOfSize(10'000);
    const QByteArray path = home.file("a.jpg", bytes);
    const auto data = NSData::dataWithContentsOfFile(path);
    ASSERT_TRUE(data);
    EXPECT_EQ(data->bytes(), bytes);
    EXPECT_EQ(data->subdata(100, 50).bytes(), bytes.mid(100, 50));
    EXPECT_EQ(data->subdata(9'990, 50).length(), 10);
    EXPECT_TRUE(data->isIntact());

    ASSERT_EQ(::truncate(path.constData(), 400), 0);
    EXPECT_FALSE(data->isIntact());
    EXPECT_EQ(data->bytes().size(), 400);
}

TEST(Log, FormatsObjectsNumbersAndNil) {
    const LogCapture log;
    NSLog("Got %@ of %@: %lli, %lu, %f, 100%%", NSError(QStringLiteral("D"), 3), std::optional<NSURL>(),
          Q_INT64_C(5000000000), 7UL, 0.5);
    EXPECT_EQ(log.lines(),
              QStringList{QStringLiteral("Got Error Domain=D Code=3 of (null): 5000000000, 7, 0.500000, 100%")});
}

TEST(Log, RedactsWhatWouldLetOthersIn) {
    const QString answer = QStringLiteral(
        "oauth_problem=signature_invalid&debug_sbs=POST&oauth_consumer_key%3Dabc123%26oauth_token%3D72-secret"
        "&oauth_token=72-secret&oauth_signature=\"r6%2F\" {\"tokenSecret\": \"hush\"}");
    const QString shown = redacted(answer);
    for (const char *secret : {"abc123", "72-secret", "r6", "hush"})
        EXPECT_FALSE(says(shown, secret));
    EXPECT_TRUE(says(shown, "signature_invalid"));
}
