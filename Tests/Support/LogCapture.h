// Gathers the platform log while it lives.
#pragma once

#include "Platform/Foundation/NSLog.h"

#include <QStringList>

#include <mutex>

namespace korvane::test {

class LogCapture {
public:
    LogCapture() {
        setLogSink([this](const QString &line) {
            const std::lock_guard lock(_mutex);
            _lines.append(line);
        });
    }
    ~LogCapture() { setLogSink({}); }

    QStringList lines() const {
        const std::lock_guard lock(_mutex);
        return _lines;
    }

private:
    mutable std::mutex _mutex;
    QStringList _lines;
};

} // namespace korvane::test
