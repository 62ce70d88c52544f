// Where Korvane keeps its files.
#include "Platform/Foundation/Folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

#include <cerrno>
#include <mutex>

namespace korvane {
namespace {

std::mutex temporaryMutex;
QString temporaryFolder;

QString baseFolder(const char *variable, const QString &fallbackBelowHome) {
    QString base = QFile::decodeName(qgetenv(variable));
    if (!QDir::isAbsolutePath(base)) base = QDir::homePath() + u'/' + fallbackBelowHome;
    return base + QStringLiteral("/korvane");
}

} // namespace

bool makePrivateFolder(const QString &path) {
    const QByteArray name = QFile::encodeName(path);
    if (::mkdir(name.constData(), 0700) == 0) return true;
    if (errno == ENOENT && !path.isEmpty() && makePrivateFolder(QFileInfo(path).path()) &&
        ::mkdir(name.constData(), 0700) == 0)
        return true;
    return errno == EEXIST && QFileInfo(path).isDir();
}

QString configFolder() {
    return baseFolder("XDG_CONFIG_HOME", QStringLiteral(".config"));
}

QString stateFolder() {
    const QString folder = baseFolder("XDG_STATE_HOME", QStringLiteral(".local/state"));
    makePrivateFolder(folder);
    return folder;
}

QString NSTemporaryDirectory() {
    const std::lock_guard lock(temporaryMutex);
    if (temporaryFolder.isEmpty()) temporaryFolder = stateFolder() + QStringLiteral("/tmp");
    makePrivateFolder(temporaryFolder);
    return temporaryFolder;
}

void setTemporaryDirectory(const QString &path) {
    const std::lock_guard lock(temporaryMutex);
    temporaryFolder = path;
}

} // namespace korvane
