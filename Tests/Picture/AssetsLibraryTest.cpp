// The photo library: URLs of files, look-up, and what must not be reached.
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"

#include "Platform/Foundation/Folders.h"
#include "Platform/MobileCoreServices/UTType.h"
#include "Platform/UIKit/UIImage.h"
#include "Tests/Picture/PictureFixture.h"

#include <sys/stat.h>

#include <future>

namespace korvane::test {
namespace {

// Null if there is none, which is no error.
std::shared_ptr<ALAsset> lookUp(const NSURL &url) {
    std::promise<std::shared_ptr<ALAsset>> found;
    ALAssetsLibrary().assetForURL(
        url, [&](const std::shared_ptr<ALAsset> &asset) { found.set_value(asset); },
        [&](const NSError &error) {
            ADD_FAILURE() << error.description().toStdString();
            found.set_value(nullptr);
        });
    return found.get_future().get();
}

class PhotoLibrary : public testing::Test {
protected:
    PhotoLibrary() {
        setTemporaryDirectory(_home.path("temporary"));
        QDir().mkpath(_home.path("library/Pictures"));
        QDir().mkpath(_home.path("library/Videos"));
    }
    ~PhotoLibrary() override { setTemporaryDirectory({}); }

    QByteArray addPicture(const char *below) const {
        return _home.file(QByteArray("library/Pictures/") + below, picture);
    }
    static NSURL assetURL(const QByteArray &id) {
        return *NSURL::URLWithString(
            QString::fromLatin1("assets-library://asset/asset.JPG?id=" + id.toPercentEncoding() + "&ext=JPG"));
    }

