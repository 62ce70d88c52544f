// A service with a very long queue, against one with an empty queue.
#include "Benchmarks/LongQueue.h"

#include "Benchmarks/Measure.h"
#include "Benchmarks/Workload.h"
#include "Service/UploadStore.h"

#include <QFile>

#include <csignal>

namespace korvane::bench {
namespace {

using test::ServiceHarness;

constexpr int many = 100'000;

// Leaves a paused queue of that many uploads, and no service.
void prepare(ServiceHarness &harness, int uploads) {
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
}

// Of two harnesses the later one has set the environment; this sets it to that of the given one.
double secondsIn(ServiceHarness &harness, const std::function<void()> &work) {
    harness.home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", harness.busAddress.toLocal8Bit());
    harness.home.setEnvironment("XDG_STATE_HOME", QFile::encodeName(harness.home.path(QStringLiteral("state"))));
    for (const char *name : {"KORVANE_FLICKR_URL", "KORVANE_VIMEO_URL"})
        harness.home.setEnvironment(name, harness.flickr.server.url().toLocal8Bit());
    harness.home.setEnvironment("KORVANE_PHOTO_LIBRARY",
                                QFile::encodeName(harness.home.path(QStringLiteral("library"))));
    return secondsOf(work);
}

bool startsSoon(ServiceHarness &full, ServiceHarness &empty) {
    const auto start = [](ServiceHarness &harness) {
        const double seconds = secondsIn(harness, [&] { harness.startService(); });
        harness.killService(SIGTERM);
        return seconds;
    };
    std::vector<double> extra;
    for (int round = 0; round < 5; ++round) {
        const double withMany = start(full);
        extra.push_back(withMany - start(empty));
    }
    return printBound("start with 100,000 waiting posts over an empty queue's", median(extra) * 1000, "ms", 1000);
}

bool takesSoon(ServiceHarness &full, ServiceHarness &empty) {
    const auto share = [](ServiceHarness &harness) {
        return secondsIn(harness, [&] { shareOrEnd(harness, {harness.post(test::jpegOfSize(1000))}); });
    };
    share(full); // starts the services
    share(empty);
    return printRatio(
        "take a post with 100,000 waiting / with none (s)", 9, [&] { return share(full); },
        [&] { return share(empty); }, 1.5, true);
}

bool listsSoon(ServiceHarness &full) {
    const double page = secondsIn(full, [&] { full.ask(QStringLiteral("List"), {qint64(90'000), quint32(100)}); });
    return printBound("a page of 100 at the end of 100,000", page * 1000, "ms", 100);
}

} // namespace

bool longQueue() {
    ServiceHarness full;
    prepare(full, many);
    ServiceHarness empty;
    prepare(empty, 0);
    bool holds = startsSoon(full, empty);
    holds &= takesSoon(full, empty);
    holds &= listsSoon(full);
    return holds;
}

} // namespace korvane::bench
