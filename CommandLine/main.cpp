// korvane: share photos and videos from the command line.
#include "CommandLine/AccountsCommand.h"
#include "CommandLine/AlbumsCommand.h"
#include "CommandLine/ComposeCommand.h"
#include "CommandLine/Output.h"
#include "CommandLine/ShareCommand.h"
#include "CommandLine/StandInCommand.h"
#include "CommandLine/UploadsCommand.h"
#include "FrontEnd/ExitStatus.h"
#include "FrontEnd/UploadText.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <langinfo.h>

namespace {

const char *const footer = R"(First steps:
  korvane accounts add flickr
  korvane share flickr --wait sunset.jpg
  korvane uploads

Each command tells more with --help.

Environment:
  KORVANE_FLICKR_URL       base address used in place of Flickr's own (plain http on this machine only)
  KORVANE_VIMEO_URL        the same for Vimeo
  KORVANE_CONSUMER_SECRET  the secret that belongs to the key of accounts add --consumer-key
  KORVANE_PHOTO_LIBRARY    folder used in place of your Pictures and Videos folders
  KORVANE_SECRETS          with the value "file", credentials are kept in a file that only you can read, not in the keyring
  NO_COLOR                 if set, progress is shown without colours

Files:
  ~/.config/korvane        accounts and preferences
  ~/.local/state/korvane   the queue of uploads and the copies of what is to be uploaded

Exit status: 0 all well, 1 an upload failed, or something that has no status of its own, 2 bad usage, a file that cannot
be used, or no such upload or account, 3 no usable account, 4 the upload service cannot be reached, runs with other
settings, or cannot take anything just now; 130 after Ctrl-C.)";

// Texts are UTF-8 here and in Qt; under another encoding Qt would say so on standard error.
void useUTF8() {
    std::setlocale(LC_ALL, "");
    if (std::strcmp(::nl_langinfo(CODESET), "UTF-8") != 0) ::setenv("LC_ALL", "C.UTF-8", 1);
    std::setlocale(LC_ALL, "");
}

// A command that does not exist is left over by the parser, which then only misses one that does.
std::string failureMessage(const CLI::App *program, const CLI::Error &error) {
    const std::vector<std::string> unknown = program->remaining(true);
    std::string what = error.what();
    if (dynamic_cast<const CLI::RequiredError *>(&error) && !unknown.empty())
        what = (unknown.front().starts_with('-') ? "There is no option \"" : "There is no command \"") +
               unknown.front() + "\" here.";
    return "korvane: " + korvane::UploadText::printable(QString::fromStdString(what)).toStdString() +
           "\nRun with --help for more information.\n";
}

// As the parser takes them, the last first. For "--title=", an option with an empty text, it would take the next
// argument.
std::vector<std::string> arguments(int argc, char **argv) {
    std::vector<std::string> all;
    bool areOptions = true;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        areOptions &= argument != "--";
        const bool isEmptied = areOptions && argument.starts_with("--") && argument.find('=') == argument.size() - 1;
        all.push_back(isEmptied ? argument.substr(0, argument.size() - 1) : argument);
        if (isEmptied) all.emplace_back();
    }
    std::ranges::reverse(all);
    return all;
}

} // namespace

int main(int argc, char **argv) {
    useUTF8();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("korvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));

    CLI::App program("Share photos to Flickr and videos to Vimeo, and be sure that they get there.", "korvane");
    program.set_version_flag("--version", "korvane " KORVANE_VERSION, "Show the version and exit");
    program.require_subcommand(1);
    program.get_formatter()->column_width(28);
    program.footer(footer);
    program.failure_message(failureMessage);
    korvane::ShareCommand share(program);
    korvane::ComposeCommand compose(program);
    korvane::AlbumsCommand albums(program);
    korvane::UploadsCommand uploads(program);
    korvane::AccountsCommand accounts(program);
    korvane::StandInCommand standIn(program);
    try {
        program.parse(arguments(argc, argv));
    } catch (const CLI::ParseError &error) {
        return program.exit(error) == 0 ? korvane::ExitDone : korvane::ExitUsage;
    }
    int status = korvane::ExitDone;
    if (share.isChosen()) status = share.run();
    if (compose.isChosen()) status = compose.run();
    if (albums.isChosen()) status = albums.run();
    if (uploads.isChosen()) status = uploads.run();
    if (accounts.isChosen()) status = accounts.run();
    if (standIn.isChosen()) status = standIn.run();
    if (!korvane::Output::finish() && status == korvane::ExitDone) return korvane::ExitUploadFailed;
    return status;
}
