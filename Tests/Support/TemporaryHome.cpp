// A home folder of a test's own, and files to put into it.
#include "Tests/Support/TemporaryHome.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>

namespace korvane::test {
namespace {

void set(const QByteArray &name, const QByteArray &value) {
    if (value.isNull())
        qunsetenv(name.constData());
    else
        qputenv(name.constData(), value);
}

QByteArray contentsOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TemporaryHome::TemporaryHome() {
    setEnvironment("HOME", QFile::encodeName(path()));
    setEnvironment("KORVANE_SECRETS", "file");
    for (const auto &[name, folder] : {std::pair{"XDG_CONFIG_HOME", "config"}, std::pair{"XDG_STATE_HOME", "state"},
                                       std::pair{"XDG_DATA_HOME", "data"}, std::pair{"XDG_RUNTIME_DIR", "run"},
                                       std::pair{"KORVANE_PHOTO_LIBRARY", "library"}}) {
        QDir().mkpath(path(folder));
        QFile::setPermissions(path(folder), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        setEnvironment(name, QFile::encodeName(path(folder)));
    }
}

TemporaryHome::~TemporaryHome() {
    for (const auto &[name, value] : _before)
        set(name, value);
}

void TemporaryHome::setEnvironment(const QByteArray &name, const QByteArray &value) {
    _before.try_emplace(name, qEnvironmentVariableIsSet(name.constData()) ? qgetenv(name.constData()) : QByteArray());
    set(name, value);
}

QByteArray TemporaryHome::file(QAnyStringView name, const QByteArray &contents) const {
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    file.open(QIODevice::WriteOnly);
    file.write(contents);
    return QFile::encodeName(file.fileName());
}

QByteArray TemporaryHome::contents(QAnyStringView name) const {
    return contentsOf(path(name));
}

QByteArray jpegOfSize(qint64 length, quint32 seed) {
    const QByteArray header = QByteArray::fromHex("ffd8ffe000104a46494600010100000100010000");
    return (header + variedBytes(length, seed)).left(length);
}

QByteArray variedBytes(qint64 length, quint32 seed) {
    QByteArray bytes((length + 3) / 4 * 4, Qt::Uninitialized);
    QRandomGenerator(seed).fillRange(reinterpret_cast<quint32 *>(bytes.data()), bytes.size() / 4);
    return bytes.left(length);
}

QByteArray dataPath(const char *name) {
    return QByteArray(KORVANE_TEST_DATA "/") + name;
}

QByteArray dataBytes(const char *name) {
    return contentsOf(QFile::decodeName(dataPath(name)));
}

QByteArray sha256Of(const QByteArray &bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

} // namespace korvane::test
