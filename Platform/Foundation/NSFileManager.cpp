// Changes to the file system.
#include "Platform/Foundation/NSFileManager.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

namespace korvane {

const NSFileManager &NSFileManager::defaultManager() {
    static const NSFileManager manager;
    return manager;
}

bool NSFileManager::removeItemAtURL(const NSURL &url, std::optional<NSError> *error) const {
    const QByteArray path = url.fileSystemRepresentation();
    const bool isUsable = url.isFileURL() && !path.contains('\0'); // the kernel would see another name
    if (isUsable && ::remove(path.constData()) == 0) return true;
    const int code = isUsable ? errno : EINVAL;
    setError(error, NSError::errorWithErrno(code, isUsable ? QFile::decodeName(path) : url.absoluteString()));
    return false;
}

} // namespace korvane
