// Speed and memory of the way of a photo, each against a reference measured in the same run.
#include "Benchmarks/ExportBenchmark.h"
#include "Benchmarks/Measure.h"
#include "Platform/Preferences/CFPreferences.h"
#include "Platform/Social/OAuthSigner.h"
#include "Service/UploadStore.h"
#include "Tests/EndToEnd/ServiceHarness.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QUuid>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <functional>
#include <map>

using namespace korvane;
using namespace korvane::bench;
using namespace korvane::test;

namespace {

constexpr qint64 megabyte = 1'000'000;
bool allHold = true;

void check(bool holds) {
    allHold = allHold && holds;
}

QByteArrayList makeFiles(const TemporaryHome &home, int count, qint64 bytes) {
    QByteArrayList paths;
    for (int i = 0; i < count; ++i)
        paths.append(home.file(QStringLiteral("photos-%1/%2.jpg").arg(bytes).arg(i), jpegOfSize(bytes, quint32(i))));
    return paths;
}

std::vector<std::shared_ptr<FlickrPost>> postsOf(const QByteArrayList &paths) {
    std::vector<std::shared_ptr<FlickrPost>> posts;
    for (const QByteArray &path : paths) {
        posts.push_back(FlickrPost::init());
        posts.back()->photoData = NSData::dataWithContentsOfFile(path);
    }
    return posts;
}

void run(const QString &program, const QStringList &arguments) {
    if (QProcess::execute(program, arguments) != 0) qFatal("%s failed", qPrintable(program));
}

void removeAll(ServiceHarness &harness) {
    QStringList ids;
    for (const auto &upload : harness.uploads())
        ids.append(upload.value(QStringLiteral("id")).toString());
    harness.ask(QStringLiteral("Remove"), {ids});
}

void setParallelUploads(int count) {
    CFPreferencesSetAppValue(QStringLiteral("FlickrParallelUploads"), count, QStringLiteral("com.zorvex.korvane"));
    CFPreferencesAppSynchronize(QStringLiteral("com.zorvex.korvane"));
}

void handOver() {
    ServiceHarness harness;
    const QByteArrayList paths = makeFiles(harness.home, 100, 5 * megabyte);
    harness.ask(QStringLiteral("Pause"));
    run(QStringLiteral("sync"), {QStringLiteral("-f"), harness.home.path()});
    const qint64 service = harness.servicePid();
    const qint64 clientIdle = anonymousMemory(0);
    const qint64 serviceIdle = anonymousMemory(service);
    qint64 clientPeak = 0;
    qint64 servicePeak = 0;
    const auto share = [&] {
        const auto posts = postsOf(paths);
        double seconds = 0;
        servicePeak =
            std::max(servicePeak, peakDuring([&] { return anonymousMemory(service); },
                                             [&] {
                                                 clientPeak = std::max(
                                                     clientPeak, peakDuring([] { return anonymousMemory(0); },
                                                                            [&] {
                                                                                seconds = secondsOf([&] {
                                                                                    if (!harness.share(posts))
                                                                                        qFatal("the hand-over failed");
                                                                                });
                                                                            }));
                                             }));
        removeAll(harness);
        return seconds;
    };
    const auto copy = [&] {
        const QString target = harness.home.path(QStringLiteral("copies"));
        const QString source = QFile::decodeName(paths[0]).section(u'/', 0, -2);
        const double seconds = secondsOf([&] {
            run(QStringLiteral("cp"), {QStringLiteral("-r"), source, target});
            run(QStringLiteral("sync"), {QStringLiteral("-f"), target});
        });
        QDir(target).removeRecursively();
        return seconds;
    };
    check(printRatio("hand-over of 100 photos of 5 MB / cp and sync -f (s)", 5, share, copy, 1.5, true));
    check(printBound("  client grows by", double(clientPeak - clientIdle) / (1 << 20), "MiB", 32));
    check(printBound("  service grows by", double(servicePeak - serviceIdle) / (1 << 20), "MiB", 32));
}

size_t answeredRequests(ServiceHarness &harness) {
    const auto requests = harness.flickr.server.requests();
    return size_t(
        std::count_if(requests.begin(), requests.end(), [](const auto &request) { return request.status != 0; }));
}

// Seconds from the go-ahead until the stand-in has answered for all of them.
double uploadAll(ServiceHarness &harness, const QByteArrayList &paths) {
    harness.ask(QStringLiteral("Pause"));
    if (!harness.share(postsOf(paths))) qFatal("the hand-over failed");
    const size_t before = answeredRequests(harness);
    const double seconds = secondsOf([&] {
        harness.ask(QStringLiteral("Resume"));
        while (answeredRequests(harness) < before + size_t(paths.size()))
            QThread::msleep(2);
    });
    if (!harness.waitForState(QStringLiteral("done"), int(paths.size()))) qFatal("uploads did not end");
    harness.ask(QStringLiteral("Clear"));
    return seconds;
}

void sideBySide() {
    ServiceHarness harness;
    harness.flickr.server.delay(std::chrono::milliseconds(50));
    const QByteArrayList paths = makeFiles(harness.home, 500, megabyte);
    const auto timeWith = [&](int parallel) {
        setParallelUploads(parallel);
        return uploadAll(harness, paths);
    };
    check(printRatio(
        "500 photos of 1 MB, 50 ms an answer: one / three at a time (s)", 1, [&] { return timeWith(1); },
        [&] { return timeWith(3); }, 2.7, false));
}

// Each photo with curl -F over one connection, signed as the stand-in wants it.
QStringList curlArguments(ServiceHarness &harness, const QByteArrayList &paths) {
    const QString url = harness.flickr.server.url() + QStringLiteral("/services/upload/");
    QStringList arguments;
    for (const QByteArray &path : paths) {
        const auto header = OAuthSigner::authorizationHeader(
            "POST", *NSURL::URLWithString(url), {}, *harness.flickr.account->credential(),
            QDateTime::currentSecsSinceEpoch(), QUuid::createUuid().toString(QUuid::Id128));
        if (!arguments.isEmpty()) arguments.append(QStringLiteral("--next"));
        arguments << QStringLiteral("-sf") << QStringLiteral("-o") << QStringLiteral("/dev/null")
                  << QStringLiteral("-H") << QStringLiteral("Expect:") << QStringLiteral("-H")
                  << QStringLiteral("Authorization: ") + QString::fromLatin1(header) << QStringLiteral("-F")
                  << QStringLiteral("photo=@") + QFile::decodeName(path) + QStringLiteral(";type=image/jpeg") << url;
    }
    return arguments;
}

double megabytesPerSecond(const QByteArrayList &paths, qint64 bytes, double seconds) {
    return double(paths.size() * bytes) / double(megabyte) / seconds;
}

void oneStream() {
    standin::StandInOptions options;
    options.keepBodies = false; // else it is the disk that is measured
    ServiceHarness harness(options);
    const QByteArrayList paths = makeFiles(harness.home, 60, 10 * megabyte);
    setParallelUploads(1);
    const auto curl = [&] {
        const QStringList arguments = curlArguments(harness, paths);
        return megabytesPerSecond(paths, 10 * megabyte, secondsOf([&] { run(QStringLiteral("curl"), arguments); }));
    };
    const auto engine = [&] {
        const double seconds = secondsOf([&] {
            for (const auto &post : postsOf(paths)) {
                bool done = false;
                post->uploadToAccount(harness.flickr.account, [&](const std::optional<NSError> &error) {
                    if (error) qFatal("%s", qPrintable(error->description()));
                    done = true;
                });
                while (!done)
                    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            }
        });
        return megabytesPerSecond(paths, 10 * megabyte, seconds);
    };
    const auto service = [&] { return megabytesPerSecond(paths, 10 * megabyte, uploadAll(harness, paths)); };
    curl(); // the first run warms the page cache
    check(printRatio("one stream of 10 MB photos: engine / curl -F (MB/s)", 5, engine, curl, 0.95, false));
    check(printRatio("one stream of 10 MB photos: whole service / curl -F (MB/s)", 5, service, curl, 0.85, false));

    const qint64 pid = harness.servicePid();
    const qint64 idle = anonymousMemory(pid);
    const QByteArrayList large = makeFiles(harness.home, 3, 200 * megabyte);
    setParallelUploads(3);
    const qint64 peak = peakDuring([&] { return anonymousMemory(pid); }, [&] { uploadAll(harness, large); });
    check(printBound("  service with three photos of 200 MB over its idle size", double(peak - idle) / (1 << 20), "MiB",
                     64));
}

void longQueue() {
    constexpr int many = 100'000;
    const auto prepare = [](ServiceHarness &harness, int uploads) {
        harness.ask(QStringLiteral("Pause"));
        if (harness.servicePid() == 0) qFatal("the service did not start:\n%s", qPrintable(harness.log()));
        harness.killService(SIGTERM);
        UploadStore store;
        std::optional<NSError> error;
        if (!store.open(harness.home.path(QStringLiteral("state/korvane/queue.sqlite")), &error))
            qFatal("%s", qPrintable(error->description()));
        NewUpload upload;
        upload.job.service = flickrServiceID;
        upload.job.title = QStringLiteral("Waiting");
        upload.record = QByteArray(300, 'r');
        if (!store.take(QStringLiteral("many"), std::vector<NewUpload>(size_t(uploads), upload), &error))
            qFatal("%s", qPrintable(error->description()));
    };
    ServiceHarness full;
    prepare(full, many);
    ServiceHarness empty;
    prepare(empty, 0);
    const auto in = [](ServiceHarness &harness, const std::function<void()> &work) {
        harness.home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", harness.busAddress.toLocal8Bit());
        harness.home.setEnvironment("XDG_STATE_HOME", QFile::encodeName(harness.home.path(QStringLiteral("state"))));
        harness.home.setEnvironment("KORVANE_FLICKR_URL", harness.flickr.server.url().toLocal8Bit());
        harness.home.setEnvironment("KORVANE_PHOTO_LIBRARY",
                                    QFile::encodeName(harness.home.path(QStringLiteral("library"))));
        return secondsOf(work);
    };
    std::vector<double> extraStart;
    for (int round = 0; round < 5; ++round) {
        const double withMany = in(full, [&] { full.startService(); });
        full.killService(SIGTERM);
        const double withNone = in(empty, [&] { empty.startService(); });
        empty.killService(SIGTERM);
        extraStart.push_back(withMany - withNone);
    }
    check(printBound("start with 100,000 waiting posts over an empty queue's", median(extraStart) * 1000, "ms", 1000));
    const auto share = [&](ServiceHarness &harness) {
        return in(harness, [&] {
            if (!harness.share({harness.post(jpegOfSize(1000))})) qFatal("the hand-over failed");
        });
    };
    share(full);
    share(empty);
    check(printRatio(
        "take a post with 100,000 waiting / with none (s)", 9, [&] { return share(full); },
        [&] { return share(empty); }, 1.5, true));
    const double page = in(full, [&] { full.ask(QStringLiteral("List"), {qint64(90'000), quint32(100)}); });
    check(printBound("a page of 100 at the end of 100,000", page * 1000, "ms", 100));
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    const std::map<std::string, std::function<void()>> benchmarks{{"export", [] { check(exportVideos()); }},
                                                                  {"hand-over", handOver},
                                                                  {"long-queue", longQueue},
                                                                  {"one-stream", oneStream},
                                                                  {"side-by-side", sideBySide}};
    if (argc > 1 && !benchmarks.contains(argv[1])) {
        fprintf(stderr, "There is no benchmark %s.\n", argv[1]);
        return 2;
    }
    for (const auto &[name, benchmark] : benchmarks)
        if (argc < 2 || name == argv[1]) benchmark();
    return allHold ? 0 : 1;
}
