// Records on their way between programs, as far as that can be seen without a bus.
#include "Platform/Social/WireRecord.h"
#include "Platform/Foundation/NSData.h"
#include "Platform/Social/DataFile.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Tests/Support/TemporaryHome.h"

#include <QDir>
#include <QUrl>

#include <gtest/gtest.h>

#include <fcntl.h>

using namespace korvane;
using namespace korvane::test;

namespace {

QVariant data(const QByteArray &bytes) {
    return QVariant::fromValue(NSData(bytes));
}

} // namespace

TEST(WireRecord, PutsSmallDataInTheMessageAndTheRestInOneUnnamedFile) {
    const TemporaryHome home;
    const QByteArray small = jpegOfSize(60'000, 1);
    const QByteArray large = jpegOfSize(200'000, 2);
    const QByteArray path = home.file(QStringLiteral("large.jpg"), large);
    const QVariantList records{
        QVariantMap{{QStringLiteral("photoData"), data(small)}, {QStringLiteral("title"), QStringLiteral("a")}},
        QVariantMap{{QStringLiteral("photoData"), data(large)}},
        QVariantMap{{QStringLiteral("photoData"), QVariant::fromValue(*NSData::dataWithContentsOfFile(path))}}};
    const QString folder = home.path(QStringLiteral("spool"));
    std::optional<NSError> error;
    auto message = WireRecord::encode(records, folder, &error);
    ASSERT_TRUE(message) << error->description().toStdString();
    EXPECT_EQ(message->records[0].value(QStringLiteral("photoData")).toByteArray(), small);
    EXPECT_TRUE(QDir(folder).isEmpty());
    EXPECT_EQ(::fcntl(message->dataFile.get(), F_GETFL) & O_ACCMODE, O_RDONLY);
    const auto file = std::make_shared<const FileDescriptor>(std::move(message->dataFile));
    for (const int i : {1, 2}) {
        const auto range = message->records[i].value(QStringLiteral("photoData")).value<DataRange>();
        EXPECT_EQ(NSData::dataWithFile(file, qint64(range.offset), qint64(range.length)).bytes(), large);
    }
}

TEST(WireRecord, RefusesWhatTheBusWouldGarbleOrDieOf) {
    const TemporaryHome home;
    const std::pair<QVariant, const char *> cases[] = {
        {QString(QStringLiteral("a") + QChar::Null + QStringLiteral("b")), "NUL"},
        {QStringList{QStringLiteral("ok"), QString(QChar::Null)}, "NUL"},
        {QUrl(QStringLiteral("http://a")), "QUrl"},
        {QVariant(), "key"},
        {QString(40 * 1024 * 1024, u'x'), "Too much"},
    };
    for (const auto &[value, expected] : cases) {
        std::optional<NSError> error;
        EXPECT_FALSE(WireRecord::encode({QVariantMap{{QStringLiteral("key"), value}}}, home.path(), &error));
        ASSERT_TRUE(error) << expected;
        EXPECT_EQ(error->code(), RemoteServiceErrorUnusableRecord);
        EXPECT_TRUE(error->localizedDescription().contains(QLatin1String(expected)))
            << error->localizedDescription().toStdString();
    }
}

TEST(WireRecord, SaysWhatIsWrongWhenTheDataCannotBeWritten) {
    const TemporaryHome home;
    const QByteArray inTheWay = home.file(QStringLiteral("spool"), "a file, not a folder");
    std::optional<NSError> error;
    EXPECT_FALSE(WireRecord::encode({QVariantMap{{QStringLiteral("photoData"), data(jpegOfSize(100'000))}}},
                                    home.path(QStringLiteral("spool")), &error));
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->localizedDescription().contains(QStringLiteral("spool")));
}
