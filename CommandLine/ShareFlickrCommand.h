// korvane share flickr: hands photos over to the upload service.
#pragma once

#include "CommandLine/ShareReport.h"
#include "Platform/Social/SLAttachment.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace korvane {

class FlickrComposeViewController;

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
    // Fills in what was given on the command line; the exit status, after saying why, if it cannot be.
    std::optional<int> _fill(FlickrComposeViewController &sheet) const;
    std::optional<int> _chooseAlbum(FlickrComposeViewController &sheet) const;

    CLI::App *_app = nullptr;
    ShareReport _report{QStringLiteral("photo")};
    std::vector<std::string> _files;
    std::optional<std::string> _title;
    std::optional<std::string> _audience;
    std::optional<std::string> _album;
    bool _noAlbum = false;
    bool _withoutMetadata = false;
};

} // namespace korvane
