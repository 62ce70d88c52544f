// How the uploads of a share go on.
#include "CommandLine/ShareReport.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/JSONArray.h"
#include "CommandLine/Output.h"
#include "CommandLine/UploadsWatch.h"
#include "FrontEnd/ExitStatus.h"
#include "FrontEnd/UploadText.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace korvane {
namespace {

const char *const ending = R"(

The upload service uploads in the background, also after this command has ended and after a restart. --wait stays until
all is uploaded; Ctrl-C ends the waiting, not the uploads.

Exit status: 0 all well, 1 an upload failed, or something that has no status of its own, 2 bad usage or a file that
cannot be used, 3 no usable account, 4 the upload service cannot be reached, runs with other settings, or cannot take
anything just now; with --wait 130 after Ctrl-C.)";

} // namespace

void ShareReport::addTo(CLI::App &command, const std::string &explanation) {
    command.add_flag("--wait", _waits, "Wait until all is uploaded, and show how it goes on");
    command.add_flag("--json", _json, "Print the uploads as JSON");
    command.footer(explanation + ending);
}

int ShareReport::succeeded(const QByteArrayList &files, const QString &messageID, const QStringList &choices) const {
    if (!_json)
        Output::line(QStringLiteral("%1 handed over to the upload service (%2). See: korvane uploads")
                         .arg(_counted(files.size()), choices.join(QStringLiteral(", "))));
    if (!_json && !_waits) return ExitDone;
    UploadsClient client;
    std::optional<NSError> error;
    int status = ExitDone;
    auto ids = client.idsOfMessage(messageID, &error);
    if (ids) std::ranges::sort(*ids, {}, [](const QString &id) { return id.toLongLong(); });
    if (ids && _waits) status = _wait(client, *ids, files, &error);
    if (const auto uploads = ids && !error && _json ? client.get(*ids, &error) : std::nullopt) {
        JSONArray array;
        std::ranges::for_each(*uploads, [&](const Upload &upload) { array.add(UploadText::json(upload)); });
    }
    if (!error) return status;
    Output::problem(QStringLiteral("%1 handed over, but how it goes on cannot be told. ").arg(_counted(files.size())) +
                    error->localizedDescription());
    return exitStatusOf(*error);
}

QString ShareReport::_counted(qsizetype count) const {
    return count == 1 ? QStringLiteral("1 ") + _what : QStringLiteral("%1 %2s").arg(count).arg(_what);
}

int ShareReport::_wait(UploadsClient &client, const QStringList &ids, const QByteArrayList &files,
                       std::optional<NSError> *error) const {
    QHash<QString, QString> names;
    for (qsizetype i = 0; i < ids.size() && ids.size() == files.size(); ++i)
        names[ids[i]] = QString::fromUtf8(files[i].split('/').last());
    UploadsWatch watch(client, ProgressView::onStream(_json ? stderr : stdout, !_json));
    watch.follow(ids, names);
    const int status = watch.run(error);
    if (status > 128)
        Output::note(QStringLiteral("No longer waiting. The uploads go on in the service. See: korvane uploads"));
    if (status == ExitUploadFailed)
        Output::note(QStringLiteral("Not all was uploaded. To try one again: korvane uploads retry ID"));
    return status;
}

} // namespace korvane
