// korvane-picture on files of other programs: position, colours, metadata, limits and refusals.
#include "Platform/Foundation/FileDescriptor.h"
#include "Tests/Picture/PictureFixture.h"

#include <QPainter>

#include <algorithm>
#include <vector>

namespace korvane::test {
namespace {

struct Case {
    const char *file;
    Quarters quarters = usualQuarters;
    int tolerance = 3;
};

// Of pictures that are usual in all but their format and position.
const char *const usualFiles[] = {"orientation-1.jpg", "orientation-2.jpg", "orientation-3.jpg", "orientation-4.jpg",
                                  "orientation-5.jpg", "orientation-6.jpg", "orientation-7.jpg", "orientation-8.jpg",
                                  "orientation-6.jxl", "rotated.png",       "rotated.tif",       "rotated.webp",
                                  "rotated.avif",      "quarters.png",      "quarters.tif",      "quarters.webp",
                                  "quarters.heic",     "quarters.avif",     "quarters.jxl",      "animated.gif"};

constexpr Quarters translucentOnWhite = {0xffff0000, 0xffffffff, 0xff7f7fff, 0xffffffff};
constexpr Quarters greys = {0xff000000, 0xff505050, 0xffa0a0a0, 0xffffffff};
constexpr Quarters darkerGreen = {0xffff0000, 0xff00c800, 0xff0000ff, 0xffffffff};

std::vector<Case> allCases() {
    std::vector<Case> cases{
        {"16bit.png", {0xffff8040, 0xff00ff00, 0xff0000ff, 0xffffffff}},
        {"display-p3.jpg", darkerGreen, 8}, // unconverted, its red would be (234, 51, 35)
        {"display-p3.png", darkerGreen},
        {"display-p3.heic", darkerGreen, 8},
        {"cmyk.jpg", {0xffe8141c, 0xff008c3c, 0xff1c1478, 0xffffffff}, 40}, // inks have no exact sRGB colour
        {"grey.jpg", greys},
        {"grey-with-rgb-profile.jpg", greys},
        {"transparent.png", translucentOnWhite},
        {"16bit-alpha-p3.png", translucentOnWhite},
    };
    for (const char *file : usualFiles)
        cases.push_back({file});
    return cases;
}

// JPEG has no alpha: what shines through is white. A PNG is looked at in the same way.
QImage onWhite(const QByteArray &bytes) {
    const QImage picture = QImage::fromData(bytes);
    QImage result(picture.size(), QImage::Format_RGB32);
    result.fill(Qt::white);
    QPainter(&result).drawImage(0, 0, picture);
    return result;
}

TEST(Picture, IsTurnedUprightInTheUsualColoursAndShrunkToALimit) {
    const std::tuple<QByteArray, QSize, int> runs[] = {
        {"convert --quality 100 --to png", {64, 48}, 0},   {"convert --quality 100 --to jpeg", {64, 48}, 0},
        {"convert --to png --max-pixels 32", {32, 24}, 6}, {"thumbnail --to png --size 32", {32, 24}, 6},
        {"thumbnail --to png --size 640", {64, 48}, 0},
    };
    for (const Case &picture : allCases()) {
        const QByteArray path = dataPath(picture.file);
        EXPECT_EQ(runPicture({"check"}, path).status, 0) << picture.file;
        for (const auto &[arguments, size, tolerance] : runs) {
            SCOPED_TRACE(arguments.toStdString() + " of " + picture.file);
            const PictureRun run = runPicture(arguments.split(' '), path);
            ASSERT_EQ(run.status, 0) << run.errors.constData();
            EXPECT_EQ(QImage::fromData(run.output).hasAlphaChannel(),
                      arguments.contains("png") && picture.quarters == translucentOnWhite);
            EXPECT_EQ(onWhite(run.output).size(), size);
            EXPECT_EQ(differenceOf(onWhite(run.output), picture.quarters, std::max(picture.tolerance, tolerance)),
                      QString());
        }
    }
}

TEST(Picture, LosesPlaceAndCameraData) {
    const QByteArray original = dataBytes("orientation-6.jpg");
    const PictureRun jpeg = runPicture({"convert", "--to", "jpeg"}, dataPath("orientation-6.jpg"));
    const PictureRun png = runPicture({"convert", "--to", "png"}, dataPath("orientation-6.jpg"));
    ASSERT_TRUE(jpeg.status == 0 && png.status == 0);
    for (const char *trace : {"Exif", "Fixture", "secret title", "secretcity", "http://ns.adobe.com", "Photoshop"}) {
        ASSERT_TRUE(original.contains(trace)) << trace;
        EXPECT_FALSE(jpeg.output.contains(trace) || png.output.contains(trace)) << trace;
    }
    EXPECT_FALSE(png.output.contains("eXIf"));
    const PictureRun wide = runPicture({"convert", "--to", "jpeg"}, dataPath("display-p3.jpg"));
    EXPECT_FALSE(wide.output.contains("Display P3")) << "the profile no longer holds";
}

// Runs convert on a picture made on the spot.
QImage asJPEG(const QImage &picture) {
    const TemporaryHome home;
    const QString path = home.path("picture.png");
    EXPECT_TRUE(picture.save(path));
    const PictureRun run = runPicture({"convert", "--to", "jpeg", "--quality", "100"}, QFile::encodeName(path));
    EXPECT_EQ(run.status, 0) << run.errors.constData();
    return QImage::fromData(run.output, "JPEG");
}

// Chroma at full resolution: a one-pixel checkerboard of red and blue keeps its colours.
TEST(Picture, KeepsFineColoursAtFullQuality) {
    QImage board(64, 64, QImage::Format_RGB32);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            board.setPixel(x, y, (x + y) % 2 == 0 ? 0xffff0000 : 0xff0000ff);
    const QImage seen = asJPEG(board);
    EXPECT_NEAR(qRed(seen.pixel(20, 20)), 255, 12);
    EXPECT_NEAR(qRed(seen.pixel(21, 20)), 0, 12);
    EXPECT_NEAR(qBlue(seen.pixel(21, 20)), 255, 12);
}

TEST(Picture, IsShrunkWhereJPEGCannotBeAsLong) {
    QImage strip(70000, 70, QImage::Format_RGB32);
    strip.fill(0xff336699);
    const QImage seen = asJPEG(strip);
    EXPECT_EQ(seen.width(), 65500);
    EXPECT_NEAR(seen.height(), 65, 1);
}

TEST(Picture, IsRefusedWithOneLineThatSaysWhy) {
    const TemporaryHome home;
    const auto cut = [](const char *name) { return dataBytes(name).chopped(dataBytes(name).size() / 5); };
    QByteArray huge = dataBytes("orientation-1.jpg");
    huge.replace(huge.indexOf(QByteArray::fromHex("ffc0001108")) + 5, 4, QByteArray::fromHex("ea60ea60")); // its size
    const std::tuple<const char *, QByteArray, const char *> refused[] = {
        {"empty", {}, "empty"},
        {"text", "Dear diary, this is no picture at all.\n", "not a picture"},
        {"JPEG header alone", QByteArray::fromHex("ffd8ff"), "damaged"},
        {"JPEG header and noise", jpegOfSize(20'000), "damaged"},
        {"SVG", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"><rect/></svg>", "not a picture"},
        {"huge", huge, "too large: 60000 x 60000"},
        {"cut JPEG", cut("orientation-1.jpg"), "damaged"},
        {"cut PNG", cut("quarters.png"), "damaged"},
        {"cut GIF", dataBytes("animated.gif").left(250), "damaged"},
        {"cut TIFF", cut("quarters.tif"), "picture"},
        {"cut WebP", cut("quarters.webp"), "damaged"},
        {"cut HEIC", cut("quarters.heic"), "damaged"},
        {"cut AVIF", cut("quarters.avif"), "damaged"},
        {"cut JPEG XL", cut("orientation-6.jxl"), "damaged"},
    };
    for (const auto &[what, bytes, reason] : refused) {
        SCOPED_TRACE(what);
        const QByteArray path = home.file("refused", bytes);
        for (const QByteArrayList &arguments : {QByteArrayList{"check"}, QByteArrayList{"convert", "--to", "jpeg"}}) {
            const PictureRun run = runPicture(arguments, path);
            EXPECT_EQ(run.status, 1) << arguments.first().constData();
            EXPECT_TRUE(says(run.errors, reason));
            EXPECT_EQ(run.errors.count('\n'), 1) << run.errors.constData();
        }
    }
}

TEST(Picture, TellsBadUsageAndAFailedOutputApart) {
    const QByteArray path = dataPath("quarters.png");
    for (const char *wrong : {"frame --to png", "convert --to bmp", "convert --to jpeg --quality 101"})
        EXPECT_EQ(runPicture(QByteArray(wrong).split(' '), path).status, 2) << wrong;
    EXPECT_EQ(runPicture({"check"}, "/dev/zero").status, 2) << "not a regular file";

    const FileDescriptor device(::open("/dev/full", O_WRONLY | O_CLOEXEC));
    const PictureRun failed = runPicture({"convert", "--to", "jpeg"}, path, device.get());
    EXPECT_EQ(failed.status, 3);
    EXPECT_TRUE(says(failed.errors, "No space left"));
}

} // namespace
} // namespace korvane::test
