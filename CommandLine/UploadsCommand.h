// korvane uploads: shows and steers what the upload service has to do.
#pragma once

#include "FrontEnd/UploadsClient.h"

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace korvane {

class UploadsCommand {
public:
    // Adds the command to the parser, which fills this object when it parses.
    explicit UploadsCommand(CLI::App &program);
    bool isChosen() const;
    // Blocks; returns the exit status. Needs the application object.
    int run();

private:
    int _list();
    int _watch();
    int _retry();
    int _remove();
    int _clear();
    int _setPaused(bool paused);
    // The uploads with the given ids; null, after naming them, if some do not exist. The error is placed where the
    // service cannot be reached.
    std::optional<std::vector<Upload>> _known(std::optional<NSError> *error);
    std::optional<std::vector<Upload>> _retriable(std::optional<NSError> *error);
    int _print(const std::vector<Upload> &uploads, const QString &sentence) const;
    int _fail(const std::optional<NSError> &error) const;

    CLI::App *_uploads = nullptr;
    CLI::App *_watchApp = nullptr;
    CLI::App *_retryApp = nullptr;
    CLI::App *_removeApp = nullptr;
    CLI::App *_clearApp = nullptr;
    CLI::App *_pauseApp = nullptr;
    CLI::App *_resumeApp = nullptr;
    std::vector<std::string> _ids;
    bool _json = false;
    UploadsClient _client;
};

} // namespace korvane
