// Log lines that a process says only once.
#include "Platform/Preferences/LogOnce.h"

#include "Platform/Foundation/NSLog.h"

#include <QSet>

#include <mutex>

namespace korvane {

void logOnce(const QString &message) {
    static std::mutex mutex;
    static QSet<QString> said;
    {
        const std::lock_guard lock(mutex);
        if (said.contains(message)) return;
        said.insert(message);
    }
    NSLog("%@", message);
}

} // namespace korvane
