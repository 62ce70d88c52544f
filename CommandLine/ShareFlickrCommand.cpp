// korvane share flickr: hands photos over to the upload service.
#include "CommandLine/ShareFlickrCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Output.h"
#include "CommandLine/UploadText.h"
#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrUploadSession.h"

#include <CLI/CLI.hpp>

#include <map>

#include <sys/resource.h>

namespace korvane {
namespace {

constexpr qint64 largestPhoto = 200 * 1024 * 1024; // that Flickr takes

const std::map<std::string, quint32> audiences{{"public", FlickrVisibilityPublic},
                                               {"friends", FlickrVisibilityFriends},
                                               {"family", FlickrVisibilityFamily},
                                               {"only-me", 0}};

const char *const examples = R"(Examples:
  korvane share flickr sunset.jpg
  korvane share flickr --title "Summer" --audience family --wait *.jpg
  korvane share flickr --album 72157600001 --without-metadata IMG_1.heic

JPEG, PNG and GIF files are sent as they are. Pictures of other formats are sent as JPEG. Flickr takes photos of up to
200 MB. All files are looked at first: if one cannot be used, none is shared.

Sharing takes a copy into the upload service, which uploads in the background, also after this command has ended and
after a restart. --wait stays until the photos are there; Ctrl-C ends the waiting, not the uploads.

Exit status: 0 all well, 1 an upload failed, 2 bad usage or a file that cannot be used, 3 no account,
4 the upload service cannot be reached, runs with other settings, or cannot take anything just now; with --wait 130
after Ctrl-C.)";

// Every photo keeps its file open until it is handed over.
void raiseFileLimit() {
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

std::optional<NSError> problemWith(const QByteArray &path) {
    const auto problem = SLAttachment::photoProblem(path);
    const auto identity = FileIdentity::ofPath(path);
    const bool isTooLarge = identity && identity->size > largestPhoto;
    if (!isTooLarge || (problem && problem->domain() == NSPOSIXErrorDomain)) return problem;
    return NSError::errorWithDescription(SLAttachmentErrorDomain, SLAttachmentErrorUnusable,
                                         QStringLiteral("%1: the file has %2, Flickr takes photos of up to 200 MB")
                                             .arg(Arguments::shownPath(path), UploadText::bytes(identity->size)));
}

} // namespace

ShareFlickrCommand::ShareFlickrCommand(CLI::App &share) {
    _app = share.add_subcommand("flickr", "Share photos to Flickr");
    _app->add_option("FILE", _files, "The photos, each a picture file")->required()->type_name("");
    _app->add_option("--title", _title, "Title of each photo")->type_name("TEXT")->check(Arguments::problemWithText);
    _app->add_option("--audience", _audience, "Who sees the photos: public (as usual), friends, family or only-me")
        ->type_name("WHO")
        ->check(CLI::IsMember(audiences));
    _app->add_option("--album", _album, "Add the photos to the album with this number (the last part of its address)")
        ->type_name("NUMBER")
        ->check(Arguments::problemWithNumber);
    _app->add_flag("--without-metadata", _withoutMetadata, "Send a copy of each picture without place and camera data");
    _report.addOptions(*_app);
    _app->footer(examples);
}

bool ShareFlickrCommand::isChosen() const {
    return _app->parsed();
}

int ShareFlickrCommand::run() {
    raiseFileLimit();
    const auto attachments = _attachments();
    if (!attachments) return ExitUsage;
    if (!ShareReport::hasAccount(QStringLiteral("flickr"))) return ExitNoAccount;
    std::vector<std::shared_ptr<FlickrPost>> posts;
    for (const SLAttachment &attachment : *attachments)
        posts.push_back(_post(attachment));
    const auto session = FlickrUploadSession::init();
    std::optional<NSError> error;
    if (!session->uploadPosts(posts, &error)) return ShareReport::failed(error);
    posts.clear(); // lets go of the files
    QByteArrayList files;
    for (const std::string &file : _files)
        files.append(QByteArray::fromStdString(file));
    return _report.succeeded(files, session->lastMessageID());
}

std::optional<std::vector<SLAttachment>> ShareFlickrCommand::_attachments() const {
    QStringList problems;
    for (const std::string &file : _files)
        if (const auto problem = problemWith(QByteArray::fromStdString(file)))
            problems.append(problem->localizedDescription());
    std::vector<SLAttachment> attachments;
    for (size_t i = 0; i < _files.size() && problems.isEmpty(); ++i) {
        std::optional<NSError> error;
        auto attachment = SLAttachment::photoAttachment(QByteArray::fromStdString(_files[i]), _withoutMetadata, &error);
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

std::shared_ptr<FlickrPost> ShareFlickrCommand::_post(const SLAttachment &attachment) const {
    const auto post = FlickrPost::init();
    if (const auto *url = std::get_if<NSURL>(&attachment.payload))
        post->assetURL = *url;
    else
        post->photoData = std::get<NSData>(attachment.payload);
    if (_title) post->title = QString::fromStdString(*_title);
    post->visibility = audiences.at(_audience);
    post->photoSetID = QByteArray::fromStdString(_album).toLongLong();
    return post;
}

} // namespace korvane
