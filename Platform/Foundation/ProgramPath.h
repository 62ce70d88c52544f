// Where programs are.
#pragma once

#include <QByteArray>

namespace korvane {

// Where a program of ours is: beside the running program, in the bin folder of the installation that this library
// belongs to, or in $PATH. Empty if nowhere.
QByteArray pathOfProgram(const QByteArray &name);

} // namespace korvane
