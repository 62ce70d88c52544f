// Exports of real videos with the real ffmpeg.
#include "Platform/AVFoundation/AVError.h"
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/MobileCoreServices/UTType.h"
#include "Tests/AVFoundation/VideoFixture.h"
#include "Tests/Support/Printing.h"
#include "Tests/Support/WaitFor.h"

#include <QFileInfo>

#include <atomic>

namespace korvane::test {
namespace {

const std::optional<QString> none;
const std::optional<QString> low = AVAssetExportPresetLowQuality;
const std::optional<QString> medium = AVAssetExportPresetMediumQuality;
const std::optional<QString> highest = AVAssetExportPresetHighestQuality;

const QString usual = QStringLiteral("-c:v libx264 -preset ultrafast -pix_fmt yuv420p -c:a aac ");

class VideoExport : public VideoTest {
protected:
    QByteArray contents() const {
        QFile file(QFile::decodeName(output));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // The export of a file that cannot be exported.
    NSError errorFor(const NSURL &url) const {
        const auto session = sessionFor(url, highest);
        runToEnd(session);
        EXPECT_EQ(session->status(), AVAssetExportSessionStatusFailed);
        EXPECT_LT(session->progress(), 1);
        EXPECT_FALSE(QFileInfo::exists(QFile::decodeName(output)));
        return session->error().value_or(NSError(QStringLiteral("none"), 0));
    }
};

TEST_F(VideoExport, MakesAnMP4FileOfThePresetsSizeFromAnySource) {
    const QString camera = QStringLiteral("-c:v libx264 -preset ultrafast -pix_fmt yuv420p -c:a pcm_s16le");
    const QString deep = QStringLiteral("-map 0 -c:v libx265 -preset ultrafast -x265-params log-level=none "
                                        "-pix_fmt yuv420p10le");
    const struct {
        const char *name;
        QString arguments;
        bool isTurned;
        std::optional<QString> preset;
        const char *streams;
        bool copiesVideo;
    } table[] = {
        {"usual.mp4", usual, false, highest, "h264 320x240 yuv420p aac", true},
        {"silent.mkv", usual + QStringLiteral("-map 0"), false, none, "h264 320x240 yuv420p", true},
        {"small.mp4", usual, false, medium, "h264 320x240 yuv420p aac", false},
        {"camera.mov", camera, false, highest, "h264 320x240 yuv420p aac", true},
        {"turned.mp4", usual, true, highest, "h264 320x240 yuv420p turned by 90 aac", true},
        {"upright.mp4", usual + QStringLiteral("-vf scale=720:400"), true, low, "h264 354x640 yuv420p aac", false},
        {"deep.mov", deep, false, none, "h264 320x240 yuv420p", false},
        {"odd.avi", QStringLiteral("-vf scale=723:405 -c:v mpeg4 -q:v 5 -c:a mp3"), false, low,
         "h264 640x358 yuv420p aac", false},
    };
    for (const auto &[name, arguments, isTurned, preset, streams, copiesVideo] : table) {
        SCOPED_TRACE(name);
        const QByteArray made = makeVideo(QString::fromLatin1(name), arguments);
        const QByteArray source = isTurned ? turn(made) : made;
        const auto session = sessionFor(source, preset);
        runToEnd(session);
        ASSERT_EQ(session->error(), std::nullopt);
        EXPECT_EQ(session->status(), AVAssetExportSessionStatusCompleted);
        EXPECT_EQ(streamsOf(output), QString::fromLatin1(streams));
        EXPECT_EQ(checksumOfVideo(source) == checksumOfVideo(output), copiesVideo);
        const QByteArray bytes = contents();
        EXPECT_EQ(bytes.mid(4, 4), "ftyp");
        EXPECT_LT(bytes.indexOf("moov"), bytes.indexOf("mdat")) << "the index comes first";

        const auto estimate =
            ALAssetsLibrary::_estimatedOutputFileLengthForVideoURL(NSURL::fileURLWithPath(source), {}, preset, {});
        EXPECT_NEAR(double(estimate), double(bytes.size()), 0.25 * double(bytes.size()));
    }
}

TEST_F(VideoExport, SaysWhatIsWrongWithASourceThatCannotBeUsed) {
    QFile whole(QFile::decodeName(makeUsualVideo()));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    const auto place = [](const char *name) { return QStringLiteral("library/Videos/") + QString::fromLatin1(name); };
    home.file(place("text.mp4"), "Dear diary");
    home.file(place("cut.mp4"), bytes.left(bytes.size() / 2));
    home.file(place("no-index.mp4"), bytes.left(200));
    home.file(place("empty.mp4"), {});
    home.file(place("list.mp4"), "#EXTM3U\n#EXT-X-TARGETDURATION:2\n#EXTINF:2,\nfile://" +
                                     QFile::encodeName(whole.fileName()) + "\n#EXT-X-ENDLIST\n");
    home.file(place("joined.mp4"), "ffconcat version 1.0\nfile usual.mp4\n");
    makeVideo(QStringLiteral("sound.mp4"), QStringLiteral("-map 1 -c:a aac"));
    makeVideo(QStringLiteral("cut.mkv"), usual);
    QFile matroska(home.path(place("cut.mkv")));
    ASSERT_TRUE(matroska.resize(matroska.size() / 2));
    QFile damaged(QFile::decodeName(makeVideo(QStringLiteral("damaged.mp4"), QStringLiteral("-c:v mpeg4"))));
    ASSERT_TRUE(damaged.open(QIODevice::ReadWrite) && damaged.seek(damaged.size() / 2));
    damaged.write(jpegOfSize(5'000));
    damaged.close();
    makeVideo(QStringLiteral("picture.mp4"), QStringLiteral("-frames:v 1 -c:v mjpeg -f mjpeg"));
    const struct {
        const char *name;
        AVErrorCode code;
        const char *text;
    } table[] = {
        {"text.mp4", AVErrorFileFormatNotRecognized, "Check that it plays"},
        {"picture.mp4", AVErrorFileFormatNotRecognized, "choose another file"},
        {"no-index.mp4", AVErrorFileFormatNotRecognized, "is not a video"},
        {"empty.mp4", AVErrorFileFormatNotRecognized, "is not a video"},
        {"list.mp4", AVErrorFileFormatNotRecognized, "is not a video"},
        {"joined.mp4", AVErrorFileFormatNotRecognized, "is not a video"},
        {"sound.mp4", AVErrorInvalidSourceMedia, "no pictures"},
        {"damaged.mp4", AVErrorFileFailedToParse, "damaged or incomplete"},
        {"cut.mp4", AVErrorFileFailedToParse, "damaged or incomplete"},
        {"cut.mkv", AVErrorFileFailedToParse, "damaged or incomplete"},
        {"missing.mp4", AVErrorContentIsUnavailable, "Choose it again"},
        {"", AVErrorContentIsUnavailable, "Choose it again"}, // a folder
    };
    for (const auto &[name, code, text] : table) {
        SCOPED_TRACE(name);
        const QByteArray path = QFile::encodeName(home.path(place(name)));
        const NSError error = errorFor(NSURL::fileURLWithPath(path));
        EXPECT_EQ(error.domain(), AVFoundationErrorDomain);
        EXPECT_EQ(error.code(), code) << qPrintable(error.description());
        EXPECT_TRUE(error.localizedDescription().contains(QLatin1String(text))) << qPrintable(error.description());
        EXPECT_TRUE(error.localizedDescription().contains(QLatin1String(name)));
    }
    for (const char *url : {"assets-library://asset/asset.MP4?id=videos%2Fgone.mp4&ext=MP4", "assets-library://x",
                            "http://127.0.0.1:9/a.mp4"})
        EXPECT_EQ(errorFor(*NSURL::URLWithString(QString::fromLatin1(url))).code(), AVErrorContentIsUnavailable) << url;
}

TEST_F(VideoExport, AreMadeFromAssetsOfManyKinds) {
    const std::pair<const char *, const char *> table[] = {
        {"usual.webm", "-map 0 -c:v libvpx -deadline realtime -cpu-used 8"},
        {"old.wmv", "-c:v wmv2 -c:a wmav2"},
        {"recorded.mts", "-c:v mpeg2video -f mpegts"},
        {"camera.mp4", "-c:v mpeg4 -brand XAVC"},
        {"cut.mp4", "-c:v mpeg4 -brand iso5"},
    };
    for (const auto &[name, arguments] : table) {
        SCOPED_TRACE(name);
        const QByteArray path = makeVideo(QString::fromLatin1(name),
                                          QString::fromLatin1(arguments) + QStringLiteral(" -frames:v 5 -t 0.2"));
        std::shared_ptr<ALAsset> asset;
        std::atomic<bool> answered = false;
        ALAssetsLibrary().assetForURL(
            *ALAssetsLibrary::assetURLForFile(path),
            [&](const std::shared_ptr<ALAsset> &found) {
                asset = found;
                answered = true;
            },
            [&](const NSError &) { answered = true; });
        ASSERT_TRUE(waitFor([&] { return answered.load(); }));
        ASSERT_TRUE(asset);
        QFile file(QFile::decodeName(path));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const auto representation = asset->defaultRepresentation();
        EXPECT_TRUE(UTTypeConformsTo(representation->UTI(), kUTTypeMovie));
        EXPECT_EQ(representation->filename(), QString::fromLatin1(name));
        EXPECT_EQ(representation->size(), file.size());
        QByteArray part(100, '\0');
        EXPECT_EQ(representation->getBytes(part.data(), 500, 100), 100);
        EXPECT_EQ(part, file.readAll().mid(500, 100));
        const auto session = sessionFor(asset->url(), low);
        runToEnd(session);
        EXPECT_EQ(session->error(), std::nullopt);
    }
}

TEST_F(VideoExport, FindsVideosOfTheLibraryAndTheFallback) {
    const QByteArray path = makeUsualVideo();
    const auto asset = ALAssetsLibrary::assetURLForFile(path);
    const auto nowhere =
        *NSURL::URLWithString(QStringLiteral("assets-library://asset/asset.MP4?id=videos%2Fgone&ext="));
    const auto estimate = [](const NSURL &url, const std::optional<QByteArray> &fallback) {
        return ALAssetsLibrary::_estimatedOutputFileLengthForVideoURL(url, fallback, low, std::nullopt);
    };
    ASSERT_TRUE(asset);
    EXPECT_GT(estimate(*asset, {}), 10'000);
    EXPECT_EQ(estimate(nowhere, path), estimate(*asset, {}));
    EXPECT_EQ(estimate(nowhere, {}), 0);
    EXPECT_EQ(estimate(NSURL::fileURLWithPath(home.file(QStringLiteral("diary"), "Dear diary")), {}), 0);
    for (const bool usesFallback : {false, true}) {
        const auto session = usesFallback ? sessionFor(nowhere, highest, path) : sessionFor(*asset, highest);
        runToEnd(session);
        EXPECT_EQ(session->error(), std::nullopt);
        EXPECT_EQ(checksumOfVideo(output), checksumOfVideo(path));
    }
}

TEST_F(VideoExport, ReplacesALeftoverAndNeedsAPlaceForItsFile) {
    const QByteArray path = makeUsualVideo();
    home.file(QStringLiteral("made.mp4"), "left from earlier");
    const auto session = sessionFor(path);
    runToEnd(session);
    EXPECT_EQ(session->error(), std::nullopt);
    EXPECT_EQ(checksumOfVideo(output), checksumOfVideo(path));

    const auto toNowhere = sessionFor(path);
    toNowhere->setOutputURL(NSURL::fileURLWithPath(output + "/no/such/folder.mp4"));
    runToEnd(toNowhere);
    EXPECT_EQ(toNowhere->error()->code(), AVErrorInvalidOutputURLParameter);
    const auto otherType = sessionFor(path);
    otherType->setOutputFileType(QStringLiteral("com.apple.quicktime-movie"));
    runToEnd(otherType);
    EXPECT_EQ(otherType->error()->code(), AVErrorInvalidOutputURLParameter);
}

} // namespace
} // namespace korvane::test
