// The defaults of the running program.
#pragma once

#include <QString>
#include <QVariant>

namespace korvane {

// Looks in the domain of the program's own name, then in "global". Every call looks at the files, so that a changed
// preference counts at once. Thread: any.
class NSUserDefaults {
public:
    static const NSUserDefaults &standardUserDefaults();

    QVariant objectForKey(const QString &key) const; // invalid where neither domain has the key
    bool boolForKey(const QString &key) const;       // as boolValue() reads it
    qint64 integerForKey(const QString &key) const;  // as integerValue() reads it

private:
    NSUserDefaults() = default;
};

} // namespace korvane
