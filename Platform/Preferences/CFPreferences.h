// Preference domains: one JSON file a domain in the user's configuration folder, shared by all processes.
#pragma once

#include <QString>
#include <QVariant>

namespace korvane {

// Values are of JSON's types: qint64, double, bool, QString, QVariantList, QVariantMap. Thread: any.

// The value, or an invalid QVariant where there is none. What the process has set counts at once; what others wrote
// counts after the next synchronization.
QVariant CFPreferencesCopyAppValue(const QString &key, const QString &applicationID);

// The value as an integer. isValid: whether the key is there with a value that is a number, a boolean or the text of an
// integer; else 0 is returned.
qint64 CFPreferencesGetAppIntegerValue(const QString &key, const QString &applicationID, bool *isValid = nullptr);

// Sets a value for this process; an invalid QVariant removes the key. Others see it after the next synchronization.
void CFPreferencesSetAppValue(const QString &key, const QVariant &value, const QString &applicationID);

// Writes what was set since, merged with what other processes wrote meanwhile, and reads the domain anew. Waits for the
// disk. False, with a log line, if the file could not be written; what was set is then kept for the next time.
bool CFPreferencesAppSynchronize(const QString &applicationID);

} // namespace korvane
