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
// as NAME.json.damaged (where that is taken, NAME.json.damaged.2 and so on) and counts as empty; one that cannot be
// read is an error and is left alone. Thread: any.
class LockedJSONFile {
public:
    // What is wrong with the shape of the values; empty if nothing is.
    using Check = std::function<QString(const QVariantMap &values)>;

    // path: of NAME.json; its folder is made when needed. A file that does not pass the check is a damaged one.
    explicit LockedJSONFile(QString path, Check check = {}) : _path(std::move(path)), _check(std::move(check)) {}

    const QString &path() const { return _path; }
    // Where the last damaged file was set aside; empty if none is there.
    QString asidePath() const;

    // The values; empty where there is no file. Null, with the error placed, if it cannot be read. A file that is the
    // same as at the last look is not read again.
    std::optional<QVariantMap> read(std::optional<NSError> *error = nullptr) const;

    // Reads, lets change alter the values, and writes them, all under the lock. Where change returns false nothing is
    // written and the error is left to it.
    bool update(const std::function<bool(QVariantMap &values)> &change, std::optional<NSError> *error = nullptr) const;

private:
    enum class Contents { Read, Damaged, Unreadable };
    Contents _load(QVariantMap &values, QString &problem, std::optional<NSError> *error) const;
    QString _asidePath(int number) const;
    void _setAside(const QString &problem) const;
    bool _write(const std::optional<QByteArray> &text, std::optional<NSError> *error) const;

    QString _path;
    Check _check;
};

} // namespace korvane
