// One preference domain as a process sees it.
#include "Platform/Preferences/PreferenceDomain.h"

#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/NSJSONSerialization.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Preferences/LogOnce.h"

#include <QFile>
#include <QHash>
#include <QUrl>

namespace korvane {

std::shared_ptr<PreferenceDomain> PreferenceDomain::domainWithName(const QString &applicationID) {
    static std::mutex mutex;
    static QHash<QString, std::shared_ptr<PreferenceDomain>> domains;
    // Percent-encoded, so that no name leads out of the folder.
    const QString path = QStringLiteral("%1/preferences/%2.json")
                             .arg(configFolder(), QString::fromLatin1(QUrl::toPercentEncoding(applicationID)));
    const std::lock_guard lock(mutex);
    auto &domain = domains[path];
    if (!domain) domain = std::make_shared<PreferenceDomain>(path);
    return domain;
}

QVariantMap PreferenceDomain::_read() const {
    std::optional<NSError> error;
    const auto values = _file.read(&error);
    if (!values)
        logOnce(
            QStringLiteral("Preferences could not be read and count as empty: %1").arg(error->localizedDescription()));
    return values.value_or(QVariantMap());
}

QVariant PreferenceDomain::value(const QString &key) {
    const std::lock_guard lock(_mutex);
    const auto pending = _pending.find(key);
    if (pending != _pending.end()) return pending->second.value;
    if (!_synchronized) _synchronized = _read();
    return _synchronized->value(key);
}

QVariant PreferenceDomain::currentValue(const QString &key) {
    const std::lock_guard lock(_mutex);
    const auto pending = _pending.find(key);
    if (pending != _pending.end()) return pending->second.value;
    return _read().value(key);
}

void PreferenceDomain::setValue(const QString &key, const QVariant &value) {
    if (!NSJSONSerialization::dataWithJSONObject(value))
        return NSLog("The preference %@ was not set: a value of type %s cannot be stored.", key, value.typeName());
    const std::lock_guard lock(_mutex);
    _pending.insert_or_assign(key, Pending{value, ++_serial});
}

bool PreferenceDomain::synchronize() {
    const std::lock_guard order(_synchronizing);
    std::map<QString, Pending> writing;
    {
        const std::lock_guard lock(_mutex);
        writing = _pending;
    }
    if (!writing.empty()) {
        std::optional<NSError> error;
        const auto merge = [&writing](QVariantMap &values) {
            for (const auto &[key, pending] : writing) {
                if (pending.value.isValid())
                    values.insert(key, pending.value);
                else
                    values.remove(key);
            }
            return true;
        };
        if (!_file.update(merge, &error)) {
            NSLog("Preferences were not saved: %@", error->localizedDescription());
            return false;
        }
    }
    QVariantMap values = _read();
    const std::lock_guard lock(_mutex);
    // What was set again while the file was written waits for the next time.
    std::erase_if(_pending, [&writing](const auto &pending) {
        const auto written = writing.find(pending.first);
        return written != writing.end() && written->second.serial == pending.second.serial;
    });
    _synchronized = std::move(values);
    return true;
}

} // namespace korvane
