// Preference domains.
#include "Platform/Preferences/CFPreferences.h"

#include "Platform/Preferences/PreferenceDomain.h"

namespace korvane {

QVariant CFPreferencesCopyAppValue(const QString &key, const QString &applicationID) {
    return PreferenceDomain::domainWithName(applicationID)->value(key);
}

void CFPreferencesSetAppValue(const QString &key, const QVariant &value, const QString &applicationID) {
    PreferenceDomain::domainWithName(applicationID)->setValue(key, value);
}

bool CFPreferencesAppSynchronize(const QString &applicationID) {
    return PreferenceDomain::domainWithName(applicationID)->synchronize();
}

} // namespace korvane
