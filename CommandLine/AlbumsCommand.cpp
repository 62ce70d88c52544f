// korvane albums: lists the albums on Flickr.
#include "CommandLine/AlbumsCommand.h"

#include "CommandLine/AlbumList.h"
#include "CommandLine/JSONArray.h"
#include "CommandLine/Output.h"
#include "CommandLine/SheetUser.h"
#include "FrontEnd/ExitStatus.h"
#include "FrontEnd/SystemLog.h"

#include <CLI/CLI.hpp>
#include <QJsonDocument>
#include <QJsonObject>

#include <span>

namespace korvane {
namespace {

const char *const examples = R"(Examples:
  korvane albums
  korvane share flickr --album "Summer" sunset.jpg

Lists the albums of the account with which photos are shared: the one in use.

Exit status: 0 all well, 1 the albums cannot be loaded, 2 bad usage, 3 no usable account.)";

void printLines(std::span<const FlickrPhotoSet> albums) {
    for (const FlickrPhotoSet &album : albums)
        Output::line(AlbumList::lineOf(album));
}

void printJSON(std::span<const FlickrPhotoSet> albums) {
    JSONArray array;
    for (const FlickrPhotoSet &album : albums) {
        const QVariantMap object{{QStringLiteral("id"), QString::number(album.identifier)},
                                 {QStringLiteral("title"), album.title.value_or(QString())},
                                 {QStringLiteral("description"), album.photoSetDescription.value_or(QString())}};
        array.add(QJsonDocument(QJsonObject::fromVariantMap(object)).toJson(QJsonDocument::Compact));
    }
}

} // namespace

AlbumsCommand::AlbumsCommand(CLI::App &program) {
    _app = program.add_subcommand("albums", "List the albums on Flickr");
    _app->add_flag("--json", _json, "Print the albums as JSON");
    _app->footer(examples);
}

bool AlbumsCommand::isChosen() const {
    return _app->parsed();
}

int AlbumsCommand::run() {
    sendLogToSystemLog();
    const auto sheet = SheetUser::opensFlickrSheet();
    if (!sheet || !SheetUser::hasCredential(*sheet->flickrAccount())) return ExitNoAccount;
    const auto screen = AlbumList::load(*sheet);
    if (!screen) return ExitUploadFailed;
    const auto &sets = *screen->manager()->photoSets();
    const std::span albums(sets.begin() + 1, sets.end()); // without the entry for no album
    _json ? printJSON(albums) : printLines(albums);
    return ExitDone;
}

} // namespace korvane
