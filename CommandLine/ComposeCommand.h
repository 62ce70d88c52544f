// korvane compose: opens the share sheet's window.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace korvane {

class ComposeCommand {
public:
    // Adds the command to the parser, which fills this object when it parses.
    explicit ComposeCommand(CLI::App &program);
    bool isChosen() const;
    // Turns this process into the window's, whose exit status it then is; returns one only where that fails.
    int run();

private:
    CLI::App *_app;
    std::string _service;
    std::vector<std::string> _files;
};

} // namespace korvane
