// One photo after the other, against curl over one connection; and the memory that large photos take.
#include "Benchmarks/OneStream.h"

#include "Benchmarks/Measure.h"
#include "Benchmarks/Workload.h"
#include "Platform/Social/OAuthSigner.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QUuid>

namespace korvane::bench {
namespace {

using test::ServiceHarness;

constexpr qint64 photoBytes = 10 * megabyte;

// One transfer, signed as the stand-in wants it.
QStringList curlArguments(const ServiceHarness &harness, const QByteArray &path) {
    const QString url = harness.flickr.server.url() + QStringLiteral("/services/upload/");
    const QByteArray header = OAuthSigner::authorizationHeader(
        "POST", *NSURL::URLWithString(url), {}, *harness.flickr.account->credential(),
        QDateTime::currentSecsSinceEpoch(), QUuid::createUuid().toString(QUuid::Id128));
    const QString part = QStringLiteral("photo=@%1;type=image/jpeg").arg(QFile::decodeName(path));
    return {QStringLiteral("-sf"),
            QStringLiteral("-o"),
            QStringLiteral("/dev/null"),
            QStringLiteral("-H"),
            QStringLiteral("Expect:"),
            QStringLiteral("-H"),
            QStringLiteral("Authorization: ") + QString::fromLatin1(header),
            QStringLiteral("-F"),
            part,
            url};
}

double uploadWithCurl(const ServiceHarness &harness, const QByteArrayList &paths) {
    QStringList arguments;
    for (const QByteArray &path : paths)
        arguments += (arguments.isEmpty() ? QStringList() : QStringList(QStringLiteral("--next"))) +
                     curlArguments(harness, path);
    return secondsOf([&] { run(QStringLiteral("curl"), arguments); });
}

double uploadHere(const ServiceHarness &harness, const QByteArrayList &paths) {
    return secondsOf([&] {
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
}

bool largePhotosTakeLittleMemory(ServiceHarness &harness) {
    const auto memory = [pid = harness.servicePid()] { return anonymousMemory(pid); };
    const qint64 idle = memory();
    const QByteArrayList large = makeFiles(harness.home, 3, 200 * megabyte);
    setParallelUploads(3);
    const qint64 peak = peakDuring(memory, [&] { uploadAll(harness, large); });
    return printBound("  service with three photos of 200 MB over its idle size", double(peak - idle) / (1 << 20),
                      "MiB", 64);
}

} // namespace

bool oneStream() {
    standin::StandInOptions options;
    options.keepBodies = false; // else it is the disk that is measured
    ServiceHarness harness(options);
    const QByteArrayList paths = makeFiles(harness.home, 60, photoBytes);
    setParallelUploads(1);
    const auto speed = [&](double seconds) { return double(paths.size() * photoBytes) / double(megabyte) / seconds; };
    const auto curl = [&] { return speed(uploadWithCurl(harness, paths)); };
    const auto engine = [&] { return speed(uploadHere(harness, paths)); };
    const auto service = [&] { return speed(uploadAll(harness, paths)); };
    curl(); // the first run warms the page cache
    bool holds = printRatio("one stream of 10 MB photos: engine / curl -F (MB/s)", 5, engine, curl, 0.95, false);
    holds &= printRatio("one stream of 10 MB photos: whole service / curl -F (MB/s)", 5, service, curl, 0.85, false);
    return largePhotosTakeLittleMemory(harness) && holds;
}

} // namespace korvane::bench
