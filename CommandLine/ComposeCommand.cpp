// korvane compose: opens the share sheet's window.
#include "CommandLine/ComposeCommand.h"

#include "CommandLine/BecomeProgram.h"

#include <CLI/CLI.hpp>

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
    QByteArrayList arguments{QByteArray::fromStdString(_service), "--"};
    for (const std::string &file : _files)
        arguments.append(QByteArray::fromStdString(file));
    return becomeProgram("korvane-sheet", arguments);
}

} // namespace korvane
