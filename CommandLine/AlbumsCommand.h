// korvane albums: lists the albums on Flickr.
#pragma once

namespace CLI {
class App;
}

namespace korvane {

class AlbumsCommand {
public:
    // Adds the command to the parser, which fills this object when it parses.
    explicit AlbumsCommand(CLI::App &program);
    bool isChosen() const;
    // Blocks; returns the exit status. Needs the application object.
    int run();

private:
    CLI::App *_app;
    bool _json = false;
};

} // namespace korvane
