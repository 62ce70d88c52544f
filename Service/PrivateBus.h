// A message bus of the service's own, where the environment has none.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <QProcess>
#include <QString>

#include <optional>

namespace korvane {

// Runs dbus-daemon as a child, which ends with the service. Thread: the main thread.
class PrivateBus {
public:
    ~PrivateBus();
    // Starts the bus at its fixed socket and returns its address. Null, with the error placed, if it cannot be started.
    std::optional<QString> start(std::optional<NSError> *error);

private:
    QProcess _daemon;
};

} // namespace korvane
