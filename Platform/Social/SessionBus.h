// Which message bus the programs meet on.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <QString>

#include <optional>

namespace korvane {

namespace SessionBus {

// The bus that the environment names, else $XDG_RUNTIME_DIR/bus, else the private bus, if one runs; null where there is
// none. Thread: any.
std::optional<QString> address();

// The same, but starts an upload service with a private bus where there is no other, and waits until the bus answers.
std::optional<QString> addressStartingService(std::optional<NSError> *error);

// The fixed socket of the private bus. Its folder is made.
QString privateSocket();

} // namespace SessionBus

} // namespace korvane
