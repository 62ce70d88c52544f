// Where Korvane keeps its files. The folders are readable by the user alone.
#pragma once

#include <QString>

namespace korvane {

QString configFolder(); // $XDG_CONFIG_HOME/korvane: accounts and preferences; made by who writes there
QString stateFolder();  // $XDG_STATE_HOME/korvane: queue and spool; made when it is asked for

// A 0700 folder for files that need not outlive the process; the service gives each run a fresh one. Thread: any.
QString NSTemporaryDirectory();
void setTemporaryDirectory(const QString &path);

// Makes the folder and its parents with mode 0700. False, with errno, if it cannot be.
bool makePrivateFolder(const QString &path);

} // namespace korvane
