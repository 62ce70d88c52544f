// korvane compose: opens the share sheet's window.
#include "CommandLine/ComposeCommand.h"

#include "CommandLine/Output.h"
#include "FrontEnd/ExitStatus.h"
#include "Platform/Foundation/ProgramPath.h"

#include <CLI/CLI.hpp>

#include <cerrno>
#include <cstring>

#include <unistd.h>

namespace korvane {
namespace {

const char *const examples = R"(Examples:
  korvane compose flickr sunset.jpg *.png
  korvane compose vimeo file:///home/ann/Videos/summer%20day.mp4

What is entered in the window is posted with its Post button; the uploads then go on in the background.

Exit status: 0 handed over to the upload service, 1 not shared, or something that has no status of its own,
2 bad usage or no file that can be used, 3 no account, 4 the upload service cannot be reached, runs with other settings,
or cannot take anything just now.)";

} // namespace

ComposeCommand::ComposeCommand(CLI::App &program) {
    _app = program.add_subcommand("compose", "Open the share sheet's window with photos or a video");
    _app->add_option("SERVICE", _service, "flickr or vimeo")
        ->required()
        ->type_name("")
        ->check(CLI::IsMember({"flickr", "vimeo"}));
    _app->add_option("FILE", _files, "The photos or the video: paths or file:// addresses")->required()->type_name("");
    _app->footer(examples);
}

bool ComposeCommand::isChosen() const {
    return _app->parsed();
}

int ComposeCommand::run() {
    const std::string program = pathOfProgram("korvane-sheet").toStdString();
    if (program.empty()) {
        Output::problem(QStringLiteral("The program korvane-sheet is not installed beside korvane, nor in PATH."));
        return ExitUploadFailed;
    }
    std::vector<std::string> arguments{program, _service, "--"};
    arguments.insert(arguments.end(), _files.begin(), _files.end());
    std::vector<char *> pointers;
    for (std::string &argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    ::execv(program.c_str(), pointers.data());
    Output::problem(QStringLiteral("%1 cannot be run: %2")
                        .arg(QString::fromStdString(program), QString::fromLocal8Bit(std::strerror(errno))));
    return ExitUploadFailed;
}

} // namespace korvane
