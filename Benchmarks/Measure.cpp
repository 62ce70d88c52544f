// Measuring whole runs.
#include "Benchmarks/Measure.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

namespace korvane::bench {

double secondsOf(const std::function<void()> &work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

bool printRatio(const std::string &name, int rounds, const std::function<double()> &measured,
                const std::function<double()> &reference, double bound, bool atMost) {
    std::vector<double> ours, theirs, ratios;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(measured());
        theirs.push_back(reference());
        ratios.push_back(ours.back() / theirs.back());
    }
    const double ratio = median(ratios);
    const bool holds = atMost ? ratio <= bound : ratio >= bound;
    printf("%-62s %8.3f / %8.3f = %5.2f  (%s %.2f) %s\n", name.c_str(), median(ours), median(theirs), ratio,
           atMost ? "at most" : "at least", bound, holds ? "ok" : "MISSED");
    fflush(stdout);
    return holds;
}

bool printBound(const std::string &name, double value, const std::string &unit, double bound) {
    const bool holds = value <= bound;
    printf("%-62s %8.1f %s (at most %.1f) %s\n", name.c_str(), value, unit.c_str(), bound, holds ? "ok" : "MISSED");
    fflush(stdout);
    return holds;
}

qint64 anonymousMemory(qint64 pid) {
    QFile status(pid == 0 ? QStringLiteral("/proc/self/status") : QStringLiteral("/proc/%1/status").arg(pid));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("RssAnon:")) return line.mid(8).trimmed().split(' ').first().toLongLong() * 1024;
    return 0;
}

qint64 peakDuring(const std::function<qint64()> &measure, const std::function<void()> &work) {
    std::atomic<bool> done = false;
    std::atomic<qint64> peak = measure();
    std::thread watcher([&] {
        while (!done) {
            peak = std::max(peak.load(), measure());
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    });
    work();
    done = true;
    watcher.join();
    return peak;
}

} // namespace korvane::bench
