// What the window program is asked to show.
#pragma once

#include <QByteArrayList>
#include <QString>

#include <optional>

namespace korvane {

struct SheetRequest {
    enum Page { Flickr, Vimeo, Settings, Uploads, Help, Version };

    Page page = Help;
    QByteArrayList files;           // as they were given: paths or URLs, in the file system's own bytes
    std::optional<Page> settingsOf; // the service whose settings are asked for; null: settings at large

    // arguments: as of the command line, without the program's name. Null, with a line that says what is wrong, where
    // they cannot be understood. An address of settings that are not known leads to those at large, with such a line.
    static std::optional<SheetRequest> parse(const QByteArrayList &arguments, QString &problem);
    static const char *helpText();
};

} // namespace korvane
