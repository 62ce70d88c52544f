// The albums of the Flickr account in use.
#include "CommandLine/AlbumList.h"

#include "CommandLine/Output.h"
#include "CommandLine/SheetUser.h"
#include "Korvane/FlickrResponse.h"
#include "Platform/Accounts/ACAccount.h"
#include "Platform/Foundation/UploadContext.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace korvane {
namespace {

constexpr size_t photoSetItem = 0; // of the sheet's rows

// What the answer to the last request of the account says against it; null if nothing.
std::optional<QString> problemIn(const UploadContext::Snapshot &request) {
    const QString text = QStringLiteral("The albums could not be loaded. ");
    if (request.transportError) return text + request.transportError->localizedDescription();
    const auto answer = FlickrResponse::responseWithData(NSData(request.answer));
    if (request.httpStatus == 200 && answer->errorCode == 0) return std::nullopt;
    if (answer->errorCode <= 0)
        return text + QStringLiteral("Flickr answered with HTTP status %1.").arg(request.httpStatus);
    return text + QStringLiteral("Flickr says: %1 (code %2).")
                      .arg(answer->errorDescription.value_or(QString()))
                      .arg(answer->errorCode);
}

void nameAlbums(const std::vector<FlickrPhotoSet> &sets) {
    if (sets.size() <= 1) return Output::problem(QStringLiteral("This account has no albums."));
    QStringList lines{QStringLiteral("The albums are:")};
    for (const FlickrPhotoSet &set : sets)
        if (set.identifier != 0) lines.append(QStringLiteral("  ") + AlbumList::lineOf(set));
    Output::problem(lines.join(u'\n'));
}

} // namespace

QString AlbumList::lineOf(const FlickrPhotoSet &album) {
    return QStringLiteral("%1  %2").arg(album.identifier).arg(album.title.value_or(QString()));
}

std::shared_ptr<FlickrPhotoSetController> AlbumList::load(FlickrComposeViewController &sheet,
                                                          std::optional<QString> *problem) {
    const auto context = std::make_shared<UploadContext>();
    sheet.flickrAccount()->setUploadContext(context);
    const auto screen =
        std::dynamic_pointer_cast<FlickrPhotoSetController>(SheetUser::opensOption(sheet, photoSetItem));
    while (!screen->manager()->photoSets())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    *problem = problemIn(context->snapshot());
    return screen;
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
