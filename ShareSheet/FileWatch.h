// A file of the configuration folder that other programs change, too.
#pragma once

#include "Platform/Foundation/NSData.h"

#include <QFileSystemWatcher>

namespace korvane {

// Such files are replaced, so it is their folder that is watched; it is made for that. Thread: main.
class FileWatch : public QObject {
    Q_OBJECT

public:
    explicit FileWatch(const QString &path);

Q_SIGNALS:
    void changed(); // another file has that name, or none

private:
    void _look();

    const QString _path;
    std::optional<FileIdentity> _identity;
    QFileSystemWatcher _watcher;
};

} // namespace korvane
