// One preference domain as a process sees it.
#pragma once

#include "Platform/Preferences/LockedJSONFile.h"

#include <QVariant>

#include <map>
#include <memory>
#include <mutex>

namespace korvane {

// Values that were set and not yet synchronized are seen by this process only, by both kinds of look-up. Thread: any.
class PreferenceDomain {
public:
    // The domain of that name in the user's present configuration folder; one object a file and process.
    static std::shared_ptr<PreferenceDomain> domainWithName(const QString &applicationID);

    explicit PreferenceDomain(QString path) : _file(std::move(path)) {}

    const QString &path() const { return _file.path(); } // of its file

    // The value as it was when the domain was last synchronized (or first used).
    QVariant value(const QString &key);
    // The value as it is in the file now.
    QVariant currentValue(const QString &key);
    // An invalid value removes. What JSON cannot hold is refused with a log line.
    void setValue(const QString &key, const QVariant &value);
    // Writes what was set, over what other processes wrote meanwhile, and reads anew. On failure what was set stays
    // set.
    bool synchronize();

private:
    struct Pending {
        QVariant value;
        quint64 serial;
    };
    QVariantMap _read() const;

    const LockedJSONFile _file;
    std::mutex _synchronizing; // taken before _mutex, held over the writing
    std::mutex _mutex;         // for everything below
    std::map<QString, Pending> _pending;
    quint64 _serial = 0;
    std::optional<QVariantMap> _synchronized;
};

} // namespace korvane
