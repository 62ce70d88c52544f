// A file as it is named on a command line.
#include "FrontEnd/FileArgument.h"

#include "Platform/Foundation/NSURL.h"

#include <QSysInfo>
#include <QUrl>

namespace korvane {
namespace {

// "scheme:" in front of it, other than what a file's name may begin with.
bool isAddress(const QByteArray &argument) {
    const qsizetype colon = argument.indexOf(':');
    const QByteArray scheme = argument.left(colon);
    return colon > 1 && !scheme.contains('/') &&
           (argument.mid(colon).startsWith("://") || (scheme == "file" && argument.mid(colon).startsWith(":/")));
}

bool isThisHost(const QString &host) {
    return host.isEmpty() || host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

// Schemes have no case.
QByteArray withPlainScheme(const QByteArray &argument) {
    return argument.left(5).toLower() == "file:" ? "file:" + argument.mid(5) : argument;
}

// Some file managers leave spaces and letters of other scripts as they are.
std::optional<QByteArray> pathOfAddress(const QByteArray &address) {
    const auto exact = NSURL::URLWithString(QString::fromUtf8(address));
    if (exact && exact->isFileURL() && (isThisHost(exact->host()) || exact->isLoopback()))
        return exact->fileSystemRepresentation();
    if (exact) return std::nullopt;
    const QUrl url(QString::fromUtf8(address));
    if (url.scheme() != QStringLiteral("file") || !isThisHost(url.host())) return std::nullopt;
    return url.path().toUtf8();
}

} // namespace

std::optional<QByteArray> FileArgument::path(const QByteArray &argument) {
    const QByteArray plain = withPlainScheme(argument);
    return isAddress(plain) ? pathOfAddress(plain) : std::optional(argument);
}

} // namespace korvane
