// Exports of real videos with the real ffmpeg.
#include "Platform/AVFoundation/AVError.h"
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Tests/AVFoundation/VideoFixture.h"

namespace korvane::test {
namespace {

const std::optional<QString> none;
const std::optional<QString> low = AVAssetExportPresetLowQuality;
const std::optional<QString> medium = AVAssetExportPresetMediumQuality;
const std::optional<QString> highest = AVAssetExportPresetHighestQuality;

using VideoExport = VideoTest;

TEST_F(VideoExport, MakesAnMP4FileOfThePresetsSizeFromAnySource) {
    const QByteArray deep = "-map 0 -c:v libx264 -preset ultrafast -pix_fmt yuv420p10le";
    const std::tuple<const char *, QByteArray, bool, std::optional<QString>, const char *, bool> table[] = {
        {"usual.mp4", usualVideo, false, highest, "h264 320x240 yuv420p aac", true},
        {"silent.mkv", usualVideo + "-map 0", false, none, "h264 320x240 yuv420p", true},
        {"small.mp4", usualVideo, false, medium, "h264 320x240 yuv420p aac", false},
        {"camera.mov", usualVideo + "-c:a pcm_s16le", false, highest, "h264 320x240 yuv420p aac", true},
        {"turned.mp4", usualVideo, true, highest, "h264 320x240 yuv420p turned by 90 aac", true},
        {"upright.mp4", usualVideo + "-vf scale=720:400", true, low, "h264 354x640 yuv420p aac", false},
        {"deep.mov", deep, false, none, "h264 320x240 yuv420p", false},
        {"odd.avi", "-vf scale=723:405 -c:v mpeg4 -q:v 5 -c:a mp3", false, low, "h264 640x358 yuv420p aac", false},
    };
    for (const auto &[name, arguments, isTurned, preset, streams, copiesVideo] : table) {
        SCOPED_TRACE(name);
        const QByteArray made = makeVideo(name, arguments);
        const QByteArray source = isTurned ? turn(made) : made;
        const NSURL url = NSURL::fileURLWithPath(source);
        ASSERT_EQ(runToEnd(sessionFor(url, preset)), std::nullopt);
        EXPECT_EQ(streamsOf(output), streams);
        EXPECT_EQ(checksumOfVideo(source) == checksumOfVideo(output), copiesVideo);
        const QByteArray bytes = home.contents("made.mp4");
        EXPECT_EQ(bytes.mid(4, 4), "ftyp");
        EXPECT_LT(bytes.indexOf("moov"), bytes.indexOf("mdat")) << "the index comes first";
        ASSERT_TRUE(ALAssetsLibrary::_probeVideoURL(url, {}));
        const auto estimate = ALAssetsLibrary::_estimatedOutputFileLengthForVideoURL(url, {}, preset, {});
        EXPECT_NEAR(double(estimate), double(bytes.size()), 0.25 * double(bytes.size()));
    }
}

TEST_F(VideoExport, SaysWhatIsWrongWithASourceThatCannotBeUsed) {
    const QByteArray folder = "library/Videos/";
    const QByteArray whole = makeVideo("usual.mp4", usualVideo + "-movflags +faststart");
    const QByteArray bytes = home.contents(folder + "usual.mp4");
    home.file(folder + "cut.mp4", bytes.left(bytes.size() / 2));
    home.file(folder + "no-index.mp4", bytes.left(200));
    home.file(folder + "empty.mp4", {});
    home.file(folder + "list.mp4",
              "#EXTM3U\n#EXT-X-TARGETDURATION:2\n#EXTINF:2,\nfile://" + whole + "\n#EXT-X-ENDLIST\n");
    home.file(folder + "joined.mp4", "ffconcat version 1.0\nfile usual.mp4\n");
    makeVideo("sound.mp4", "-map 1 -c:a aac");
    makeVideo("picture.mp4", "-frames:v 1 -c:v mjpeg -f mjpeg");
    makeVideo("cut.mkv");
    const QByteArray matroska = home.contents(folder + "cut.mkv");
    home.file(folder + "cut.mkv", matroska.left(matroska.size() / 2));
    makeVideo("damaged.mp4", "-c:v mpeg4");
    QByteArray damaged = home.contents(folder + "damaged.mp4");
    home.file(folder + "damaged.mp4", damaged.replace(damaged.size() / 2, 5'000, variedBytes(5'000)));
    const std::tuple<QByteArray, AVErrorCode, QByteArray> table[] = {
        {"picture.mp4", AVErrorFileFormatNotRecognized, "choose another file"},
        {"no-index.mp4", AVErrorFileFormatNotRecognized, "is not a video"},
        {"empty.mp4", AVErrorFileFormatNotRecognized, "Check that it plays"},
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
        const auto session = sessionFor(NSURL::fileURLWithPath(QFile::encodeName(home.path(folder + name))), highest);
        const auto error = runToEnd(session);
        ASSERT_TRUE(says(error, text) && says(error, name));
        EXPECT_EQ(error->domain(), AVFoundationErrorDomain);
        EXPECT_EQ(error->code(), code) << name.constData();
        EXPECT_EQ(session->status(), AVAssetExportSessionStatusFailed);
        EXPECT_LT(session->progress(), 1);
        EXPECT_FALSE(QFile::exists(QFile::decodeName(output)));
    }
    for (const char *url : {"assets-library://asset/asset.MP4?id=videos%2Fgone.mp4&ext=MP4", "assets-library://x",
                            "http://127.0.0.1:9/a.mp4"}) {
        const auto error = runToEnd(sessionFor(*NSURL::URLWithString(QString::fromLatin1(url))));
        EXPECT_TRUE(error && error->code() == AVErrorContentIsUnavailable) << url;
    }
}

TEST_F(VideoExport, FindsVideosOfTheLibraryAndTheFallback) {
    const QByteArray path = makeVideo("usual.mp4");
    const auto asset = ALAssetsLibrary::assetURLForFile(path);
    const auto nowhere =
        *NSURL::URLWithString(QStringLiteral("assets-library://asset/asset.MP4?id=videos%2Fgone&ext="));
    const auto estimate = [](const NSURL &url, const std::optional<QByteArray> &fallback) {
        return ALAssetsLibrary::_estimatedOutputFileLengthForVideoURL(url, fallback, low, std::nullopt);
    };
    ASSERT_TRUE(asset);
    EXPECT_EQ(estimate(*asset, {}), 0) << "it has not been looked into";
    ASSERT_TRUE(ALAssetsLibrary::_probeVideoURL(nowhere, path));
    EXPECT_GT(estimate(*asset, {}), 10'000);
    EXPECT_EQ(estimate(nowhere, path), estimate(*asset, {}));
    EXPECT_EQ(estimate(nowhere, {}), 0);
    for (const auto &session : {sessionFor(nowhere, highest, path), sessionFor(*asset, highest)}) {
        EXPECT_EQ(runToEnd(session), std::nullopt);
        EXPECT_EQ(checksumOfVideo(output), checksumOfVideo(path));
    }
}

TEST_F(VideoExport, ReplacesALeftoverAndNeedsAPlaceForItsFile) {
    const QByteArray path = makeVideo("usual.mp4");
    const NSURL url = NSURL::fileURLWithPath(path);
    home.file("made.mp4", "left from earlier");
    EXPECT_EQ(runToEnd(sessionFor(url)), std::nullopt);
    EXPECT_EQ(checksumOfVideo(output), checksumOfVideo(path));

    const auto toNowhere = sessionFor(url);
    toNowhere->setOutputURL(NSURL::fileURLWithPath(output + "/no/such/folder.mp4"));
    const auto otherType = sessionFor(url);
    otherType->setOutputFileType(QStringLiteral("com.apple.quicktime-movie"));
    for (const auto &session : {toNowhere, otherType})
        EXPECT_EQ(runToEnd(session)->code(), AVErrorInvalidOutputURLParameter);
}

} // namespace
} // namespace korvane::test
