// A file of the configuration folder that other programs change, too.
#include "ShareSheet/FileWatch.h"

#include "Platform/Foundation/Folders.h"

#include <QFile>
#include <QFileInfo>

namespace korvane {

FileWatch::FileWatch(const QString &path) : _path(path), _identity(FileIdentity::ofPath(QFile::encodeName(path))) {
    const QString folder = QFileInfo(path).path();
    makePrivateFolder(folder);
    _watcher.addPath(folder);
    connect(&_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::_look);
}

void FileWatch::_look() {
    const auto identity = FileIdentity::ofPath(QFile::encodeName(_path));
    if (std::exchange(_identity, identity) != identity) Q_EMIT changed();
}

} // namespace korvane
