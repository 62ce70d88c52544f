// korvane standin: local stand-ins of the web services, for trying out.
#include "CommandLine/StandInCommand.h"

#include "CommandLine/BecomeProgram.h"

#include <CLI/CLI.hpp>

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
    QByteArrayList arguments;
    if (_port >= 0) arguments += {"--port", QByteArray::number(_port)};
    if (!_folder.empty()) arguments += {"--state", QByteArray::fromStdString(_folder)};
    return becomeProgram("korvane-standin", arguments);
}

} // namespace korvane
