// Types of picture and video bytes.
#include "Platform/ImageIO/CGImageSource.h"
#include "Platform/MobileCoreServices/UTType.h"
#include "Tests/Support/Testing.h"

namespace korvane::test {
namespace {

QString typeOf(const QByteArray &bytes) {
    const auto source = CGImageSource::createWithData(NSData(bytes));
    return source ? source->type() : QStringLiteral("no source");
}

TEST(CGImageSource, TakesTheFirstBytesForEnough) {
    const auto withBrand = [](const char *brand) {
        return QByteArray::fromHex("00000018") + "ftyp" + brand + QByteArray(4, '\0') + "mif1" + brand +
               QByteArray(64, '\0');
    };
    EXPECT_EQ(typeOf(QByteArray::fromHex("ffd8ffe0")), kUTTypeJPEG);
    EXPECT_EQ(typeOf(dataBytes("orientation-6.jxl")), kUTTypeJPEGXL);
    EXPECT_EQ(typeOf(dataBytes("quarters.jxl")), kUTTypeJPEGXL);
    EXPECT_EQ(typeOf(dataBytes("quarters.tif")), kUTTypeTIFF);
    EXPECT_EQ(typeOf(dataBytes("quarters.webp")), kUTTypeWebP);
    EXPECT_EQ(typeOf(withBrand("heix")), kUTTypeHEIC);
    EXPECT_EQ(typeOf(withBrand("mif1")), kUTTypeHEIC);
    EXPECT_EQ(typeOf(withBrand("avis")), kUTTypeAVIF);
    const QByteArray webm = QByteArray::fromHex("1a45dfa39f4286810142f7810142f2810442f381084282847765626d");
    const QByteArray wmv = QByteArray::fromHex("3026b2758e66cf11a6d900aa0062ce6c");
    for (const QByteArray &video : {withBrand("isom"), withBrand("XAVC"), withBrand("iso5"), webm, wmv}) {
        EXPECT_EQ(typeOf(video), QString());
        EXPECT_TRUE(UTTypeConformsTo(typeIdentifierForData(NSData(video)), kUTTypeMovie)) << video.constData();
    }
    EXPECT_EQ(typeOf("Dear diary"), QString());
    EXPECT_EQ(typeOf(QByteArray(100, '\0')), QString());
    EXPECT_EQ(typeOf({}), QStringLiteral("no source"));
}

} // namespace
} // namespace korvane::test
