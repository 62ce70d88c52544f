// Records on their way between programs, as far as that can be seen without a bus.
#include "Platform/Social/WireRecord.h"
#include "Platform/Foundation/FileError.h"
#include "Platform/Foundation/NSData.h"
#include "Platform/Social/DataFile.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Tests/Support/Testing.h"

#include <QUrl>

#include <fcntl.h>

using namespace korvane;
using namespace korvane::test;

namespace {

const QString key = QStringLiteral("photoData");

QVariantMap recordOf(const NSData &data) {
    return {{key, QVariant::fromValue(data)}};
}

} // namespace

TEST(WireRecord, PutsSmallDataInTheMessageAndTheRestInOneUnnamedFile) {
    const TemporaryHome home;
    const QByteArray small = jpegOfSize(60'000, 1);
    const QByteArray large = jpegOfSize(200'000, 2);
    const QByteArray path = home.file("large.jpg", large);
    const QString folder = home.path("spool");
    auto message = WireRecord::encode(
        {recordOf(NSData(small)), recordOf(NSData(large)), recordOf(*NSData::dataWithContentsOfFile(path))}, folder,
        nullptr);
    ASSERT_TRUE(message);
    EXPECT_EQ(message->records[0].value(key).toByteArray(), small);
    EXPECT_TRUE(QDir(folder).isEmpty());
    EXPECT_EQ(::fcntl(message->dataFile.get(), F_GETFL) & O_ACCMODE, O_RDONLY);
    const auto file = std::make_shared<const FileDescriptor>(std::move(message->dataFile));
    for (const int i : {1, 2}) {
        const auto range = message->records[i].value(key).value<DataRange>();
        EXPECT_EQ(NSData::dataWithFile(file, qint64(range.offset), qint64(range.length)).bytes(), large);
    }
}

TEST(WireRecord, NamesAFileThatHasChangedSinceItWasChosen) {
    const TemporaryHome home;
    for (const qint64 size : {60'000, 200'000})
        for (const qint64 later : {size / 2, qint64(0), size}) {
            const QByteArray path = home.file("sea.jpg", jpegOfSize(size));
            const auto data = NSData::dataWithContentsOfFile(path);
            home.file("sea.jpg", jpegOfSize(later, 2));
            std::optional<NSError> error;
            EXPECT_FALSE(WireRecord::encode({recordOf(*data)}, home.path("spool"), &error)) << size << ' ' << later;
            ASSERT_TRUE(says(error, path + ": the file has changed since it was chosen"));
            EXPECT_FALSE(says(FileError::reasonOf(*error), "sea.jpg")) << "for where its name stands already";
        }
}

TEST(WireRecord, RefusesWhatTheBusWouldGarbleOrDieOf) {
    const TemporaryHome home;
    const std::pair<QVariant, const char *> cases[] = {
        {QString(QStringLiteral("a") + QChar::Null + QStringLiteral("b")), "NUL"},
        {QStringList{QStringLiteral("ok"), QString(QChar::Null)}, "NUL"},
        {QUrl(QStringLiteral("http://a")), "QUrl"},
        {QVariant(), "photoData"},
        {QString(40 * 1024 * 1024, u'x'), "Too much"},
    };
    for (const auto &[value, expected] : cases) {
        std::optional<NSError> error;
        EXPECT_FALSE(WireRecord::encode({QVariantMap{{key, value}}}, home.path(), &error));
        ASSERT_TRUE(says(error, expected));
        EXPECT_EQ(error->code(), RemoteServiceErrorUnusableRecord);
    }
}
