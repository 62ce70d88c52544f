// A JSON object in a file that several processes read and change.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <QByteArray>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace korvane {

// Readers take no lock: the file is replaced as a whole (mode 0600, synced to disk). Writers exclude each other, across
// threads and processes, by flock of NAME.lock beside NAME.json. A file that is not a JSON object is logged, set aside
// as NAME.json.damaged and counts as empty; one that cannot be read is an error and is left alone. Thread: any.
class LockedJSONFile {
public:
    explicit LockedJSONFile(QString path) : _path(std::move(path)) {} // of NAME.json; its folder is made when needed

    const QString &path() const { return _path; }

    // The values; empty where there is no file. Null, with the error placed, if it cannot be read. A file that is the
    // same as at the last look is not read again.
    std::optional<QVariantMap> read(std::optional<NSError> *error = nullptr) const;

    // Reads, lets change alter the values, and writes them, all under the lock. Where change returns false nothing is
    // written and the error is left to it.
    bool update(const std::function<bool(QVariantMap &values)> &change, std::optional<NSError> *error = nullptr) const;

private:
    enum class Contents { Read, Damaged, Unreadable };
    Contents _load(QVariantMap &values, QString &problem, std::optional<NSError> *error) const;
    void _setAside(const QString &problem) const;
    bool _write(const std::optional<QByteArray> &text, std::optional<NSError> *error) const;

    QString _path;
};

} // namespace korvane
