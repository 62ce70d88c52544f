// korvane share vimeo: hands a video over to the upload service.
#pragma once

#include "CommandLine/ShareReport.h"

#include <optional>
#include <string>
#include <vector>

namespace korvane {

class VimeoComposeViewController;

class ShareVimeoCommand {
public:
    // Adds the command to the parser, which fills this object when it parses.
    explicit ShareVimeoCommand(CLI::App &share);
    bool isChosen() const;
    // Blocks; returns the exit status. Needs the application object.
    int run();

private:
    void _fillDetails(VimeoComposeViewController &sheet) const;

    CLI::App *_app = nullptr;
    ShareReport _report{QStringLiteral("video")};
    std::string _file;
    std::string _title;
    std::optional<std::string> _description;
    std::vector<std::string> _tags;
    std::optional<std::string> _size;
    std::optional<std::string> _privacy;
};

} // namespace korvane
