// Whether the machine has a way out to the network, and over which device.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace korvane {

// Read afresh from the kernel's tables on every call. Thread: any.
namespace NetworkRoute {

// The device of the default route, of several the preferred one, of IPv4 before IPv6 (where loopback does not count).
// Empty where there is none; null where the tables cannot be read.
std::optional<QByteArray> defaultDevice(const QString &procRoot = QStringLiteral("/proc"));

bool hasDefaultRoute(const QString &procRoot = QStringLiteral("/proc"));

// Whether the device is a modem: the kernel calls it one, or it has a modem's usual name.
bool isCellularDevice(const QByteArray &device, const QString &sysRoot = QStringLiteral("/sys"));

} // namespace NetworkRoute

} // namespace korvane
