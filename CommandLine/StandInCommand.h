// korvane standin: local stand-ins of the web services, for trying out.
#pragma once

#include <string>

namespace CLI {
class App;
}

namespace korvane {

class StandInCommand {
public:
    // Adds the command to the parser, which fills this object when it parses.
    explicit StandInCommand(CLI::App &program);
    bool isChosen() const;
    // Becomes the program korvane-standin; returns an exit status only if that cannot be.
    int run();

private:
    CLI::App *_standIn = nullptr;
    int _port = -1;
    std::string _folder;
};

} // namespace korvane
