// Preference domains.
#include "Platform/Preferences/CFPreferences.h"

#include "Platform/Foundation/NSNumber.h"
#include "Platform/Preferences/PreferenceDomain.h"

namespace korvane {

QVariant CFPreferencesCopyAppValue(const QString &key, const QString &applicationID) {
    return PreferenceDomain::domainWithName(applicationID)->value(key);
}

qint64 CFPreferencesGetAppIntegerValue(const QString &key, const QString &applicationID, bool *isValid) {
    const QVariant value = CFPreferencesCopyAppValue(key, applicationID);
    const int type = value.typeId();
    bool valid = type == QMetaType::LongLong || type == QMetaType::Double || type == QMetaType::Bool;
    if (type == QMetaType::QString) value.toString().toLongLong(&valid);
    if (isValid) *isValid = valid;
    return valid ? integerValue(value) : 0;
}

void CFPreferencesSetAppValue(const QString &key, const QVariant &value, const QString &applicationID) {
    PreferenceDomain::domainWithName(applicationID)->setValue(key, value);
}

bool CFPreferencesAppSynchronize(const QString &applicationID) {
    return PreferenceDomain::domainWithName(applicationID)->synchronize();
}

} // namespace korvane
