// Where log lines go while a command does a person's work in a share sheet.
#pragma once

namespace korvane {

// The sheet's log is for the system's log and not for the terminal. From now on, to the end of the process.
void sendLogToSystemLog();

} // namespace korvane
