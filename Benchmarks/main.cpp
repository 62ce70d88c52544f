// Speed and memory of the way of photos and videos and of the window, each against a reference measured in the same
// run.
#include "Benchmarks/ExportBenchmark.h"
#include "Benchmarks/HandOver.h"
#include "Benchmarks/LongQueue.h"
#include "Benchmarks/OneStream.h"
#include "Benchmarks/SideBySide.h"
#include "Benchmarks/VideoStream.h"
#include "Benchmarks/Window.h"

#include <QCoreApplication>

#include <cstdio>
#include <map>
#include <string>

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    using namespace korvane::bench;
    const std::map<std::string, bool (*)()> benchmarks{
        {"export", exportVideos},  {"hand-over", handOver},      {"long-queue", longQueue},
        {"one-stream", oneStream}, {"side-by-side", sideBySide}, {"video-stream", videoStream},
        {"window", window}};
    if (argc > 1 && !benchmarks.contains(argv[1])) {
        fprintf(stderr, "There is no benchmark %s.\n", argv[1]);
        return 2;
    }
    bool allHold = true;
    for (const auto &[name, benchmark] : benchmarks)
        if (argc < 2 || name == argv[1]) allHold &= benchmark();
    return allHold ? 0 : 1;
}
