// What the benchmarks share.
#include "Benchmarks/Workload.h"

#include "Benchmarks/Measure.h"
#include "Platform/Preferences/CFPreferences.h"

#include <QProcess>
#include <QThread>

namespace korvane::bench {

QByteArrayList makeFiles(const test::TemporaryHome &home, int count, qint64 bytes) {
    QByteArrayList paths;
    for (int i = 0; i < count; ++i)
        paths.append(
            home.file(QStringLiteral("photos-%1/%2.jpg").arg(bytes).arg(i), test::jpegOfSize(bytes, quint32(i))));
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

void setParallelUploads(int count) {
    CFPreferencesSetAppValue(QStringLiteral("FlickrParallelUploads"), count, QStringLiteral("com.zorvex.korvane"));
    CFPreferencesAppSynchronize(QStringLiteral("com.zorvex.korvane"));
}

void shareOrEnd(test::ServiceHarness &harness, const std::vector<std::shared_ptr<FlickrPost>> &posts) {
    if (!harness.share(posts)) qFatal("the hand-over failed");
}

double uploadAll(test::ServiceHarness &harness, const QByteArrayList &paths) {
    harness.ask(QStringLiteral("Pause"));
    shareOrEnd(harness, postsOf(paths));
    const standin::StandIn &server = harness.flickr.server;
    const size_t before = server.countOfAnsweredRequests();
    const double seconds = secondsOf([&] {
        harness.ask(QStringLiteral("Resume"));
        while (server.countOfAnsweredRequests() < before + size_t(paths.size()))
            QThread::msleep(2);
    });
    if (!harness.waitForState(QStringLiteral("done"), int(paths.size()))) qFatal("uploads did not end");
    harness.ask(QStringLiteral("Clear"));
    return seconds;
}

} // namespace korvane::bench
