// korvane share vimeo: hands a video over to the upload service.
#include "CommandLine/ShareVimeoCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Output.h"
#include "CommandLine/SheetUser.h"
#include "FrontEnd/ExitStatus.h"
#include "FrontEnd/SystemLog.h"
#include "Korvane/VimeoPost.h"
#include "Korvane/VimeoUploadSession.h"

#include <CLI/CLI.hpp>

#include <map>

namespace korvane {
namespace {

const std::map<std::string, VimeoVideoSize> sizes{
    {"small", VimeoVideoSizeSmall}, {"medium", VimeoVideoSizeMedium}, {"large", VimeoVideoSizeLarge}};
const std::map<std::string, VimeoPrivacySetting> privacies{{"public", VimeoPrivacyPublic},
                                                           {"private", VimeoPrivacyPrivate}};

const char *const examples = R"(Examples:
  korvane share vimeo --title "Summer" summer.mp4
  korvane share vimeo --title "Summer" --tag sea --tag sun --privacy private --wait ~/Videos/IMG_2.MOV

A video in the photo library (the Videos and Pictures folders) is made into an MP4 file of the size that --size asks
for, never larger than it is. A video elsewhere is sent as it is, from where it is: leave the file alone until it is
uploaded.

Size and privacy are remembered for the next share; at first they are large and public. The share sheet takes the
remembered privacy only where its details are opened; otherwise its video is public.

An upload that is broken off goes on where it was.)";

std::string problemWithTitle(const std::string &title) {
    if (title.empty()) return "a video on Vimeo needs a title";
    if (title.size() > VimeoLongestTitle)
        return "the title has " + std::to_string(title.size()) + " bytes; a video's title has at most " +
               std::to_string(VimeoLongestTitle) + " (in UTF-8)";
    return Arguments::problemWithText(title);
}

std::string problemWithTag(const std::string &tag) {
    if (QByteArray::fromStdString(tag).trimmed().isEmpty()) return "a tag must not be empty";
    return Arguments::problemWithText(tag);
}

} // namespace

ShareVimeoCommand::ShareVimeoCommand(CLI::App &share) {
    _app = share.add_subcommand("vimeo", "Share a video to Vimeo");
    _app->add_option("FILE", _file, "The video file: a path or a file:// address")
        ->required()
        ->type_name("")
        ->check(Arguments::problemWithFile);
    _app->add_option("--title", _title, "Title of the video, at most 128 bytes")
        ->required()
        ->type_name("TEXT")
        ->check(problemWithTitle);
    _app->add_option("--description", _description, "What the video is about")
        ->type_name("TEXT")
        ->check(Arguments::problemWithText);
    _app->add_option("--tag", _tags, "A tag; give the option once for each")
        ->type_name("TEXT")
        ->take_all()
        ->allow_extra_args(false)
        ->check(problemWithTag);
    _app->add_option("--size", _size, "small, medium or large; as last time if not given")
        ->type_name("SIZE")
        ->check(CLI::IsMember(sizes));
    _app->add_option("--privacy", _privacy, "Who sees the video: public or private; as last time if not given")
        ->type_name("WHO")
        ->check(CLI::IsMember(privacies));
    _report.addTo(*_app, examples);
}

bool ShareVimeoCommand::isChosen() const {
    return _app->parsed();
}

int ShareVimeoCommand::run() {
    sendLogToSystemLog();
    const QByteArray file = Arguments::path(_file);
    std::optional<NSError> error;
    const auto attachment = SLAttachment::videoAttachment(file, &error);
    if (!attachment) {
        Output::problem(error->localizedDescription());
        Output::problem(QStringLiteral("Nothing was shared."));
        return ExitUsage;
    }
    const auto sheet = SheetUser::opensVimeoSheet(*attachment);
    if (!sheet) return ExitNoAccount;
    SheetUser::saysAccount(*sheet->vimeoAccount());
    SheetUser::types(sheet->textView(), QString::fromStdString(_title));
    _fillDetails(*sheet);
    if (const auto status = SheetUser::posts(*sheet)) return *status;
    const bool isPublic = sheet->privacySettings() == VimeoPrivacyPublic;
    return _report.succeeded({file}, sheet->session()->lastMessageID(),
                             {isPublic ? QStringLiteral("Privacy: public") : QStringLiteral("Privacy: private")});
}

// The details are always looked at, so that the remembered privacy counts also where nothing is said about it.
void ShareVimeoCommand::_fillDetails(VimeoComposeViewController &sheet) const {
    const auto details = SheetUser::opensOption(sheet, VimeoComposeItemDetails);
    if (_description) {
        const auto cell = SheetUser::looksAt(*details, {0, VimeoDetailsSectionDescription});
        SheetUser::types(cell->textView(), QString::fromStdString(*_description));
    }
    for (const QString &tag : Arguments::texts(_tags)) {
        const qint64 newTagRow = details->tableView()->numberOfRowsInSection(VimeoDetailsSectionTags) - 1;
        const auto cell = SheetUser::looksAt(*details, {newTagRow, VimeoDetailsSectionTags});
        cell->editableTextField()->userReplacesCharacters({0, 0}, tag);
    }
    if (_size) SheetUser::chooses(*details, {sizes.at(*_size), VimeoDetailsSectionVideoSize});
    if (_privacy) SheetUser::chooses(*details, {privacies.at(*_privacy), VimeoDetailsSectionPrivacy});
    SheetUser::leavesOption(sheet);
}

} // namespace korvane
