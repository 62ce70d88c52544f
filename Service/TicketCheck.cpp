// What is looked at in a ticket before a video goes to where it points.
#include "Service/TicketCheck.h"

#include "Platform/Foundation/LocalNetwork.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Preferences/KorvaneSettings.h"
#include "Service/JobError.h"

namespace korvane {

std::optional<NSError> TicketCheck::objection(const VimeoCheckpoint &checkpoint) {
    const auto unusable = [](const QString &what) {
        return jobError(JobErrorUnusableTicket,
                        localizedText("Vimeo's upload ticket cannot be used: %1. Retry later.", what));
    };
    if (!checkpoint.ticketID.isValid() || checkpoint.ticketID.toString().isEmpty())
        return unusable(localizedText("it has no id"));
    if (!checkpoint.endpoint || checkpoint.endpoint->host().isEmpty())
        return unusable(localizedText("it does not say where to send the video"));
    const QString scheme = checkpoint.endpoint->scheme().toLower();
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https"))
        return unusable(localizedText("its address begins with %1:", scheme));
    const auto api = NSURL::URLWithString(KorvaneSettings::vimeoRESTHost());
    if (isInLocalNetwork(*checkpoint.endpoint) && !(api && isInLocalNetwork(*api)))
        return unusable(localizedText("it points into the local network (%1)", checkpoint.endpoint->host()));
    return std::nullopt;
}

} // namespace korvane
