// Which file becomes which attachment.
#include "Platform/Social/SLAttachment.h"

#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/ImageIO/CGImageSource.h"
#include "Platform/MobileCoreServices/UTType.h"
#include "Tests/Support/Testing.h"

#include <sys/stat.h>

using namespace korvane;
using namespace korvane::test;

TEST(SLAttachment, EachFormatTravelsInItsOwnWay) {
    enum Way { OwnBytes, Asset, JPEGCopy, PNGCopy };
    const std::tuple<const char *, bool, bool, Way> cases[] = {
        {"orientation-6.jpg", false, false, OwnBytes}, {"orientation-6.jpg", true, false, OwnBytes},
        {"16bit.png", false, false, OwnBytes},         {"animated.gif", true, false, OwnBytes},
        {"quarters.heic", false, false, JPEGCopy},     {"quarters.heic", true, false, Asset},
        {"rotated.tif", false, false, JPEGCopy},       {"rotated.tif", true, false, Asset},
        {"orientation-6.jpg", true, true, JPEGCopy},   {"16bit.png", false, true, PNGCopy},
        {"animated.gif", false, true, JPEGCopy},       {"quarters.heic", true, true, JPEGCopy},
    };
    const TemporaryHome home;
    const QString before = QDir::currentPath();
    QDir::setCurrent(home.path());
    for (const auto &[file, inLibrary, withoutMetadata, way] : cases) {
        SCOPED_TRACE(::testing::Message() << file << " library " << inLibrary << " bare " << withoutMetadata);
        // The name says nothing about the format: contents count.
        const QByteArray bytes = dataBytes(file);
        const char *const relative = inLibrary ? "library/Pictures/a photo.dat" : "outside/é.mp4";
        const QByteArray path = home.file(relative, bytes);
        std::optional<NSError> error;
        const auto attachment = SLAttachment::photoAttachment(relative, withoutMetadata, &error);
        ASSERT_TRUE(attachment) << error->localizedDescription().toStdString();
        EXPECT_EQ(attachment->type, way == Asset ? 2 : 0);
        EXPECT_EQ(attachment->payloadSourceFileURL.has_value(), way == OwnBytes);
        if (way == Asset) {
            EXPECT_EQ(std::get<NSURL>(attachment->payload), *ALAssetsLibrary::assetURLForFile(path));
            continue;
        }
        const NSData &data = std::get<NSData>(attachment->payload);
        EXPECT_EQ(data.bytes() == bytes, way == OwnBytes);
        EXPECT_TRUE(data.file()) << "large photos must not fill the memory";
        if (way == OwnBytes)
            EXPECT_EQ(attachment->payloadSourceFileURL->fileSystemRepresentation(), path);
        else
            EXPECT_EQ(CGImageSource::createWithData(data)->type(), way == PNGCopy ? kUTTypePNG : kUTTypeJPEG);
    }
    QDir::setCurrent(before);
}

TEST(SLAttachment, UnusableFilesAreNamedWithTheReason) {
    const TemporaryHome home;
    const QByteArray fifo = QFile::encodeName(home.path("fifo"));
    ASSERT_EQ(::mkfifo(fifo.constData(), 0600), 0);
    const std::pair<QByteArray, QByteArray> cases[] = {
        {home.file("text.jpg", "no picture at all\n"), "not a picture"},
        {home.file("film.jpg", QByteArray::fromHex("00000018667479706d703432") + QByteArray(64, '\0')),
         "not a picture"},
        {QFile::encodeName(home.path("nowhere.jpg")), "No such file"},
        {fifo, ""},
        {home.file("damaged.heic", dataBytes("quarters.heic").left(600)), ""},
    };
    for (const auto &[path, reason] : cases) {
        std::optional<NSError> error;
        EXPECT_FALSE(SLAttachment::photoAttachment(path, false, &error)) << path.constData();
        EXPECT_TRUE(says(error, path));
        EXPECT_TRUE(says(error, reason));
    }
    EXPECT_FALSE(SLAttachment::photoProblem(home.file("good.png", dataBytes("16bit.png"))));
}
