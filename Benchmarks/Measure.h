// Measuring whole runs: time, memory, and the ratio to a reference that runs in turn with what is measured.
#pragma once

#include <QtGlobal>

#include <functional>
#include <string>
#include <vector>

namespace korvane::bench {

double secondsOf(const std::function<void()> &work);
double median(std::vector<double> values);

// Runs both in turn, rounds times, and prints the medians and the median of the ratios (measured / reference), and the
// bound that the ratio is held to. Returns whether it holds.
bool printRatio(const std::string &name, int rounds, const std::function<double()> &measured,
                const std::function<double()> &reference, double bound, bool atMost);

// Resident memory of a process in bytes, without pages of files. pid 0 is this process.
qint64 anonymousMemory(qint64 pid);

// The largest value that a measure takes while the work runs, looked at every few milliseconds.
qint64 peakDuring(const std::function<qint64()> &measure, const std::function<void()> &work);

bool printBound(const std::string &name, double value, const std::string &unit, double bound);

} // namespace korvane::bench
