// Whether there is a session bus to talk to.
#pragma once

namespace korvane {

namespace UserBus {

// Whether the environment names a bus, or the user's runtime folder holds one. Where this is false, D-Bus libraries
// would start a bus of their own that nobody else is on: do not connect. Thread: any.
bool isPresent();

} // namespace UserBus

} // namespace korvane
