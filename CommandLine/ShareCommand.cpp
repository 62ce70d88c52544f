// korvane share: hands photos over to the upload service.
#include "CommandLine/ShareCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/JSONArray.h"
#include "CommandLine/Output.h"
#include "CommandLine/UploadText.h"
#include "CommandLine/UploadsWatch.h"
#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrUploadSession.h"
#include "Platform/Accounts/ACAccountStore.h"

#include <CLI/CLI.hpp>

#include <algorithm>

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
4 the upload service cannot be reached; with --wait 130 after Ctrl-C.)";

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

ShareCommand::ShareCommand(CLI::App &program) {
    _share = program.add_subcommand("share", "Share photos");
    _share->require_subcommand(1);
    _addOptions(*_share->add_subcommand("flickr", "Share photos to Flickr"));
}

void ShareCommand::_addOptions(CLI::App &flickr) {
    flickr.add_option("FILE", _files, "The photos, each a picture file")->required()->type_name("");
    flickr.add_option("--title", _title, "Title of each photo")->type_name("TEXT")->check(Arguments::problemWithText);
    flickr.add_option("--audience", _audience, "Who sees the photos: public (as usual), friends, family or only-me")
        ->type_name("WHO")
        ->check(CLI::IsMember(audiences));
    flickr.add_option("--album", _album, "Add the photos to the album with this number (the last part of its address)")
        ->type_name("NUMBER")
        ->check(Arguments::problemWithNumber);
    flickr.add_flag("--without-metadata", _withoutMetadata,
                    "Send a copy of each picture without place and camera data");
    flickr.add_flag("--wait", _waits, "Wait until all photos are uploaded, and show how they go on");
    flickr.add_flag("--json", _json, "Print the uploads as JSON");
    flickr.footer(examples);
}

bool ShareCommand::isChosen() const {
    return _share->parsed();
}

int ShareCommand::run() {
    raiseFileLimit();
    const auto attachments = _attachments();
    if (!attachments) return ExitUsage;
    if (!_account()) return ExitNoAccount;
    std::vector<std::shared_ptr<FlickrPost>> posts;
    for (const SLAttachment &attachment : *attachments)
        posts.push_back(_post(attachment));
    const auto session = FlickrUploadSession::init();
    std::optional<NSError> error;
    if (!session->uploadPosts(posts, &error)) {
        const NSError reason = error.value_or(NSError::errorWithDescription(
            SLAttachmentErrorDomain, SLAttachmentErrorUnusable, QStringLiteral("The upload service gave no reason.")));
        Output::problem(QStringLiteral("Nothing was shared. ") + reason.localizedDescription());
        return Arguments::exitStatusOf(reason);
    }
    posts.clear(); // lets go of the files
    if (!_json)
        Output::line(
            QStringLiteral("%1 handed over to the upload service. See: korvane uploads")
                .arg(_files.size() == 1 ? QStringLiteral("1 photo") : QStringLiteral("%1 photos").arg(_files.size())));
    if (!_json && !_waits) return ExitDone;
    UploadsClient client;
    return _report(client, session->lastMessageID());
}

std::optional<std::vector<SLAttachment>> ShareCommand::_attachments() const {
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

std::shared_ptr<FlickrPost> ShareCommand::_post(const SLAttachment &attachment) const {
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

// The service takes the account that was added last; what is shown here is for people.
std::shared_ptr<ACAccount> ShareCommand::_account() const {
    const ACAccountStore store;
    const auto accounts =
        store.accountsWithAccountType(store.accountTypeWithAccountTypeIdentifier(ACAccountTypeIdentifierFlickr));
    if (accounts.empty()) {
        Output::problem(QStringLiteral("There is no Flickr account. Add one with:\n"
                                       "  korvane accounts add flickr --credential-file FILE"));
        return nullptr;
    }
    if (accounts.size() > 1)
        Output::note(QStringLiteral("Sharing as %1, the last added of %2 Flickr accounts.")
                         .arg(accounts.back()->username())
                         .arg(accounts.size()));
    return accounts.back();
}

int ShareCommand::_report(UploadsClient &client, const QString &messageID) const {
    std::optional<NSError> error;
    int status = ExitDone;
    auto ids = client.idsOfMessage(messageID, &error);
    if (ids) std::ranges::sort(*ids, {}, [](const QString &id) { return id.toLongLong(); });
    if (ids && _waits) status = _wait(client, *ids, &error);
    if (const auto uploads = ids && !error && _json ? client.get(*ids, &error) : std::nullopt) {
        JSONArray array;
        std::ranges::for_each(*uploads, [&](const Upload &upload) { array.add(upload); });
    }
    if (!error) return status;
    Output::problem(QStringLiteral("The photos are handed over, but how they go on cannot be told. ") +
                    error->localizedDescription());
    return Arguments::exitStatusOf(*error);
}

int ShareCommand::_wait(UploadsClient &client, const QStringList &ids, std::optional<NSError> *error) const {
    QHash<QString, QString> names;
    for (qsizetype i = 0; i < ids.size() && size_t(ids.size()) == _files.size(); ++i)
        names[ids[i]] = Arguments::shownPath(QByteArray::fromStdString(_files[size_t(i)]).split('/').last());
    UploadsWatch watch(client, ProgressView::onStream(_json ? stderr : stdout, !_json));
    watch.follow(ids, names);
    const int status = watch.run(error);
    if (status > 128)
        Output::note(QStringLiteral("No longer waiting. The uploads go on in the service. See: korvane uploads"));
    if (status == ExitUploadFailed)
        Output::note(QStringLiteral("Not all photos were uploaded. To try one again: korvane uploads retry ID"));
    return status;
}

} // namespace korvane
