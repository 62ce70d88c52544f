// korvane share flickr: hands photos over to the upload service.
#pragma once

#include "CommandLine/ShareReport.h"
#include "Platform/Social/SLAttachment.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace korvane {

class FlickrPost;

class ShareFlickrCommand {
public:
    // Adds the command to the parser, which fills this object when it parses.
    explicit ShareFlickrCommand(CLI::App &share);
    bool isChosen() const;
    // Blocks; returns the exit status. Needs the application object.
    int run();

private:
    // Null, after naming every file that cannot be shared.
    std::optional<std::vector<SLAttachment>> _attachments() const;
    std::shared_ptr<FlickrPost> _post(const SLAttachment &attachment) const;

    CLI::App *_app = nullptr;
    ShareReport _report{QStringLiteral("photo")};
    std::vector<std::string> _files;
    std::optional<std::string> _title;
    std::string _audience = "public";
    std::string _album;
    bool _withoutMetadata = false;
};

} // namespace korvane