    TemporaryHome _home;
    const QByteArray picture = dataBytes("orientation-6.jpg");
};

TEST_F(PhotoLibrary, GivesEveryFileAURLThatFindsItAgain) {
    addPicture("folder/other.jpg");
    const QByteArray root = QFile::encodeName(_home.path("library/Pictures/"));
    const std::pair<QByteArray, QByteArray> files[] = {
        {"folder/plain.jpg", "assets-library://asset/asset.JPG?id=pictures%2Ffolder%2Fplain.jpg&ext=JPG"},
        {"one & two=3?#%41.jpg",
         "assets-library://asset/asset.JPG?id=pictures%2Fone%20%26%20two%3D3%3F%23%2541.jpg&ext=JPG"},
        {"caf\xc3\xa9.jpeg", "assets-library://asset/asset.JPEG?id=pictures%2Fcaf%C3%A9.jpeg&ext=JPEG"},
        {"latin-\xe9\xff.jpg", "assets-library://asset/asset.JPG?id=pictures%2Flatin-%E9%FF.jpg&ext=JPG"},
        {"no-extension", "assets-library://asset/asset?id=pictures%2Fno-extension&ext="},
        {".hidden", "assets-library://asset/asset?id=pictures%2F.hidden&ext="},
    };
    for (const auto &[name, text] : files) {
        SCOPED_TRACE(text.constData());
        const FileDescriptor file(::open((root + name).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
        ASSERT_EQ(::write(file.get(), picture.constData(), size_t(picture.size())), picture.size());
        const auto url = ALAssetsLibrary::assetURLForFile(root + name);
        ASSERT_TRUE(url);
        EXPECT_EQ(url->absoluteString().toLatin1(), text);
        const auto asset = lookUp(*url);
        ASSERT_TRUE(asset);
        EXPECT_EQ(asset->url(), *url);
        EXPECT_EQ(asset->defaultRepresentation()->data().bytes(), picture);
        ::unlink((root + name).constData()); // Qt cannot remove every one of them
    }
}

TEST_F(PhotoLibrary, ShowsTheAssetUprightAndAsLargeAsTheSettingSays) {
    const auto asset = lookUp(*ALAssetsLibrary::assetURLForFile(addPicture("a.jpg")));
    ASSERT_TRUE(asset);
    const auto representation = asset->defaultRepresentation();
    EXPECT_EQ(representation->UTI(), kUTTypeJPEG);
    EXPECT_EQ(representation->filename(), QStringLiteral("a.jpg"));

    const auto shown = [&] {
        const auto image = UIImage::imageWithCGImage(representation->zoomableDisplayImage());
        return QImage::fromData(UIImageJPEGRepresentation(image, 1.0).value_or(NSData()).bytes());
    };
    EXPECT_EQ(shown().size(), QSize(64, 48));
    EXPECT_EQ(differenceOf(shown(), usualQuarters), QString());
    _home.file("config/korvane/preferences/com.zorvex.korvane.json", R"({"DisplayImageMaxPixels": 32})");
    EXPECT_EQ(shown().size(), QSize(32, 24));
}

TEST_F(PhotoLibrary, HasNoAssetOutsideItsFolders) {
    addPicture("in.jpg");
    addPicture("folder/in.jpg");
    const QByteArray outside = _home.file("outside.jpg", picture);
    const QString pictures = _home.path("library/Pictures/");
    for (const auto &[name, target] : {std::pair("absolute.jpg", QFile::decodeName(outside)),
                                       {"relative.jpg", QStringLiteral("../../outside.jpg")},
                                       {"home", _home.path()},
                                       {"magic", QStringLiteral("/proc/self/cwd")},
                                       {"loop", QStringLiteral("loop")},
                                       {"inside.jpg", QStringLiteral("folder/in.jpg")}})
        ASSERT_TRUE(QFile::link(target, pictures + QLatin1String(name)));
    ::mkfifo(QFile::encodeName(pictures + QStringLiteral("fifo.jpg")).constData(), 0600);

    EXPECT_TRUE(lookUp(assetURL("pictures/inside.jpg"))) << "a link within the folder";
    EXPECT_TRUE(lookUp(assetURL("pictures/folder/../in.jpg")));
    for (const char *id :
         {"pictures/../../outside.jpg", "pictures/folder/../../../outside.jpg", "pictures/absolute.jpg",
          "pictures/relative.jpg", "pictures/home/outside.jpg", "pictures/magic/in.jpg", "pictures/loop",
          "pictures/fifo.jpg", "pictures/folder", "pictures/missing.jpg", "pictures/in.jpg/deeper", "pictures/",
          "pictures", "music/in.jpg", ""})
        EXPECT_FALSE(lookUp(assetURL(id))) << id;
    EXPECT_FALSE(lookUp(assetURL("pictures/" + outside)));
    EXPECT_FALSE(lookUp(assetURL("pictures/" + QByteArray(5000, 'n'))));
    EXPECT_FALSE(lookUp(assetURL(QByteArray("pictures/in.jpg\0.txt", 20))));
    for (const char *url :
         {"assets-library://asset/asset.JPG", "file:///etc/passwd", "assets-library://asset/?ext=JPG&idx=1"})
        EXPECT_FALSE(lookUp(*NSURL::URLWithString(QString::fromLatin1(url)))) << url;

    for (const QString &path :
         {QFile::decodeName(outside), pictures + QStringLiteral("relative.jpg"), pictures + QStringLiteral("folder"),
          pictures + QStringLiteral("missing.jpg"), QString()})
        EXPECT_FALSE(ALAssetsLibrary::assetURLForFile(QFile::encodeName(path))) << qPrintable(path);
}

TEST_F(PhotoLibrary, LooksForVideosAndForFoldersThatAreNotThere) {
    const QByteArray video =
        QByteArray::fromHex("00000018") + "ftypisom" + QByteArray(4, '\0') + "isommp42" + QByteArray(99, 'v');
    const QByteArray path = _home.file("library/Videos/Clip One.mp4", video);
    const auto url = ALAssetsLibrary::assetURLForFile(path);
    ASSERT_TRUE(url);
    EXPECT_EQ(url->absoluteString(),
              QStringLiteral("assets-library://asset/asset.MP4?id=videos%2FClip%20One.mp4&ext=MP4"));
    EXPECT_EQ(lookUp(*url)->defaultRepresentation()->UTI(), kUTTypeMPEG4);

    const auto pictures = [] { return ALAssetsLibrary::photoRoots().value(QStringLiteral("pictures")); };
    EXPECT_EQ(pictures(), _home.path("library/Pictures"));
    QDir(_home.path("library/Pictures")).removeRecursively();
    EXPECT_EQ(pictures(), _home.path("library"));
    // Now the one folder is inside the other, and the inner one is meant.
    EXPECT_EQ(ALAssetsLibrary::assetURLForFile(path), url);
    const QByteArray loose = _home.file("library/b.jpg", picture);
    EXPECT_TRUE(lookUp(*ALAssetsLibrary::assetURLForFile(loose)));

    _home.setEnvironment("KORVANE_PHOTO_LIBRARY", {});
    EXPECT_EQ(pictures(), _home.path("Pictures"));
}

} // namespace
} // namespace korvane::test
