// What is looked at in a ticket before a video goes to where it points.
#include "Service/TicketCheck.h"

#include "Platform/Preferences/KorvaneSettings.h"
#include "Service/PostCheck.h"

#include <QHostAddress>

#include <algorithm>
#include <array>
#include <utility>

namespace korvane {
namespace {

constexpr qint64 unusableTicket = 20;
constexpr qint64 stuck = 21;

NSError errorWithText(qint64 code, const QString &text) {
    return NSError::errorWithDescription(PostCheck::ErrorDomain, code, text);
}

bool isLocal(const NSURL &url) {
    static const std::array<std::pair<QHostAddress, int>, 7> networks{
        QHostAddress::parseSubnet(QStringLiteral("10.0.0.0/8")),
        QHostAddress::parseSubnet(QStringLiteral("172.16.0.0/12")),
        QHostAddress::parseSubnet(QStringLiteral("192.168.0.0/16")),
        QHostAddress::parseSubnet(QStringLiteral("169.254.0.0/16")),
        QHostAddress::parseSubnet(QStringLiteral("0.0.0.0/8")),
        QHostAddress::parseSubnet(QStringLiteral("fc00::/7")),
        QHostAddress::parseSubnet(QStringLiteral("fe80::/10"))};
    QHostAddress address(url.host());
    bool isMapped = false;
    if (const quint32 ipv4 = address.toIPv4Address(&isMapped); isMapped) address = QHostAddress(ipv4);
    return url.isLoopback() || address.isLoopback() || address == QHostAddress::AnyIPv6 ||
           std::ranges::any_of(networks, [&](const auto &network) { return address.isInSubnet(network); });
}

} // namespace

std::optional<NSError> TicketCheck::objection(const VimeoCheckpoint &checkpoint) {
    const auto unusable = [](const QString &what) {
        return errorWithText(unusableTicket,
                             QStringLiteral("Vimeo's upload ticket cannot be used: %1. Retry later.").arg(what));
    };
    if (!checkpoint.ticketID.isValid() || checkpoint.ticketID.toString().isEmpty())
        return unusable(QStringLiteral("it has no id"));
    if (!checkpoint.endpoint || checkpoint.endpoint->host().isEmpty())
        return unusable(QStringLiteral("it does not say where to send the video"));
    const QString scheme = checkpoint.endpoint->scheme().toLower();
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https"))
        return unusable(QStringLiteral("its address begins with %1:").arg(scheme));
    const auto api = NSURL::URLWithString(KorvaneSettings::vimeoRESTHost());
    if (isLocal(*checkpoint.endpoint) && !(api && isLocal(*api)))
        return unusable(QStringLiteral("it points into the local network (%1)").arg(checkpoint.endpoint->host()));
    return std::nullopt;
}

NSError TicketCheck::stuckError() {
    return errorWithText(stuck,
                         QStringLiteral("Vimeo takes the video's parts but stores nothing of them. Retry later."));
}

} // namespace korvane
