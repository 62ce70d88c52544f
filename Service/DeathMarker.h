// Tells a death of the service's own making from one that came from outside.
#pragma once

#include <QString>

namespace korvane {

namespace DeathMarker {

// Whether the last life of the process ended by an assertion or a fatal signal.
bool isThere(const QString &path);
// Once what follows from it is recorded.
void remove(const QString &path);

// From here on such an end leaves the marker behind before the process goes. A kill or a power cut leaves none.
void watch(const QString &path);

} // namespace DeathMarker

} // namespace korvane
