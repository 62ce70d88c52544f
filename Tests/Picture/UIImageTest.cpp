// Encoding an image that stands for a file.
#include "Platform/UIKit/UIImage.h"

#include "Platform/Foundation/Folders.h"
#include "Tests/Picture/PictureFixture.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <atomic>
#include <thread>
#include <vector>

namespace korvane::test {
namespace {

class UIImageEncoding : public testing::Test {
protected:
    UIImageEncoding() { setTemporaryDirectory(_home.path(QStringLiteral("temporary"))); }
    ~UIImageEncoding() override { setTemporaryDirectory({}); }

    static UIImage imageOf(const NSData &data, qint64 maxPixels = 0) {
        return UIImage::imageWithCGImage({data, maxPixels});
    }

    LogCapture _log;
    TemporaryHome _home;
};

TEST_F(UIImageEncoding, TakesFilesPartsOfFilesAndBytesAlike) {
    const QByteArray bytes = dataBytes(QStringLiteral("orientation-6.jpg"));
    const QByteArray padded = _home.file(QStringLiteral("padded"), "head" + bytes + "tail");
    const NSData sources[] = {
        *NSData::dataWithContentsOfFile(dataPath(QStringLiteral("orientation-6.jpg"))),
        NSData::dataWithContentsOfFile(padded)->subdata(4, bytes.size()),
        NSData(bytes),
    };
    for (const NSData &source : sources) {
        const auto jpeg = UIImageJPEGRepresentation(imageOf(source), 1.0);
        const auto png = UIImagePNGRepresentation(imageOf(source));
        ASSERT_TRUE(jpeg && png);
        EXPECT_TRUE(jpeg->file()) << "not in memory";
        EXPECT_TRUE(jpeg->isIntact());
        EXPECT_EQ(differenceOf(QImage::fromData(jpeg->bytes(), "JPEG"), usualQuarters), QString());
        EXPECT_EQ(differenceOf(QImage::fromData(png->bytes(), "PNG"), usualQuarters), QString());
    }
    EXPECT_TRUE(QDir(_home.path(QStringLiteral("temporary"))).isEmpty()) << "the results have no names";
}

TEST_F(UIImageEncoding, KeepsToLimitAndQuality) {
    const NSData source(dataBytes(QStringLiteral("orientation-6.jpg")));
    const auto encoded = [&](qint64 maxPixels, double quality) {
        return UIImageJPEGRepresentation(imageOf(source, maxPixels), quality).value_or(NSData()).bytes();
    };
    EXPECT_EQ(QImage::fromData(encoded(32, 1.0)).size(), QSize(32, 24));
    EXPECT_EQ(QImage::fromData(encoded(Q_INT64_C(5'000'000'000), 1.0)).size(), QSize(64, 48));
    EXPECT_LT(encoded(0, 0.0).size(), encoded(0, 1.0).size());
}

// Large enough that the children read it piece by piece, at the same time.
TEST_F(UIImageEncoding, EncodesTheSameFileManyTimesAtOnce) {
    QImage noise(1000, 1000, QImage::Format_RGB32);
    QRandomGenerator random(5);
    random.fillRange(reinterpret_cast<quint32 *>(noise.bits()), noise.sizeInBytes() / 4);
    const QString path = _home.path(QStringLiteral("noise.png"));
    ASSERT_TRUE(noise.save(path));
    const auto source = NSData::dataWithContentsOfFile(QFile::encodeName(path));
    std::atomic<int> right = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 6; ++i)
        threads.emplace_back([&] {
            const auto data = UIImagePNGRepresentation(imageOf(*source));
            if (data && QImage::fromData(data->bytes()).convertToFormat(QImage::Format_RGB32) == noise) ++right;
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(right, 6);
}

TEST_F(UIImageEncoding, IsNullWithAReasonInTheLog) {
    const struct {
        QByteArray bytes;
        const char *reason;
    } table[] = {
        {{}, "the file is empty"},
        {"Dear diary", "not a picture"},
        {dataBytes(QStringLiteral("orientation-1.jpg")).left(3600), "damaged"},
    };
    qsizetype lines = 0;
    for (const auto &one : table) {
        EXPECT_FALSE(UIImageJPEGRepresentation(imageOf(NSData(one.bytes)), 1.0));
        ASSERT_EQ(_log.lines().size(), ++lines);
        EXPECT_TRUE(_log.lines().last().contains(QLatin1String(one.reason))) << qPrintable(_log.lines().last());
    }
    setTemporaryDirectory(QStringLiteral("/proc/nowhere"));
    EXPECT_FALSE(UIImagePNGRepresentation(imageOf(NSData(dataBytes(QStringLiteral("quarters.png"))))));
    EXPECT_TRUE(_log.lines().last().contains(QStringLiteral("NSPOSIXErrorDomain"))) << qPrintable(_log.lines().last());
}

} // namespace
} // namespace korvane::test
