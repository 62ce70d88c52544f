// korvane share: hands photos or a video over to the upload service.
#include "CommandLine/ShareCommand.h"

#include <CLI/CLI.hpp>

namespace korvane {

ShareCommand::ShareCommand(CLI::App &program)
    : _share(program.add_subcommand("share", "Share photos or a video")), _flickr(*_share), _vimeo(*_share) {
    _share->require_subcommand(1);
}

bool ShareCommand::isChosen() const {
    return _share->parsed();
}

int ShareCommand::run() {
    return _flickr.isChosen() ? _flickr.run() : _vimeo.run();
}

} // namespace korvane
