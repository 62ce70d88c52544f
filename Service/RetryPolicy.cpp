// When a failed upload is tried again.
#include "Service/RetryPolicy.h"

#include <QByteArrayList>

#include <algorithm>

namespace korvane {

RetryPolicy RetryPolicy::fromEnvironment() {
    RetryPolicy policy;
    const QByteArrayList texts = qgetenv("KORVANE_RETRY_DELAYS").split(',');
    std::vector<qint64> delays;
    for (const QByteArray &text : texts)
        if (const qint64 delay = text.toLongLong(); delay > 0) delays.push_back(delay);
    if (!delays.empty()) policy.delays = delays;
    return policy;
}

qint64 RetryPolicy::delayAfter(qint64 failures) const {
    return delays[size_t(std::clamp<qint64>(failures - 1, 0, qint64(delays.size()) - 1))];
}

} // namespace korvane
