// A file that the window was given to share.
#pragma once

#include <QByteArray>
#include <QString>

namespace korvane {

struct SharedFile {
    QByteArray path; // absolute or below the current folder, in the file system's own bytes; empty where there is none
    QString name;    // for people
    QString problem; // why it cannot be used; empty as far as nothing is known

    // argument: a path, or an address as file managers pass it. The file is not looked at.
    static SharedFile fromArgument(const QByteArray &argument);
    // What is wrong with the file at first sight; empty if nothing is. May block, for a file of a far-away machine.
    QString problemAtSight() const;
};

} // namespace korvane
