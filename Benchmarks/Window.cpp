// The share sheet's window, its first frame against that of an empty one.
#include "Benchmarks/Window.h"

#include "Benchmarks/Measure.h"
#include "Benchmarks/Workload.h"
#include "StandIn/FlickrAnswer.h"

#include <QFile>
#include <QProcess>

namespace korvane::bench {
namespace {

constexpr int manyPhotos = 500;
constexpr int manyAlbums = 1000;

QString program(const char *name) {
    return QStringLiteral(KORVANE_BENCH_BIN "/") + QLatin1String(name);
}

QStringList makePhotos(const test::TemporaryHome &home) {
    QStringList photos{home.path(QStringLiteral("0.jpg"))};
    run(QStringLiteral("ffmpeg"),
        QStringLiteral("-v error -f lavfi -i mandelbrot=s=4000x3000:maxiter=300 -frames:v 1 -q:v 3 %1")
            .arg(photos[0])
            .split(u' '));
    for (int i = 1; i < manyPhotos; ++i) {
        photos.append(home.path(QStringLiteral("%1.jpg").arg(i)));
        if (!QFile::copy(photos[0], photos.last())) qFatal("%s cannot be written", qPrintable(photos.last()));
    }
    return photos;
}

// Seconds from the start of the program until its first frame. It is ended after that.
double secondsToFirstFrame(const QString &program, const QStringList &arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("qt.scenegraph.time.renderloop=true"));
    environment.insert(QStringLiteral("QT_LOGGING_TO_CONSOLE"), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    const double seconds = secondsOf([&] {
        process.start(program, arguments);
        QByteArray said;
        while (!said.contains("Frame rendered")) {
            if (!process.waitForReadyRead(20'000))
                qFatal("%s shows nothing:\n%s", qPrintable(program), said.constData());
            said += process.readAll();
            if (said.contains("qrc:/")) qFatal("a page is not shown:\n%s", said.constData());
        }
    });
    process.kill();
    process.waitForFinished();
    return seconds;
}

bool showsSoon(const char *name, const QStringList &photos) {
    return printRatio(
        std::string("first frame with ") + name + ": share sheet / empty window (s)", 9,
        [&] { return secondsToFirstFrame(program("korvane-sheet"), QStringList{QStringLiteral("flickr")} + photos); },
        [&] { return secondsToFirstFrame(program("korvane-empty-window"), {}); }, 1.5, true);
}

bool scrollsWell(const char *name, const char *list, const QStringList &photos) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program("korvane-window-probe"), QStringList{QString::fromLatin1(list)} + photos);
    process.waitForFinished(180'000);
    const QByteArrayList said = process.readAllStandardOutput().trimmed().split(' ');
    if (said.size() != 3 || process.exitCode() != 0) qFatal("the %s cannot be scrolled through", list);
    const double frames = said[0].toDouble();
    const bool isSmooth = printBound(std::string("frames after more than 33 ms, ") + name,
                                     said[1].toDouble() / frames * 100, "% of " + said[0].toStdString(), 1);
    return printBound(std::string("largest size of the window's process, ") + name,
                      said[2].toDouble() * 1024 / megabyte, "MB", 150) &&
           isSmooth;
}

} // namespace

bool window() {
    test::ServiceHarness harness;
    harness.home.setEnvironment("QT_QPA_PLATFORM", "offscreen");
    harness.home.setEnvironment("QT_QUICK_BACKEND", "software");
    std::vector<standin::Album> albums(manyAlbums);
    for (int i = 0; i < manyAlbums; ++i) {
        albums[size_t(i)].id = i + 1;
        albums[size_t(i)].title = QStringLiteral("Album %1").arg(i + 1);
    }
    harness.flickr.server.on("getList").answer(200, "text/xml", standin::flickrAlbumList(albums, 1, manyAlbums), 100);
    const QStringList photos = makePhotos(harness.home);
    bool holds = showsSoon("one photo", {photos[0]});
    holds &= showsSoon("500 photos", photos);
    holds &= scrollsWell("500 previews", "previews", photos);
    holds &= scrollsWell("1,000 albums", "albums", {photos[0]});
    return holds;
}

} // namespace korvane::bench
