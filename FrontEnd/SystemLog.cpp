// Where log lines go while a command does a person's work in a share sheet.
#include "FrontEnd/SystemLog.h"

#include "Platform/Foundation/NSLog.h"

#include <syslog.h>

namespace korvane {

void sendLogToSystemLog() {
    ::openlog("korvane", LOG_PID, LOG_USER);
    setLogSink([](const QString &message) { ::syslog(LOG_INFO, "%s", message.toUtf8().constData()); });
}

} // namespace korvane
