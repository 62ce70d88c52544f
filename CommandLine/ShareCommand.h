// korvane share: hands photos or a video over to the upload service.
#pragma once

#include "CommandLine/ShareFlickrCommand.h"
#include "CommandLine/ShareVimeoCommand.h"

namespace korvane {

class ShareCommand {
public:
    // Adds the command to the parser, which fills this object when it parses.
    explicit ShareCommand(CLI::App &program);
    bool isChosen() const;
    // Blocks; returns the exit status. Needs the application object.
    int run();

private:
    CLI::App *_share;
    ShareFlickrCommand _flickr;
    ShareVimeoCommand _vimeo;
};

} // namespace korvane
