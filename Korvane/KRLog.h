// The library's own log, silent unless the user's defaults switch it on.
#pragma once

#include "Platform/Foundation/NSLog.h"

namespace korvane {

// The current value of the boolean "KRLoggingEnabled" in the process's defaults; read anew at each call. Thread: any.
bool KRIsLoggingEnabled();

// What KRIsLoggingEnabled() answered when the process first logged: a process logs from its start or not at all.
bool KRLogIsOn();

// Writes one line to the platform log if logging is on; otherwise the arguments are never formatted. Thread: any.
template <class... Arguments>
void KRLog(const char *format, const Arguments &...arguments) {
    if (KRLogIsOn()) NSLog(format, arguments...);
}

} // namespace korvane
