// What is copied, what is encoded, how large and with how many bits.
#include "Platform/AVFoundation/ExportPlan.h"
#include "Platform/AVFoundation/AVAssetExportSession.h"

#include <gtest/gtest.h>

namespace korvane::test {
namespace {

MediaInfo videoOf(QSize size, const char *codec = "hevc", qint64 bitsPerSecond = 100'000'000) {
    MediaInfo info;
    info.video.codec = QString::fromLatin1(codec);
    info.video.pixelFormat = QStringLiteral("yuv420p");
    info.video.size = size;
    info.video.bitsPerSecond = bitsPerSecond;
    info.sound = MediaInfo::Sound{1, QStringLiteral("aac"), 2, 128'000};
    info.microseconds = 60'000'000;
    info.fileBytes = bitsPerSecond / 8 * 60 + 128'000 / 8 * 60 + 5'000;
    return info;
}

// What follows the option; null if it is not there.
QByteArray optionOf(const ExportPlan &plan, const QByteArray &name) {
    const QByteArrayList arguments = plan.arguments();
    const qsizetype place = arguments.indexOf(name);
    return place < 0 ? QByteArray() : arguments.value(place + 1);
}

TEST(ExportPlan, FitsThePictureIntoThePresetWithEvenSidesAndNeverEnlargesIt) {
    const struct {
        QSize source, low, medium, highest;
    } table[] = {
        {{3840, 2160}, {640, 360}, {1280, 720}, {1920, 1080}}, {{2160, 3840}, {360, 640}, {720, 1280}, {1080, 1920}},
        {{1920, 1080}, {640, 360}, {1280, 720}, {1920, 1080}}, {{3840, 1600}, {640, 266}, {1280, 532}, {1920, 800}},
        {{1440, 1080}, {480, 360}, {960, 720}, {1440, 1080}},  {{1000, 1000}, {360, 360}, {720, 720}, {1000, 1000}},
        {{641, 361}, {638, 360}, {640, 360}, {640, 360}},      {{320, 240}, {320, 240}, {320, 240}, {320, 240}},
        {{1, 3001}, {2, 640}, {2, 1280}, {2, 1920}},
    };
    for (const auto &[source, low, medium, highest] : table) {
        const MediaInfo info = videoOf(source);
        EXPECT_EQ(ExportPlan(info, AVAssetExportPresetLowQuality).size(), low) << source.width();
        EXPECT_EQ(ExportPlan(info, AVAssetExportPresetMediumQuality).size(), medium) << source.width();
        EXPECT_EQ(ExportPlan(info, AVAssetExportPresetHighestQuality).size(), highest) << source.width();
    }
}

TEST(ExportPlan, SpendsWhatThePresetSaysButNoMoreThanTheSourceIsWorth) {
    const std::tuple<MediaInfo, QString, qint64> table[] = {
        {videoOf({3840, 2160}), AVAssetExportPresetLowQuality, 600'000},
        {videoOf({1080, 1920}), AVAssetExportPresetMediumQuality, 2'500'000},
        {videoOf({1920, 1080}), AVAssetExportPresetHighestQuality, 10'000'000},
        {videoOf({1920, 1080}, "mpeg4", 4'000'000), AVAssetExportPresetHighestQuality, 4'000'000},
        {videoOf({1920, 1080}, "hevc", 4'000'000), AVAssetExportPresetHighestQuality, 6'800'000},
        {videoOf({640, 360}, "h264", 300'000), AVAssetExportPresetLowQuality, 300'000},
        {videoOf({640, 360}, "h264", 1'000), AVAssetExportPresetLowQuality, 100'000},
        {videoOf({1920, 1080}, "vp8", 0), AVAssetExportPresetMediumQuality, 2'500'000},
    };
    for (const auto &[info, preset, videoRate] : table) {
        const ExportPlan plan(info, preset);
        EXPECT_EQ(optionOf(plan, "-b:v").toLongLong(), videoRate) << qPrintable(preset);
        const qint64 soundRate = plan.copiesSound() ? 128'000 : optionOf(plan, "-b:a").toLongLong();
        EXPECT_NEAR(double(plan.estimatedLength()), double(videoRate + soundRate) / 8 * 60, 100'000);
    }
    // A small picture gets fewer bits than the preset's full size, but more than its share of pixels.
    const auto small = optionOf(ExportPlan(videoOf({640, 360}), AVAssetExportPresetHighestQuality), "-b:v").toInt();
    EXPECT_GT(small, 10'000'000 / 9);
    EXPECT_LT(small, 10'000'000 / 4);
}

TEST(ExportPlan, CopiesTheSoundOfAVideoThatHasToBeEncodedAndKnowsWhatItCannotEstimate) {
    const ExportPlan plan(videoOf({320, 240}, "hevc"), AVAssetExportPresetHighestQuality);
    EXPECT_EQ(optionOf(plan, "-c:v"), "libx264");
    EXPECT_EQ(optionOf(plan, "-c:a"), "copy");
    MediaInfo unsaid = videoOf({1920, 1080}, "h264", 0);
    unsaid.fileBytes = 12'345'678;
    unsaid.microseconds = 0;
    EXPECT_EQ(ExportPlan(unsaid, AVAssetExportPresetHighestQuality).estimatedLength(), 12'345'678);
    EXPECT_EQ(ExportPlan(unsaid, AVAssetExportPresetLowQuality).estimatedLength(), 0) << "of unknown length";
}

} // namespace
} // namespace korvane::test
