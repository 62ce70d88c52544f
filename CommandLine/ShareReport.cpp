// How the uploads of a share go on.
#include "CommandLine/ShareReport.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/JSONArray.h"
#include "CommandLine/Output.h"
#include "CommandLine/UploadText.h"
#include "CommandLine/UploadsWatch.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/SLComposeServiceViewController.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace korvane {

void ShareReport::addOptions(CLI::App &command) {
    command.add_flag("--wait", _waits, "Wait until all is uploaded, and show how it goes on");
    command.add_flag("--json", _json, "Print the uploads as JSON");
}

bool ShareReport::hasAccount(const SLComposeServiceViewController &sheet, const QString &service) {
    if (sheet.settingsAlert()) {
        Output::problem(QStringLiteral("%1\nAdd one with:\n  korvane accounts add %2 --credential-file FILE")
                            .arg(sheet.settingsAlert()->message, service));
        return false;
    }
    const ACAccountStore store;
    const auto accounts = store.accountsWithAccountType(store.accountTypeWithAccountTypeIdentifier(
        service == QLatin1String("flickr") ? ACAccountTypeIdentifierFlickr : ACAccountTypeIdentifierVimeo));
    if (accounts.size() > 1)
        Output::note(QStringLiteral("Sharing as %1, the last added of %2 %3 accounts.")
                         .arg(accounts.back()->username())
                         .arg(accounts.size())
                         .arg(sheet.title().value_or(QString())));
    return true;
}

std::optional<int> ShareReport::post(SLComposeServiceViewController &sheet) {
    sheet.userTapsPost();
    if (sheet.extensionContext()->state() == NSExtensionContext::State::Completed) return std::nullopt;
    const NSError reason = sheet.extensionContext()->error().value_or(
        NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorNotAvailable,
                                      QStringLiteral("The upload service gave no reason.")));
    Output::problem(QStringLiteral("Nothing was shared. ") + reason.localizedDescription());
    return Arguments::exitStatusOf(reason);
}

int ShareReport::succeeded(const QByteArrayList &files, const QString &messageID) const {
    if (!_json)
        Output::line(
            QStringLiteral("%1 handed over to the upload service. See: korvane uploads").arg(_counted(files.size())));
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
    return Arguments::exitStatusOf(*error);
}

QString ShareReport::_counted(qsizetype count) const {
    return count == 1 ? QStringLiteral("1 ") + _what : QStringLiteral("%1 %2s").arg(count).arg(_what);
}

int ShareReport::_wait(UploadsClient &client, const QStringList &ids, const QByteArrayList &files,
                       std::optional<NSError> *error) const {
    QHash<QString, QString> names;
    for (qsizetype i = 0; i < ids.size() && ids.size() == files.size(); ++i)
        names[ids[i]] = Arguments::shownPath(files[i].split('/').last());
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
