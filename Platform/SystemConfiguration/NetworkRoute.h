// Whether the machine has a way out to the network.
#pragma once

#include <QString>

namespace korvane {

namespace NetworkRoute {

// Whether the kernel's routing tables (IPv4 or IPv6) hold a default route over a device other than loopback. Thread:
// any.
bool hasDefaultRoute(const QString &procRoot = QStringLiteral("/proc"));

} // namespace NetworkRoute

} // namespace korvane
