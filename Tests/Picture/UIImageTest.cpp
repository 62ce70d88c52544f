// Encoding an image that stands for a file.
#include "Platform/UIKit/UIImage.h"

#include "Platform/Foundation/Folders.h"
#include "Tests/Picture/PictureFixture.h"

#include <QRandomGenerator>

#include <future>
#include <vector>

namespace korvane::test {
namespace {

class UIImageEncoding : public testing::Test {
protected:
    UIImageEncoding() { setTemporaryDirectory(_home.path("temporary")); }
    ~UIImageEncoding() override { setTemporaryDirectory({}); }

    static UIImage imageOf(const NSData &data) { return UIImage::imageWithCGImage({data, 0}); }

    LogCapture _log;
    TemporaryHome _home;
};

TEST_F(UIImageEncoding, TakesFilesPartsOfFilesAndBytesAlike) {
    const QByteArray bytes = dataBytes("orientation-6.jpg");
    const QByteArray padded = _home.file("padded", "head" + bytes + "tail");
    const NSData sources[] = {
        *NSData::dataWithContentsOfFile(dataPath("orientation-6.jpg")),
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
        EXPECT_LT(UIImageJPEGRepresentation(imageOf(source), 0.0)->length(), jpeg->length());
    }
    EXPECT_TRUE(QDir(_home.path("temporary")).isEmpty()) << "the results have no names";
}

// Large enough that the children read it piece by piece, at the same time.
TEST_F(UIImageEncoding, EncodesTheSameFileManyTimesAtOnce) {
    QImage noise(1000, 1000, QImage::Format_RGB32);
    QRandomGenerator random(5);
    random.fillRange(reinterpret_cast<quint32 *>(noise.bits()), noise.sizeInBytes() / 4);
    const QString path = _home.path("noise.png");
    ASSERT_TRUE(noise.save(path));
    const auto source = NSData::dataWithContentsOfFile(QFile::encodeName(path));
    std::vector<std::future<QImage>> images;
    for (int i = 0; i < 6; ++i)
        images.push_back(std::async(std::launch::async, [&] {
            const auto data = UIImagePNGRepresentation(imageOf(*source)).value_or(NSData());
            return QImage::fromData(data.bytes()).convertToFormat(QImage::Format_RGB32);
        }));
    for (auto &image : images)
        EXPECT_TRUE(image.get() == noise);
}

TEST_F(UIImageEncoding, IsNullWithAReasonInTheLog) {
    EXPECT_FALSE(UIImageJPEGRepresentation(imageOf(NSData("Dear diary")), 1.0));
    ASSERT_EQ(_log.lines().size(), 1);
    EXPECT_TRUE(says(_log.lines().last(), "not a picture"));
    setTemporaryDirectory(QStringLiteral("/proc/nowhere"));
    EXPECT_FALSE(UIImagePNGRepresentation(imageOf(NSData(dataBytes("quarters.png")))));
    EXPECT_TRUE(says(_log.lines().last(), "NSPOSIXErrorDomain"));
}

} // namespace
} // namespace korvane::test
