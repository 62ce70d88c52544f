// korvane uploads: shows and steers what the upload service has to do.
#include "CommandLine/UploadsCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/JSONArray.h"
#include "CommandLine/Output.h"
#include "CommandLine/SilentView.h"
#include "CommandLine/UploadsWatch.h"
#include "FrontEnd/ExitStatus.h"
#include "FrontEnd/UploadText.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace korvane {
namespace {

const char *const examples = R"(Examples:
  korvane uploads                   what is queued, running, waiting, done and failed
  korvane uploads watch             follow the uploads until all have ended; Ctrl-C leaves
  korvane uploads retry 12 13       try these again
  korvane uploads retry all         try everything again that failed or waits, but videos that may have arrived
  korvane uploads --json | jq '.[] | select(.state == "failed")'

--json prints an array of objects with id, service, title, state, bytesSent, bytesTotal, attempts, createdAt,
finishedAt and error; watch prints such an object on a line of its own for each change.

Exit status: 0 all well, 1 an upload failed while it was watched, 2 bad usage or no such upload, 4 the upload service
cannot be reached, runs with other settings, or cannot take anything just now; 130 after Ctrl-C.)";

QString countText(qint64 count) {
    return count == 1 ? QStringLiteral("1 upload") : QStringLiteral("%1 uploads").arg(count);
}

QStringList idsOf(const std::vector<Upload> &uploads) {
    QStringList ids;
    for (const Upload &upload : uploads)
        ids.append(upload.id);
    return ids;
}

} // namespace

UploadsCommand::UploadsCommand(CLI::App &program) {
    _uploads = program.add_subcommand("uploads", "Show and steer the uploads");
    _uploads->require_subcommand(0, 1);
    _uploads->add_flag("--json", _json, "Print JSON");
    _uploads->footer(examples);
    const auto add = [&](const char *name, const char *description) {
        CLI::App *command = _uploads->add_subcommand(name, description);
        command->fallthrough();
        return command;
    };
    add("list", "All uploads, oldest first (as without a command)");
    _watchApp = add("watch", "Follow the uploads until all have ended");
    _retryApp = add("retry", "Try failed and waiting uploads again, at once");
    _removeApp = add("remove", "Remove uploads in any state, with the service's copies of their data");
    _clearApp = add("clear", "Forget the uploads that are done");
    _pauseApp = add("pause", "Stop uploading, until resume");
    _resumeApp = add("resume", "Go on uploading");
    _retryApp->add_option("ID", _ids, "The uploads, or all")
        ->required()
        ->type_name("")
        ->check(
            [](const std::string &text) { return text == "all" ? std::string() : Arguments::problemWithNumber(text); });
    _removeApp->add_option("ID", _ids, "The uploads")->required()->type_name("")->check(Arguments::problemWithNumber);
}

bool UploadsCommand::isChosen() const {
    return _uploads->parsed();
}

int UploadsCommand::run() {
    if (_watchApp->parsed()) return _watch();
    if (_retryApp->parsed()) return _retry();
    if (_removeApp->parsed()) return _remove();
    if (_clearApp->parsed()) return _clear();
    if (_pauseApp->parsed()) return _setPaused(true);
    if (_resumeApp->parsed()) return _setPaused(false);
    return _list();
}

int UploadsCommand::_list() {
    std::optional<NSError> error;
    const auto paused = _client.isPaused(&error);
    if (!paused) return _fail(error);
    bool complete;
    if (_json) {
        JSONArray array;
        complete = _client.forEach([&](const Upload &upload) { array.add(UploadText::json(upload)); }, &error);
    } else {
        const int columns = Output::isTerminal(stdout) ? Output::terminalSize(stdout).columns : 0;
        bool isFirst = true;
        complete = _client.forEach(
            [&](const Upload &upload) {
                if (std::exchange(isFirst, false)) Output::line(UploadText::tableHead());
                Output::line(UploadText::tableRow(upload, columns));
            },
            &error);
        if (complete && isFirst) Output::line(QStringLiteral("No uploads."));
        if (*paused) Output::line(QStringLiteral("Uploads are paused. They go on after: korvane uploads resume"));
    }
    return complete ? ExitDone : _fail(error);
}

