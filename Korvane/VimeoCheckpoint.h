// How far a video has come on its way to Vimeo.
#pragma once

#include "Platform/Foundation/NSURL.h"

#include <QVariantMap>

#include <optional>

namespace korvane {

// What a later upload of the same video goes on from. Ids are kept as Vimeo sent them: texts or integers.
struct VimeoCheckpoint {
    QVariant ticketID;                  // invalid before there is a ticket
    std::optional<NSURL> endpoint;      // where the ticket's chunks go
    quint64 bytesStored = 0;            // that the last verify reported
    bool commitSent = false;            // the commit goes out, and its answer is not known yet
    QVariant videoID;                   // invalid until the commit is answered
    std::optional<bool> mayUseCellular; // where the upload was begun on the cellular network; null: not begun

    bool hasTicket() const { return ticketID.isValid() && endpoint.has_value(); }

    // As property-list values, and back; what is not understood counts as not reached.
    QVariantMap dictionary() const;
    static VimeoCheckpoint withDictionary(const QVariantMap &dictionary);

    friend bool operator==(const VimeoCheckpoint &, const VimeoCheckpoint &) = default;
};

} // namespace korvane
