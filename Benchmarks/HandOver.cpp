// The hand-over of many photos, against a copy of their files.
#include "Benchmarks/HandOver.h"

#include "Benchmarks/Measure.h"
#include "Benchmarks/Workload.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace korvane::bench {
namespace {

using test::ServiceHarness;

// Memory of both sides, in bytes.
struct Memory {
    qint64 client = 0;
    qint64 service = 0;
};

double share(ServiceHarness &harness, const QByteArrayList &paths, Memory &peak) {
    const auto posts = postsOf(paths);
    double seconds = 0;
    const auto timed = [&] { seconds = secondsOf([&] { shareOrEnd(harness, posts); }); };
    const auto client = [] { return anonymousMemory(0); };
    const auto service = [pid = harness.servicePid()] { return anonymousMemory(pid); };
    const auto withClient = [&] { peak.client = std::max(peak.client, peakDuring(client, timed)); };
    peak.service = std::max(peak.service, peakDuring(service, withClient));

    QStringList ids;
    for (const auto &upload : harness.uploads())
        ids.append(upload.value(QStringLiteral("id")).toString());
    harness.ask(QStringLiteral("Remove"), {ids});
    return seconds;
}

double copy(const ServiceHarness &harness, const QByteArrayList &paths) {
    const QString target = harness.home.path(QStringLiteral("copies"));
    const QString source = QFile::decodeName(paths[0]).section(u'/', 0, -2);
    const double seconds = secondsOf([&] {
        run(QStringLiteral("cp"), {QStringLiteral("-r"), source, target});
        run(QStringLiteral("sync"), {QStringLiteral("-f"), target});
    });
    QDir(target).removeRecursively();
    return seconds;
}

double mebibytes(qint64 bytes) {
    return double(bytes) / (1 << 20);
}

} // namespace

bool handOver() {
    ServiceHarness harness;
    const QByteArrayList paths = makeFiles(harness.home, 100, 5 * megabyte);
    harness.ask(QStringLiteral("Pause"));
    run(QStringLiteral("sync"), {QStringLiteral("-f"), harness.home.path()});
    const Memory idle{anonymousMemory(0), anonymousMemory(harness.servicePid())};
    Memory peak;
    bool holds = printRatio(
        "hand-over of 100 photos of 5 MB / cp and sync -f (s)", 5, [&] { return share(harness, paths, peak); },
        [&] { return copy(harness, paths); }, 1.5, true);
    holds &= printBound("  client grows by", mebibytes(peak.client - idle.client), "MiB", 32);
    holds &= printBound("  service grows by", mebibytes(peak.service - idle.service), "MiB", 32);
    return holds;
}

} // namespace korvane::bench
