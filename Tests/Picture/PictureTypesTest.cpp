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
    EXPECT_EQ(typeOf(withBrand("isom")), QString()) << "a video";
    EXPECT_EQ(typeOf("Dear diary"), QString());
    EXPECT_EQ(typeOf(QByteArray(100, '\0')), QString());
    EXPECT_EQ(typeOf({}), QStringLiteral("no source"));
}

TEST(UTType, ConformsToItselfAndToWhatItIsASpecialCaseOf) {
    const QString unknown = QStringLiteral("org.example.unknown");
    const std::tuple<QString, QString, bool> table[] = {
        {kUTTypePNG, kUTTypePNG, true},     {kUTTypePNG, kUTTypeImage, true},
        {kUTTypePNG, kUTTypeItem, true},    {QStringLiteral("PUBLIC.PNG"), kUTTypePNG, true},
        {kUTTypeJPEG, kUTTypePNG, false},   {kUTTypeImage, kUTTypePNG, false},
        {kUTTypeMPEG4, kUTTypeMovie, true}, {kUTTypeMPEG4, kUTTypeImage, false},
        {QString(), QString(), false},      {QString(), kUTTypeImage, false},
        {unknown, kUTTypeImage, false},     {unknown, unknown, true},
    };
    for (const auto &[type, other, conforms] : table)
        EXPECT_EQ(UTTypeConformsTo(type, other), conforms) << qPrintable(type) << " to " << qPrintable(other);
}

} // namespace
} // namespace korvane::test
