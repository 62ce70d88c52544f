// When a failed upload is tried again.
#pragma once

#include <QtGlobal>

#include <vector>

namespace korvane {

// All in milliseconds.
struct RetryPolicy {
    std::vector<qint64> delays{15'000, 30'000, 60'000, 120'000, 300'000, 600'000, 1'800'000, 3'600'000};
    qint64 giveUpAfter = 48 * 3'600'000LL;

    // With the delays of the environment's KORVANE_RETRY_DELAYS (milliseconds, separated by commas), if it is set;
    // tests use it.
    static RetryPolicy fromEnvironment();

    // Before the next try, after that many failures in a row (at least 1); the last delay goes on.
    qint64 delayAfter(qint64 failures) const;
};

} // namespace korvane
