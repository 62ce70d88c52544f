// Which file becomes which attachment.
#include "Platform/Social/SLAttachment.h"

#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/ImageIO/CGImageSource.h"
#include "Platform/MobileCoreServices/UTType.h"
#include "Tests/Support/TemporaryHome.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace korvane;

namespace {

QByteArray contentsOf(const char *name) {
    QFile file(QStringLiteral(TEST_DATA_FOLDER "/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

QString typeOf(const NSData &data) {
    return CGImageSource::createWithData(data)->type();
}

} // namespace

TEST(SLAttachment, EachFormatTravelsInItsOwnWay) {
    enum Way { OwnBytes, Asset, JPEGCopy, PNGCopy };
    struct Case {
        const char *file;
        bool inLibrary;
        bool withoutMetadata;
        Way way;
    };
    const Case cases[] = {
        {"orientation-6.jpg", false, false, OwnBytes}, {"orientation-6.jpg", true, false, OwnBytes},
        {"16bit.png", false, false, OwnBytes},         {"animated.gif", true, false, OwnBytes},
        {"quarters.heic", false, false, JPEGCopy},     {"quarters.heic", true, false, Asset},
        {"quarters.webp", false, false, JPEGCopy},     {"quarters.webp", true, false, Asset},
        {"rotated.tif", false, false, JPEGCopy},       {"rotated.tif", true, false, Asset},
        {"orientation-6.jpg", true, true, JPEGCopy},   {"16bit.png", false, true, PNGCopy},
        {"animated.gif", false, true, JPEGCopy},       {"quarters.heic", true, true, JPEGCopy},
    };
    const test::TemporaryHome home;
    for (const Case &row : cases) {
        SCOPED_TRACE(QStringLiteral("%1 library %2 bare %3")
                         .arg(QLatin1String(row.file))
                         .arg(row.inLibrary)
                         .arg(row.withoutMetadata)
                         .toStdString());
        // The name says nothing about the format: contents count.
        const QString name =
            row.inLibrary ? QStringLiteral("library/Pictures/a photo.dat") : QStringLiteral("outside/é.mp4");
        const QByteArray bytes = contentsOf(row.file);
        const QByteArray path = home.file(name, bytes);
        std::optional<NSError> error;
        const auto attachment = SLAttachment::photoAttachment(path, row.withoutMetadata, &error);
        ASSERT_TRUE(attachment) << error->localizedDescription().toStdString();
        EXPECT_EQ(attachment->type, row.way == Asset ? 2 : 0);
        EXPECT_EQ(attachment->payloadSourceFileURL.has_value(), row.way == OwnBytes);
        if (row.way == Asset) {
            EXPECT_EQ(std::get<NSURL>(attachment->payload), *ALAssetsLibrary::assetURLForFile(path));
            continue;
        }
        const NSData &data = std::get<NSData>(attachment->payload);
        if (row.way == OwnBytes) {
            EXPECT_EQ(data.bytes(), bytes);
            EXPECT_TRUE(data.file()) << "large photos must not fill the memory";
            EXPECT_EQ(attachment->payloadSourceFileURL->fileSystemRepresentation(), path);
        } else {
            EXPECT_EQ(typeOf(data), row.way == PNGCopy ? kUTTypePNG : kUTTypeJPEG);
            EXPECT_NE(data.bytes(), bytes);
        }
    }
}

TEST(SLAttachment, ARelativePathGivesAnAbsoluteSourceURL) {
    const test::TemporaryHome home;
    const QByteArray path = home.file(QStringLiteral("here.jpg"), contentsOf("orientation-1.jpg"));
    const QString before = QDir::currentPath();
    QDir::setCurrent(home.path());
    const auto attachment = SLAttachment::photoAttachment("here.jpg", false);
    QDir::setCurrent(before);
    ASSERT_TRUE(attachment);
    EXPECT_EQ(FileIdentity::ofPath(attachment->payloadSourceFileURL->fileSystemRepresentation()),
              FileIdentity::ofPath(path));
    EXPECT_TRUE(attachment->payloadSourceFileURL->fileSystemRepresentation().startsWith('/'));
}

TEST(SLAttachment, UnusableFilesAreNamedWithTheReason) {
    const test::TemporaryHome home;
    const QByteArray fifo = QFile::encodeName(home.path(QStringLiteral("fifo")));
    ASSERT_EQ(::mkfifo(fifo.constData(), 0600), 0);
    const std::tuple<QByteArray, const char *> cases[] = {
        {home.file(QStringLiteral("empty.jpg"), {}), "is empty"},
        {home.file(QStringLiteral("text.jpg"), "no picture at all\n"), "not a picture"},
        {home.file(QStringLiteral("film.jpg"), QByteArray::fromHex("00000018667479706d703432") + QByteArray(64, '\0')),
         "not a picture"},
        {QFile::encodeName(home.path(QStringLiteral("nowhere.jpg"))), "No such file"},
        {QFile::encodeName(home.path()), "directory"},
        {fifo, ""},
        {home.file(QStringLiteral("damaged.heic"), contentsOf("quarters.heic").left(600)), ""},
    };
    for (const auto &[path, reason] : cases) {
        std::optional<NSError> error;
        EXPECT_FALSE(SLAttachment::photoAttachment(path, false, &error)) << path.constData();
        ASSERT_TRUE(error);
        const std::string text = error->localizedDescription().toStdString();
        EXPECT_NE(text.find(path.toStdString()), std::string::npos) << text;
        EXPECT_NE(text.find(reason), std::string::npos) << text;
    }
    EXPECT_FALSE(SLAttachment::photoProblem(home.file(QStringLiteral("good.png"), contentsOf("16bit.png"))));
}
