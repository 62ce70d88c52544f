// A home folder of a test's own, with the environment pointing at it.
#include "Tests/Support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

namespace korvane::test {

TemporaryHome::TemporaryHome() {
    setEnvironment("HOME", QFile::encodeName(path()));
    setEnvironment("KORVANE_SECRETS", "file");
    for (const auto &[name, folder] : {std::pair{"XDG_CONFIG_HOME", "config"}, std::pair{"XDG_STATE_HOME", "state"},
                                       std::pair{"XDG_DATA_HOME", "data"}, std::pair{"XDG_RUNTIME_DIR", "run"},
                                       std::pair{"KORVANE_PHOTO_LIBRARY", "library"}}) {
        const QString place = path(QLatin1String(folder));
        QDir().mkpath(place);
        QFile::setPermissions(place, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        setEnvironment(name, QFile::encodeName(place));
    }
}

TemporaryHome::~TemporaryHome() {
    for (const auto &[name, value] : _before) {
        if (value.isNull())
            qunsetenv(name.constData());
        else
            qputenv(name.constData(), value);
    }
}

void TemporaryHome::setEnvironment(const QByteArray &name, const QByteArray &value) {
    _before.try_emplace(name, qEnvironmentVariableIsSet(name.constData()) ? qgetenv(name.constData()) : QByteArray());
    qputenv(name.constData(), value);
}

QByteArray TemporaryHome::file(const QString &name, const QByteArray &contents) const {
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    file.open(QIODevice::WriteOnly);
    file.write(contents);
    return QFile::encodeName(file.fileName());
}

QByteArray jpegOfSize(qint64 length, quint32 seed) {
    QByteArray bytes = QByteArray::fromHex("ffd8ffe000104a46494600010100000100010000");
    QRandomGenerator random(seed);
    while (bytes.size() < length) {
        const quint32 word = random.generate();
        bytes.append(reinterpret_cast<const char *>(&word), sizeof word);
    }
    bytes.truncate(length);
    return bytes;
}

} // namespace korvane::test
