// The library's own log, silent unless the user's defaults switch it on.
#include "Korvane/KRLog.h"

#include "Platform/Preferences/NSUserDefaults.h"

namespace korvane {

bool KRIsLoggingEnabled() {
    return NSUserDefaults::standardUserDefaults().boolForKey(QStringLiteral("KRLoggingEnabled"));
}

bool KRLogIsOn() {
    static const bool enabled = KRIsLoggingEnabled();
    return enabled;
}

} // namespace korvane
