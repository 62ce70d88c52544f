// A JSON object in a file that several processes read and change.
#include "Platform/Preferences/LockedJSONFile.h"

#include "Platform/Foundation/FileDescriptor.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSData.h"
#include "Platform/Foundation/NSJSONSerialization.h"
#include "Platform/Preferences/LogOnce.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <sys/file.h>

#include <cerrno>
#include <cstdio>
#include <map>
#include <mutex>

namespace korvane {
namespace {

constexpr int mostAside = 100;
constexpr qint64 largestFile = 16LL * 1024 * 1024; // ten thousand accounts take a tenth of it

// What each file held when it was last read.
class KnownContents {
public:
    std::optional<QVariantMap> find(const QString &path, const FileIdentity &identity) {
        const std::lock_guard lock(_mutex);
        const auto found = _known.find(path);
        return found != _known.end() && found->second.first == identity ? std::optional(found->second.second)
                                                                        : std::nullopt;
    }
    void keep(const QString &path, const FileIdentity &identity, const QVariantMap &values) {
        const std::lock_guard lock(_mutex);
        _known.insert_or_assign(path, std::pair(identity, values));
    }

private:
    std::mutex _mutex;
    std::map<QString, std::pair<FileIdentity, QVariantMap>> _known;
};

KnownContents &knownContents() {
    static auto *const contents = new KnownContents; // late work may still read
    return *contents;
}

// Null, with the error placed, if the lock file cannot be made. The lock goes when the descriptor is closed.
std::optional<FileDescriptor> lockBeside(const QString &path, std::optional<NSError> *error) {
    const QFileInfo file(path);
    const QString folder = file.path();
    const QString lockPath = folder + u'/' + file.completeBaseName() + QStringLiteral(".lock");
    makePrivateFolder(folder); // where it cannot be made, opening the lock says why
    FileDescriptor lock(
        ::open(QFile::encodeName(lockPath).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    int result = -1;
    while (lock && (result = ::flock(lock.get(), LOCK_EX)) != 0 && errno == EINTR)
        continue;
    if (result != 0) {
        setError(error, NSError::errorWithErrno(errno, lockPath));
        return std::nullopt;
    }
    return lock;
}

} // namespace

LockedJSONFile::Contents LockedJSONFile::_load(QVariantMap &values, QString &problem,
                                               std::optional<NSError> *error) const {
    std::optional<NSError> readError;
    const auto data = NSData::dataWithContentsOfFile(QFile::encodeName(_path), &readError);
    if (!data && readError->code() == ENOENT) return Contents::Read;
    if (!data) {
        setError(error, readError);
        return Contents::Unreadable;
    }
    if (data->length() > largestFile) {
        setError(error, NSError::errorWithErrno(EFBIG, _path));
        return Contents::Unreadable;
    }
    const auto value = NSJSONSerialization::JSONObjectWithData(data->bytes(), &problem);
    if (!value) return Contents::Damaged;
    const bool isObject = value->typeId() == QMetaType::QVariantMap;
    problem = !isObject ? localizedText("it does not hold a JSON object") : _check ? _check(value->toMap()) : QString();
    if (!problem.isEmpty()) return Contents::Damaged;
    values = value->toMap();
    knownContents().keep(_path, data->identity(), values);
    return Contents::Read;
}

QString LockedJSONFile::_asidePath(int number) const {
    const QString first = _path + QStringLiteral(".damaged");
    return number == 1 ? first : QStringLiteral("%1.%2").arg(first).arg(number);
}

QString LockedJSONFile::asidePath() const {
    QString last;
    for (int number = 1; number <= mostAside && QFile::exists(_asidePath(number)); ++number)
        last = _asidePath(number);
    return last;
}

// An earlier damaged file is never overwritten: it may hold what somebody still wants to rescue.
void LockedJSONFile::_setAside(const QString &problem) const {
    for (int number = 1; number <= mostAside; ++number) {
        const QString aside = _asidePath(number);
        if (::renameat2(AT_FDCWD, QFile::encodeName(_path).constData(), AT_FDCWD, QFile::encodeName(aside).constData(),
                        RENAME_NOREPLACE) == 0)
            return logOnce(QStringLiteral("%1 is damaged (%2); it was set aside as %3 and counts as empty.")
                               .arg(_path, problem, aside));
        if (errno != EEXIST) break;
    }
    logOnce(QStringLiteral("%1 is damaged (%2) and counts as empty; it could not be set aside (%3).")
                .arg(_path, problem, qt_error_string()));
}

std::optional<QVariantMap> LockedJSONFile::read(std::optional<NSError> *error) const {
    if (const auto identity = FileIdentity::ofPath(QFile::encodeName(_path)))
        if (const auto known = knownContents().find(_path, *identity)) return known;
    QVariantMap values;
    QString problem;
    Contents contents = _load(values, problem, error);
    if (contents == Contents::Damaged) {
        // Another process may be setting it aside, or have replaced it by now.
        const auto lock = lockBeside(_path, nullptr);
        contents = _load(values, problem, error);
        if (contents == Contents::Damaged) _setAside(problem);
    }
    if (contents == Contents::Unreadable) return std::nullopt;
    return values;
}

bool LockedJSONFile::update(const std::function<bool(QVariantMap &values)> &change,
                            std::optional<NSError> *error) const {
    const auto lock = lockBeside(_path, error);
    if (!lock) return false;
    QVariantMap values;
    QString problem;
    const Contents contents = _load(values, problem, error);
    if (contents == Contents::Unreadable) return false;
    if (contents == Contents::Damaged) _setAside(problem);
    const auto before = NSJSONSerialization::dataWithJSONObject(values);
    if (!change(values)) return false;
    const auto after = NSJSONSerialization::dataWithJSONObject(values);
    // Texts are compared since values of different types, as 1 and true, compare as equal.
    return before == after || _write(after, error);
}

bool LockedJSONFile::_write(const std::optional<QByteArray> &text, std::optional<NSError> *error) const {
    const auto fail = [&](const QString &what) {
        setError(error, NSError::errorWithDescription(NSCocoaErrorDomain, 512,
                                                      localizedText("%1 could not be written: %2", _path, what)));
        return false;
    };
    if (!text) return fail(localizedText("a value has a type that JSON has not"));
    QSaveFile file(_path);
    if (!file.open(QIODevice::WriteOnly)) return fail(file.errorString());
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    file.write(*text);
    return file.commit() || fail(file.errorString());
}

} // namespace korvane
