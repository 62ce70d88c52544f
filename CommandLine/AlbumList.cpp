// The albums of the Flickr account in use.
#include "CommandLine/AlbumList.h"

#include "CommandLine/Output.h"
#include "CommandLine/SheetUser.h"
#include "FrontEnd/UploadText.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace korvane {
namespace {

void nameAlbums(const std::vector<FlickrPhotoSet> &sets) {
    if (sets.size() <= 1) return Output::problem(QStringLiteral("This account has no albums."));
    QStringList lines;
    for (const FlickrPhotoSet &set : sets)
        if (set.identifier != 0) lines.append(QStringLiteral("  ") + AlbumList::lineOf(set));
    Output::problem(QStringLiteral("The albums are:"), lines);
}

} // namespace

QString AlbumList::lineOf(const FlickrPhotoSet &album) {
    return QStringLiteral("%1  %2").arg(album.identifier).arg(UploadText::printable(album.title.value_or(QString())));
}

std::shared_ptr<FlickrPhotoSetController> AlbumList::load(FlickrComposeViewController &sheet) {
    const auto screen =
        std::dynamic_pointer_cast<FlickrPhotoSetController>(SheetUser::opensOption(sheet, FlickrComposeItemPhotoSet));
    while (!screen->manager()->photoSets())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const auto problem = screen->manager()->problem();
    if (!problem) return screen;
    Output::problem(QStringLiteral("The albums could not be loaded. ") + problem->localizedDescription());
    return nullptr;
}

std::optional<qint64> AlbumList::rowOf(const FlickrPhotoSetController &screen, const QString &nameOrNumber) {
    const auto &sets = *screen.manager()->photoSets();
    const auto isNamed = [&](const FlickrPhotoSet &set) { return set.identifier != 0 && set.title == nameOrNumber; };
    const auto isNumbered = [&](const FlickrPhotoSet &set) {
        return set.identifier != 0 && QString::number(set.identifier) == nameOrNumber;
    };
    const auto named = std::ranges::count_if(sets, isNamed);
    auto found = std::ranges::find_if(sets, isNamed);
    if (named == 0) found = std::ranges::find_if(sets, isNumbered);
    if (named <= 1 && found != sets.end()) return found - sets.begin();
    Output::problem(
        named > 1
            ? QStringLiteral("There are %1 albums called “%2”. Give the album's number.").arg(named).arg(nameOrNumber)
            : QStringLiteral("There is no album “%1”.").arg(nameOrNumber));
    nameAlbums(sets);
    return std::nullopt;
}

} // namespace korvane
