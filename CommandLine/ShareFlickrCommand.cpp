// korvane share flickr: hands photos over to the upload service.
#include "CommandLine/ShareFlickrCommand.h"

#include "CommandLine/AlbumList.h"
#include "CommandLine/Arguments.h"
#include "CommandLine/Output.h"
#include "CommandLine/SheetUser.h"
#include "FlickrAudienceController.h"
#include "FrontEnd/ExitStatus.h"
#include "FrontEnd/FileLimit.h"
#include "FrontEnd/SystemLog.h"
#include "FrontEnd/UploadText.h"
#include "Korvane/FlickrUploadSession.h"

#include <CLI/CLI.hpp>

#include <map>

namespace korvane {
namespace {

const std::map<std::string, FlickrAudience> audiences{{"public", FlickrAudiencePublic},
                                                      {"friends", FlickrAudienceFriends},
                                                      {"family", FlickrAudienceFamily},
                                                      {"only-me", FlickrAudienceOnlyMe}};

const char *const examples = R"(Examples:
  korvane share flickr sunset.jpg
  korvane share flickr --title "Summer" --audience family --wait *.jpg
  korvane share flickr --album "Summer" --without-metadata IMG_1.heic

JPEG, PNG and GIF files are sent as they are. Pictures of other formats are sent as JPEG. Flickr takes photos of up to
200 MB. All files are looked at first: if one cannot be used, none is shared.

Audience and album are remembered for the next share, here and in the share sheet; at first they are public and none.

Sharing copies the photos into the upload service's queue.)";

std::string problemWithAlbum(const std::string &album) {
    return album.empty() ? "an album has a name or a number; for none there is --no-album"
                         : Arguments::problemWithText(album);
}

} // namespace

ShareFlickrCommand::ShareFlickrCommand(CLI::App &share) {
    _app = share.add_subcommand("flickr", "Share photos to Flickr");
    _app->add_option("FILE", _files, "The photos, each a picture file: paths or file:// addresses")
        ->required()
        ->type_name("");
    _app->add_option("--title", _title, "Title of each photo")->type_name("TEXT")->check(Arguments::problemWithText);
    _app->add_option("--audience", _audience,
                     "Who sees the photos: public, friends, family or only-me; as last time if not given")
        ->type_name("WHO")
        ->check(CLI::IsMember(audiences));
    _app->add_option(
            "--album", _album,
            "Add the photos to the album of this name or number (see: korvane albums); as last time if not given")
        ->type_name("ALBUM")
        ->check(problemWithAlbum);
    _app->add_flag("--no-album", _noAlbum, "Add the photos to no album")->excludes("--album");
    _app->add_flag("--without-metadata", _withoutMetadata, "Send a copy of each picture without place and camera data");
    _report.addTo(*_app, examples);
}

bool ShareFlickrCommand::isChosen() const {
    return _app->parsed();
}

int ShareFlickrCommand::run() {
    sendLogToSystemLog();
    raiseFileLimit();
    auto attachments = _attachments();
    if (!attachments) return ExitUsage;
    if (_noAlbum) FlickrComposeViewController::forgetPhotoSet();
    const auto sheet = SheetUser::opensFlickrSheet(std::move(*attachments));
    if (!sheet) return ExitNoAccount;
    SheetUser::saysAccount(*sheet->flickrAccount());
    if (const auto status = _fill(*sheet)) return *status;
    if (const auto status = SheetUser::posts(*sheet)) return *status;
    sheet->setAttachments({}); // lets go of the files
    QByteArrayList files;
    for (const std::string &file : _files)
        files.append(Arguments::path(file));
    return _report.succeeded(files, sheet->session()->lastMessageID(), SheetUser::reads(*sheet));
}

std::optional<int> ShareFlickrCommand::_fill(FlickrComposeViewController &sheet) const {
    if (_title) SheetUser::types(sheet.textView(), QString::fromStdString(*_title));
    if (_album)
        if (const auto status = _chooseAlbum(sheet)) return status;
    if (_audience) {
        SheetUser::chooses(*SheetUser::opensOption(sheet, FlickrComposeItemAudience), {audiences.at(*_audience), 0});
        SheetUser::leavesOption(sheet);
    }
    return std::nullopt;
}

std::optional<int> ShareFlickrCommand::_chooseAlbum(FlickrComposeViewController &sheet) const {
    const auto fail = [](ExitStatus status) {
        Output::problem(QStringLiteral("Nothing was shared."));
        return status;
    };
    if (!SheetUser::hasCredential(*sheet.flickrAccount())) return fail(ExitNoAccount);
    const auto screen = AlbumList::load(sheet);
    if (!screen) return fail(ExitUploadFailed);
    const auto row = AlbumList::rowOf(*screen, QString::fromStdString(*_album));
    if (!row) return fail(ExitUsage);
    SheetUser::chooses(*screen, {*row, 0});
    SheetUser::leavesOption(sheet);
    return std::nullopt;
}

std::optional<std::vector<SLAttachment>> ShareFlickrCommand::_attachments() const {
    QStringList problems;
    for (const std::string &file : _files)
        if (const std::string elsewhere = Arguments::problemWithFile(file); !elsewhere.empty())
            problems.append(QString::fromStdString(elsewhere));
        else if (const auto problem = SLAttachment::photoProblem(Arguments::path(file)))
            problems.append(problem->localizedDescription());
    std::vector<SLAttachment> attachments;
    for (size_t i = 0; i < _files.size() && problems.isEmpty(); ++i) {
        std::optional<NSError> error;
        auto attachment = SLAttachment::photoAttachment(Arguments::path(_files[i]), _withoutMetadata, &error);
        if (attachment)
            attachments.push_back(std::move(*attachment));
        else
            problems.append(error->localizedDescription());
    }
    for (const QString &problem : std::as_const(problems))
        Output::problem(problem);
    if (problems.isEmpty()) return attachments;
    Output::problem(QStringLiteral("Nothing was shared."));
    return std::nullopt;
}

} // namespace korvane
