// The defaults of the running program.
#include "Platform/Preferences/NSUserDefaults.h"

#include "Platform/Foundation/NSNumber.h"
#include "Platform/Preferences/PreferenceDomain.h"

#include <QCoreApplication>

namespace korvane {

const NSUserDefaults &NSUserDefaults::standardUserDefaults() {
    static const NSUserDefaults defaults;
    return defaults;
}

QVariant NSUserDefaults::objectForKey(const QString &key) const {
    const QVariant own = PreferenceDomain::domainWithName(QCoreApplication::applicationName())->currentValue(key);
    if (own.isValid()) return own;
    return PreferenceDomain::domainWithName(QStringLiteral("global"))->currentValue(key);
}

bool NSUserDefaults::boolForKey(const QString &key) const {
    return boolValue(objectForKey(key));
}

qint64 NSUserDefaults::integerForKey(const QString &key) const {
    return integerValue(objectForKey(key));
}

} // namespace korvane
