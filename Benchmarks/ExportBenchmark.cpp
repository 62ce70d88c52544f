// What the export of a video costs over ffmpeg run by hand.
#include "Benchmarks/ExportBenchmark.h"

#include "Benchmarks/Measure.h"
#include "Platform/AVFoundation/AVAssetExportSession.h"
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Tests/Support/TemporaryHome.h"

#include <QFile>
#include <QProcess>

#include <sys/resource.h>

#include <semaphore>

namespace korvane::bench {
namespace {

using test::TemporaryHome;

void ffmpeg(const QString &arguments) {
    const QString always = QStringLiteral("-nostdin -v error -y ");
    if (QProcess::execute(QStringLiteral("ffmpeg"), (always + arguments).split(u' ')) != 0)
        qFatal("ffmpeg %s failed", qPrintable(arguments));
}

QString makeVideo(const TemporaryHome &home, const QString &name, int seconds, const QString &codecs) {
    const QString path = home.path(name);
    ffmpeg(QStringLiteral("-f lavfi -i testsrc2=s=1920x1080:r=30:d=%1,noise=alls=12:allf=t "
                          "-f lavfi -i anoisesrc=d=%1:a=0.3 -pix_fmt yuv420p %2 %3")
               .arg(QString::number(seconds), codecs, path));
    return path;
}

void exportVideo(const TemporaryHome &home, const QString &path, const QString &preset) {
    const auto session =
        ALAssetsLibrary::_exportSessionForVideoURL(NSURL::fileURLWithPath(QFile::encodeName(path)), {}, preset);
    session->setOutputFileType(AVFileTypeMPEG4);
    session->setOutputURL(NSURL::fileURLWithPath(QFile::encodeName(home.path(QStringLiteral("exported.mp4")))));
    std::binary_semaphore done(0);
    session->exportAsynchronouslyWithCompletionHandler([&done] { done.release(); });
    done.acquire();
    if (const auto error = session->error()) qFatal("%s", qPrintable(error->description()));
}

double processorSeconds(const std::function<void()> &work) {
    const auto spent = [] {
        rusage usage{};
        ::getrusage(RUSAGE_CHILDREN, &usage);
        const auto seconds = [](const timeval &time) { return double(time.tv_sec) + double(time.tv_usec) / 1e6; };
        return seconds(usage.ru_utime) + seconds(usage.ru_stime);
    };
    const double before = spent();
    work();
    return spent() - before;
}

QString settings(const char *scale, const char *rate, const char *peak, const char *sound) {
    return QStringLiteral("-vf scale=%1,setsar=1 -c:v libx264 -preset veryfast -pix_fmt yuv420p -b:v %2 -maxrate %3 "
                          "-bufsize %3 -c:a aac -b:a %4 -movflags +faststart")
        .arg(QLatin1String(scale), QLatin1String(rate), QLatin1String(peak), QLatin1String(sound));
}

} // namespace

bool exportVideos() {
    const TemporaryHome home;
    const QString byHand = home.path(QStringLiteral("by-hand.mp4"));
    const QString best = settings("1920:1080", "10M", "15M", "96k");
    const struct {
        const char *name;
        QString preset, settings;
    } presets[] = {
        {"low", AVAssetExportPresetLowQuality, settings("640:360", "600k", "900k", "48k")},
        {"medium", AVAssetExportPresetMediumQuality, settings("1280:720", "2500k", "3750k", "64k")},
        {"highest", AVAssetExportPresetHighestQuality, best},
    };
    bool holds = true;
    const QString other =
        makeVideo(home, QStringLiteral("other.avi"), 20, QStringLiteral("-c:v mpeg4 -b:v 30M -c:a pcm_s16le"));
    for (const auto &[name, preset, arguments] : presets) {
        const auto run = [&, &arguments = arguments] {
            ffmpeg(QStringLiteral("-i %1 %2 %3").arg(other, arguments, byHand));
        };
        holds &= printRatio(
            std::string("processor time of an export, ") + name + ": session / ffmpeg by hand (s)", 3,
            [&, &preset = preset] { return processorSeconds([&] { exportVideo(home, other, preset); }); },
            [&] { return processorSeconds(run); }, 1.03, true);
    }
    const QString usual = makeVideo(home, QStringLiteral("usual.mp4"), 60,
                                    QStringLiteral("-c:v libx264 -preset ultrafast -b:v 20M -c:a aac"));
    const auto copy = [&] { return secondsOf([&] { exportVideo(home, usual, AVAssetExportPresetHighestQuality); }); };
    holds &= printRatio(
        "export of H.264 and AAC: copy / encoding it (s)", 1,
        [&] {
            return median({copy(), copy(), copy()});
        },
        [&] { return secondsOf([&] { ffmpeg(QStringLiteral("-i %1 %2 %3").arg(usual, best, byHand)); }); }, 0.02, true);
    return holds;
}

} // namespace korvane::bench
