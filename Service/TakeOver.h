// Turns the records of a message into uploads.
#pragma once

#include "Platform/Social/RemoteServiceSession.h"
#include "Service/Spool.h"
#include "Service/UploadStore.h"

#include <QVariantList>

namespace korvane {

class ACAccountStore;

struct TakenMessage {
    std::vector<NewUpload> uploads;
    QString spoolFile; // empty if no data came in a file
};

namespace TakeOver {

// Gives the data its name in the spool, looks at the files that the posts name, and pins the account in use. Blocks
// until the data is on disk. Null, with the error placed and nothing left behind, if it cannot be kept. Thread: any.
std::optional<TakenMessage> prepare(const QString &service, const QVariantList &records, const RemoteMessage &message,
                                    const Spool &spool, const ACAccountStore &accounts, std::optional<NSError> *error);

} // namespace TakeOver

} // namespace korvane
