// A file that the window was given to share.
#include "ShareSheet/SharedFile.h"

#include "FrontEnd/UploadText.h"
#include "Platform/Foundation/NSURL.h"

#include <QCoreApplication>
#include <QSysInfo>
#include <QUrl>

#include <cerrno>
#include <cstring>

#include <sys/stat.h>

namespace korvane {
namespace {

// "scheme:" in front of it, other than what a file's name may begin with.
bool isAddress(const QByteArray &argument) {
    const qsizetype colon = argument.indexOf("://");
    return colon > 1 && argument.left(colon).indexOf('/') < 0;
}

bool isThisHost(const QString &host) {
    return host.isEmpty() || host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

// Some file managers leave spaces and letters of other scripts as they are.
QByteArray pathOfAddress(const QByteArray &address) {
    const auto exact = NSURL::URLWithString(QString::fromUtf8(address));
    if (exact && exact->isFileURL() && (isThisHost(exact->host()) || exact->isLoopback()))
        return exact->fileSystemRepresentation();
    if (exact) return {};
    const QUrl url(QString::fromUtf8(address));
    return url.scheme() == QStringLiteral("file") && isThisHost(url.host()) ? url.path().toUtf8() : QByteArray();
}

} // namespace

SharedFile SharedFile::fromArgument(const QByteArray &argument) {
    SharedFile file;
    file.path = isAddress(argument) ? pathOfAddress(argument) : argument;
    file.name = UploadText::printable(
        QString::fromUtf8(file.path.isEmpty() ? argument : file.path.mid(file.path.lastIndexOf('/') + 1)));
    if (file.path.isEmpty())
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
