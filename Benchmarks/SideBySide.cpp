// Photos uploaded side by side, against one after the other.
#include "Benchmarks/SideBySide.h"

#include "Benchmarks/Measure.h"
#include "Benchmarks/Workload.h"

namespace korvane::bench {

bool sideBySide() {
    test::ServiceHarness harness;
    harness.flickr.server.delay(std::chrono::milliseconds(50));
    const QByteArrayList paths = makeFiles(harness.home, 500, megabyte);
    const auto timeWith = [&](int parallel) {
        setParallelUploads(parallel);
        return uploadAll(harness, paths);
    };
    return printRatio(
        "500 photos of 1 MB, 50 ms an answer: one / three at a time (s)", 1, [&] { return timeWith(1); },
        [&] { return timeWith(3); }, 2.7, false);
}

} // namespace korvane::bench
