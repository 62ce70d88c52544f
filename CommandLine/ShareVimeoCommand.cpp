// korvane share vimeo: hands a video over to the upload service.
#include "CommandLine/ShareVimeoCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Output.h"
#include "CommandLine/SheetUser.h"
#include "Korvane/VimeoComposeViewController.h"
#include "Korvane/VimeoUploadSession.h"

#include <CLI/CLI.hpp>

#include <map>

namespace korvane {
namespace {

constexpr size_t longestTitle = 128; // bytes

// Where things stand in the sheet and in its screen for the details.
constexpr size_t detailsItem = 0;
enum Section : qint64 { descriptionSection = 0, tagSection = 1, sizeSection = 2, privacySection = 3 };
const std::map<std::string, qint64> sizes{{"small", 0}, {"medium", 1}, {"large", 2}};
const std::map<std::string, qint64> privacies{{"public", 0}, {"private", 1}};

const char *const examples = R"(Examples:
  korvane share vimeo --title "Summer" summer.mp4
  korvane share vimeo --title "Summer" --tag sea --tag sun --privacy private --wait ~/Videos/IMG_2.MOV

A video in the photo library (the Videos and Pictures folders) is made into an MP4 file of the size that --size asks
for, never larger than it is. A video elsewhere is sent as it is, from where it is: leave the file alone until it is
uploaded.

Size and privacy are remembered for the next share, here and in the share sheet; at first they are large and public.

Sharing takes a moment; the upload service uploads in the background, also after this command has ended and after a
restart, and goes on where it was. --wait stays until the video is there; Ctrl-C ends the waiting, not the upload.

Exit status: 0 all well, 1 an upload failed, 2 bad usage or a file that cannot be used, 3 no account,
4 the upload service cannot be reached, runs with other settings, or cannot take anything just now; with --wait 130
after Ctrl-C.)";

std::string problemWithTitle(const std::string &title) {
    if (title.empty()) return "a video on Vimeo needs a title";
    if (title.size() > longestTitle)
        return "the title has " + std::to_string(title.size()) + " bytes; a video's title has at most " +
               std::to_string(longestTitle) + " (in UTF-8)";
    return Arguments::problemWithText(title);
}

} // namespace

ShareVimeoCommand::ShareVimeoCommand(CLI::App &share) {
    _app = share.add_subcommand("vimeo", "Share a video to Vimeo");
    _app->add_option("FILE", _file, "The video file")->required()->type_name("");
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
        ->check(Arguments::problemWithText);
    _app->add_option("--size", _size, "small, medium or large; as last time if not given")
        ->type_name("SIZE")
        ->check(CLI::IsMember(sizes));
    _app->add_option("--privacy", _privacy, "Who sees the video: public or private; as last time if not given")
        ->type_name("WHO")
        ->check(CLI::IsMember(privacies));
    _report.addOptions(*_app);
    _app->footer(examples);
}

bool ShareVimeoCommand::isChosen() const {
    return _app->parsed();
}

int ShareVimeoCommand::run() {
    std::optional<NSError> error;
    const auto attachment = SLAttachment::videoAttachment(QByteArray::fromStdString(_file), &error);
    if (!attachment) {
        Output::problem(error->localizedDescription());
        Output::problem(QStringLiteral("Nothing was shared."));
        return ExitUsage;
    }
    const auto sheet = VimeoComposeViewController::initWithNibName();
    sheet->setAttachments({*attachment});
    SheetUser::opens(*sheet);
    if (!ShareReport::hasAccount(*sheet, QStringLiteral("vimeo"))) return ExitNoAccount;
    SheetUser::types(sheet->textView(), QString::fromStdString(_title));
    if (!sheet->validateText(sheet->textView()->text())) {
        Output::problem(QStringLiteral("The title cannot be used. Nothing was shared."));
        return ExitUsage;
    }
    _fillDetails(*sheet);
    if (const auto status = ShareReport::post(*sheet)) return *status;
    return _report.succeeded({QByteArray::fromStdString(_file)}, sheet->session()->lastMessageID());
}

// The details are always looked at, so that the remembered privacy counts also where nothing is said about it.
void ShareVimeoCommand::_fillDetails(VimeoComposeViewController &sheet) const {
    const auto details = SheetUser::opensOption(sheet, detailsItem);
    if (_description) {
        const auto cell = SheetUser::looksAt(*details, {0, descriptionSection});
        SheetUser::types(std::dynamic_pointer_cast<UITextView>(cell->subviews().back()),
                         QString::fromStdString(*_description));
    }
    for (const QString &tag : Arguments::texts(_tags)) {
        const qint64 newTagRow = details->tableView()->numberOfRowsInSection(tagSection) - 1;
        const auto cell = SheetUser::looksAt(*details, {newTagRow, tagSection});
        cell->editableTextField()->userReplacesCharacters({0, 0}, tag);
    }
    if (_size) SheetUser::chooses(*details, {sizes.at(*_size), sizeSection});
    if (_privacy) SheetUser::chooses(*details, {privacies.at(*_privacy), privacySection});
    SheetUser::leavesOption(sheet);
}

} // namespace korvane
