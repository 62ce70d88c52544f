// Log lines that a process says only once.
#include "Platform/Preferences/LogOnce.h"

#include "Platform/Foundation/NSLog.h"

#include <QSet>

#include <mutex>

namespace korvane {

void logOnce(const QString &message, const QString &subject) {
    static std::mutex mutex;
    static QSet<QString> said;
    {
        const std::lock_guard lock(mutex);
        const QString &key = subject.isEmpty() ? message : subject;
        if (said.contains(key)) return;
        said.insert(key);
    }
    NSLog("%@", message);
}

} // namespace korvane
