// Where programs are.
#include "Platform/Foundation/ProgramPath.h"

#include <QByteArrayList>

#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <climits>

namespace korvane {
namespace {

bool isProgram(const QByteArray &path) {
    return ::access(path.constData(), X_OK) == 0 && ::access((path + '/').constData(), F_OK) != 0;
}

QByteArray folderOf(const QByteArray &path) {
    return path.left(std::max<qsizetype>(0, path.lastIndexOf('/')));
}

} // namespace

QByteArray pathOfProgram(const QByteArray &name) {
    QByteArrayList folders;
    char executable[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", executable, sizeof executable);
    if (length > 0) folders.append(folderOf(QByteArray(executable, length)));
    Dl_info library;
    if (::dladdr(reinterpret_cast<const void *>(&folderOf), &library) != 0 && library.dli_fname) {
        QByteArray folder = folderOf(library.dli_fname); // PREFIX/lib or PREFIX/lib/TRIPLET
        for (int levels = 0; levels < 2 && !folder.isEmpty(); ++levels)
            folders.append((folder = folderOf(folder)) + "/bin");
    }
    folders.append(qgetenv("PATH").split(':'));
    for (const QByteArray &folder : std::as_const(folders)) {
        QByteArray path = folder + '/' + name;
        if (folder.startsWith('/') && isProgram(path)) return path;
    }
    return {};
}

} // namespace korvane
