// A file that the window was given to share.
#include "ShareSheet/SharedFile.h"

#include "FrontEnd/FileArgument.h"
#include "FrontEnd/UploadText.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstring>

#include <sys/stat.h>

namespace korvane {

SharedFile SharedFile::fromArgument(const QByteArray &argument) {
    SharedFile file;
    const auto path = FileArgument::path(argument);
    file.path = path.value_or(QByteArray());
    file.name = UploadText::printable(QString::fromUtf8(path ? path->mid(path->lastIndexOf('/') + 1) : argument));
    if (!path)
        file.problem = QCoreApplication::translate(
            "SharedFile", "this is not on this device; copy it here, or open its folder in the file manager first");
    return file;
}

QString SharedFile::problemAtSight() const {
    if (!problem.isEmpty()) return problem;
    struct stat status;
    if (::stat(path.constData(), &status) != 0)
        return errno == ENOENT ? QCoreApplication::translate("SharedFile", "there is no such file")
                               : QString::fromLocal8Bit(std::strerror(errno));
    if (S_ISDIR(status.st_mode))
        return QCoreApplication::translate("SharedFile", "this is a folder; choose the files in it");
    return S_ISREG(status.st_mode) ? QString() : QCoreApplication::translate("SharedFile", "this is no ordinary file");
}

} // namespace korvane
