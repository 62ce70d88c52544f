// The window's page of uploads, which a tapped notification opens.
#pragma once

#include <QString>

namespace korvane {

namespace UploadsWindow {

// Opens it in a process that neither takes after this one nor ends with it: in a unit of its own where this process is
// a systemd unit, else detached and with the signals of a fresh program. program: korvane-sheet's path. Returns at
// once.
void open(const QString &program);

} // namespace UploadsWindow

} // namespace korvane