int UploadsCommand::_watch() {
    UploadsWatch watch(_client, _json ? std::make_unique<SilentView>() : ProgressView::onStream(stdout, true));
    if (_json)
        watch.setListener([](const Upload &upload) {
            Output::raw(UploadText::json(upload) + '\n');
            std::fflush(stdout);
        });
    std::optional<NSError> error;
    const int status = watch.run(&error);
    if (error) return _fail(error);
    if (status > 128)
        Output::note(QStringLiteral("No longer watching. The uploads go on in the service."));
    else if (!_json)
        Output::line(QStringLiteral("No upload is left to wait for."));
    return status;
}

std::optional<std::vector<Upload>> UploadsCommand::_known(std::optional<NSError> *error) {
    QStringList ids = Arguments::texts(_ids);
    for (QString &id : ids)
        id = QString::number(id.toLongLong()); // "007" is 7
    ids.removeDuplicates();
    const auto found = _client.get(ids, error);
    if (!found) return std::nullopt;
    for (const Upload &upload : *found)
        ids.removeOne(upload.id);
    if (ids.isEmpty()) return found;
    Output::problem(QStringLiteral("There is no upload %1. Nothing was changed.").arg(ids.join(QStringLiteral(", "))));
    return std::nullopt;
}

std::optional<std::vector<Upload>> UploadsCommand::_retriable(std::optional<NSError> *error) {
    if (std::ranges::find(_ids, "all") == _ids.end()) return _known(error);
    if (_ids.size() > 1) {
        Output::problem(QStringLiteral("Give either all or numbers of uploads. Nothing was changed."));
        return std::nullopt;
    }
    std::vector<Upload> found;
    const auto collect = [&](const Upload &upload) {
        if (upload.isRetriedWithAll())
            found.push_back(upload);
        else if (upload.mayHaveArrived)
            Output::note(QStringLiteral("Upload %1 is left out, since its video may have arrived: look there, then "
                                        "retry it by its number or remove it.")
                             .arg(upload.id));
    };
    if (!_client.forEach(collect, error)) return std::nullopt;
    return found;
}

int UploadsCommand::_retry() {
    std::optional<NSError> error;
    const auto uploads = _retriable(&error);
    if (!uploads) return error ? _fail(error) : ExitUsage;
    for (const Upload &upload : *uploads)
        if (!upload.canBeRetried())
            Output::note(QStringLiteral("Upload %1 is %2: nothing to try again.").arg(upload.id, upload.state));
    const auto count = _client.retry(idsOf(*uploads), &error);
    if (!count) return _fail(error);
    const auto now = _client.get(idsOf(*uploads), &error);
    if (!now) return _fail(error);
    return _print(*now, QStringLiteral("%1 set going again.").arg(countText(*count)));
}

int UploadsCommand::_remove() {
    std::optional<NSError> error;
    const auto uploads = _known(&error);
    if (!uploads) return error ? _fail(error) : ExitUsage;
    const auto count = _client.remove(idsOf(*uploads), &error);
    if (!count) return _fail(error);
    return _print(*uploads, QStringLiteral("%1 removed.").arg(countText(*count)));
}

int UploadsCommand::_clear() {
    std::optional<NSError> error;
    const auto count = _client.clear(&error);
    if (!count) return _fail(error);
    if (_json)
        Output::raw("{\"cleared\":" + QByteArray::number(*count) + "}\n");
    else
        Output::line(QStringLiteral("%1 forgotten.").arg(countText(*count)));
    return ExitDone;
}

int UploadsCommand::_setPaused(bool paused) {
    std::optional<NSError> error;
    if (!_client.setPaused(paused, &error)) return _fail(error);
    if (_json)
        Output::raw(paused ? "{\"paused\":true}\n" : "{\"paused\":false}\n");
    else
        Output::line(paused ? QStringLiteral("Uploads are paused. They go on after: korvane uploads resume")
                            : QStringLiteral("Uploads go on."));
    return ExitDone;
}

int UploadsCommand::_print(const std::vector<Upload> &uploads, const QString &sentence) const {
    if (!_json) {
        Output::line(sentence);
        return ExitDone;
    }
    JSONArray array;
    for (const Upload &upload : uploads)
        array.add(UploadText::json(upload));
    return ExitDone;
}

int UploadsCommand::_fail(const std::optional<NSError> &error) const {
    Output::problem(error->localizedDescription());
    return exitStatusOf(*error);
}

} // namespace korvane
