// Another program in place of this one.
#pragma once

#include "FrontEnd/ExitStatus.h"

#include <QByteArrayList>

namespace korvane {

// Runs a program of ours in this process. Comes back only where it cannot be run, having said so, with the exit status.
ExitStatus becomeProgram(const QByteArray &name, QByteArrayList arguments);

} // namespace korvane
