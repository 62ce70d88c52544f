// Another program in place of this one.
#include "CommandLine/BecomeProgram.h"

#include "CommandLine/Output.h"
#include "Platform/Foundation/ProgramPath.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <vector>

#include <unistd.h>

namespace korvane {

ExitStatus becomeProgram(const QByteArray &name, QByteArrayList arguments) {
    const QByteArray program = pathOfProgram(name);
    if (program.isEmpty()) {
        Output::problem(QStringLiteral("The program %1 is not installed beside korvane, nor in PATH.")
                            .arg(QString::fromLatin1(name)));
        return ExitUploadFailed;
    }
    arguments.prepend(program);
    std::vector<char *> pointers;
    for (QByteArray &argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    ::execv(program.constData(), pointers.data());
    Output::problem(QStringLiteral("%1 cannot be run: %2")
                        .arg(QFile::decodeName(program), QString::fromLocal8Bit(std::strerror(errno))));
    return ExitUploadFailed;
}

} // namespace korvane
