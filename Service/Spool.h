// The folder in which the service keeps the data of posts.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"
#include "Platform/Foundation/NSError.h"
#include "Platform/Foundation/NSURL.h"

#include <QSet>
#include <QString>

#include <memory>
#include <optional>

namespace korvane {

// Thread: any; it has no state but the folder's path.
class Spool {
public:
    // Makes the folder.
    explicit Spool(QString folder);

    // Gives a file a name in the spool, or copies it where that cannot be, and returns the name once file and name are
    // on disk. Null, with the error placed and nothing left behind, if it cannot be kept.
    std::optional<QString> adopt(int file, std::optional<NSError> *error) const;

    // The file, open for reading; null if it is gone.
    std::shared_ptr<const FileDescriptor> open(const QString &name) const;
    NSURL urlOf(const QString &name) const;
    void remove(const QString &name) const;
    // Removes every file that is not among the known ones.
    void sweep(const QSet<QString> &known) const;

private:
    bool _link(int file, const QByteArray &path) const;
    bool _copy(int file, const QByteArray &path) const;
    QByteArray _pathOf(const QString &name) const;
    QString _folder;
};

} // namespace korvane
