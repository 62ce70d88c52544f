// A file as it is named on a command line.
#pragma once

#include <QByteArray>

#include <optional>

namespace korvane {

namespace FileArgument {

// The path, in the file system's own bytes. argument: a path, or an address as file managers pass it; null for an
// address of something that is not on this device. The file is not looked at.
std::optional<QByteArray> path(const QByteArray &argument);

} // namespace FileArgument

} // namespace korvane
