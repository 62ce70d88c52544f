// How one run of an upload ended.
#pragma once

#include "Platform/Foundation/NSError.h"
#include "Platform/Foundation/UploadContext.h"

#include <optional>

namespace korvane {

struct RunOutcome {
    enum End {
        Finished,  // the upload code ran to its end; error says how
        Unusable,  // the post was not begun, since it cannot be uploaded; error says why
        Hindered,  // not begun either, but it may be possible later; error says why
        NoAccount, // the account is gone or its credential cannot be read
    };

    End end = Finished;
    std::optional<NSError> error = {};
    UploadContext::Snapshot lastRequest = {}; // of a run that got to the network
    qint64 photoID = 0;
    QString asset = {}; // what an asset is called that was not found
};

} // namespace korvane
