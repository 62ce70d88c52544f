// What the benchmarks share: photo files, posts of them, and whole uploads.
#pragma once

#include "Tests/EndToEnd/ServiceHarness.h"

#include <QByteArrayList>

#include <memory>
#include <vector>

namespace korvane::bench {

inline constexpr qint64 megabyte = 1'000'000;

// Files of that size below the home folder, each with other bytes; their paths.
QByteArrayList makeFiles(const test::TemporaryHome &home, int count, qint64 bytes);
std::vector<std::shared_ptr<FlickrPost>> postsOf(const QByteArrayList &paths);

// Runs a program; one that fails ends the benchmarks.
void run(const QString &program, const QStringList &arguments);

void setParallelUploads(int count);
void shareOrEnd(test::ServiceHarness &harness, const std::vector<std::shared_ptr<FlickrPost>> &posts);

// Shares the files while the service pauses. Seconds from the go-ahead until the stand-in has answered for all of them.
double uploadAll(test::ServiceHarness &harness, const QByteArrayList &paths);

} // namespace korvane::bench
