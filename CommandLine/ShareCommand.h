// korvane share: hands photos over to the upload service.
#pragma once

#include "CommandLine/UploadsClient.h"
#include "Platform/Social/SLAttachment.h"

#include <QByteArrayList>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace korvane {

class ACAccount;
class FlickrPost;

class ShareCommand {
public:
    // Adds the command to the parser, which fills this object when it parses.
    explicit ShareCommand(CLI::App &program);
    bool isChosen() const;
    // Blocks; returns the exit status. Needs the application object.
    int run();

private:
    void _addOptions(CLI::App &flickr);
    // Null, after naming every file that cannot be shared.
    std::optional<std::vector<SLAttachment>> _attachments() const;
    std::shared_ptr<FlickrPost> _post(const SLAttachment &attachment) const;
    std::shared_ptr<ACAccount> _account() const;
    int _report(UploadsClient &client, const QString &messageID) const;
    int _wait(UploadsClient &client, const QStringList &ids, std::optional<NSError> *error) const;

    CLI::App *_share = nullptr;
    std::vector<std::string> _files;
    std::optional<std::string> _title;
    std::string _audience = "public";
    std::string _album;
    bool _withoutMetadata = false;
    bool _waits = false;
    bool _json = false;
};

} // namespace korvane
