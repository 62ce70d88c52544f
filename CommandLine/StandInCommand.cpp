// korvane standin: local stand-ins of the web services, for trying out.
#include "CommandLine/StandInCommand.h"

#include "CommandLine/Output.h"
#include "FrontEnd/ExitStatus.h"
#include "Platform/Foundation/ProgramPath.h"

#include <CLI/CLI.hpp>
#include <QByteArrayList>

#include <cerrno>
#include <cstring>
#include <vector>

#include <unistd.h>

namespace korvane {

StandInCommand::StandInCommand(CLI::App &program) {
    _standIn = program.add_subcommand("standin", "Run local stand-ins of the web services, for trying out");
    _standIn->add_option("--port", _port, "Port to listen on, on this machine only; 0 for any free one")
        ->type_name("PORT")
        ->check(CLI::Range(0, 65535));
    _standIn->add_option("--state", _folder, "Folder for what is received, kept from run to run")->type_name("DIR");
    _standIn->footer(
        "It says where it listens. Other programs use it with KORVANE_FLICKR_URL=http://127.0.0.1:PORT\nand "
        "KORVANE_VIMEO_URL=http://127.0.0.1:PORT.");
}

bool StandInCommand::isChosen() const {
    return _standIn->parsed();
}

int StandInCommand::run() {
    QByteArray program = pathOfProgram("korvane-standin");
    if (program.isEmpty()) {
        Output::problem(QStringLiteral("The program korvane-standin is not installed beside korvane, nor in PATH."));
        return ExitUploadFailed;
    }
    QByteArrayList arguments{program};
    if (_port >= 0) arguments += {"--port", QByteArray::number(_port)};
    if (!_folder.empty()) arguments += {"--state", QByteArray::fromStdString(_folder)};
    std::vector<char *> pointers;
    for (QByteArray &argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    ::execv(program.constData(), pointers.data());
    Output::problem(QStringLiteral("%1 cannot be run: %2")
                        .arg(QString::fromUtf8(program), QString::fromLocal8Bit(std::strerror(errno))));
    return ExitUploadFailed;
}

} // namespace korvane
