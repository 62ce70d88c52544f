// korvane share vimeo: hands a video over to the upload service.
#pragma once

#include "CommandLine/ShareReport.h"
#include "Platform/Foundation/NSURL.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace korvane {

class VimeoPost;

class ShareVimeoCommand {
public:
    // Adds the command to the parser, which fills this object when it parses.
    explicit ShareVimeoCommand(CLI::App &share);
    bool isChosen() const;
    // Blocks; returns the exit status. Needs the application object.
    int run();

private:
    std::shared_ptr<VimeoPost> _post(const NSURL &url) const;

    CLI::App *_app = nullptr;
    ShareReport _report{QStringLiteral("video")};
    std::string _file;
    std::string _title;
    std::optional<std::string> _description;
    std::vector<std::string> _tags;
    std::string _size = "large";
    std::string _privacy = "public";
};

} // namespace korvane
