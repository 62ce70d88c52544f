// Which addresses are this machine's or the local network's.
#include "Platform/Foundation/LocalNetwork.h"

#include <QHostAddress>

#include <algorithm>
#include <array>
#include <utility>

namespace korvane {

bool isInLocalNetwork(const NSURL &url) {
    static const std::array<std::pair<QHostAddress, int>, 9> networks{
        QHostAddress::parseSubnet(QStringLiteral("10.0.0.0/8")),
        QHostAddress::parseSubnet(QStringLiteral("172.16.0.0/12")),
        QHostAddress::parseSubnet(QStringLiteral("192.168.0.0/16")),
        QHostAddress::parseSubnet(QStringLiteral("169.254.0.0/16")),
        QHostAddress::parseSubnet(QStringLiteral("0.0.0.0/8")),
        QHostAddress::parseSubnet(QStringLiteral("100.64.0.0/10")),
        QHostAddress::parseSubnet(QStringLiteral("::/96")),
        QHostAddress::parseSubnet(QStringLiteral("fc00::/7")),
        QHostAddress::parseSubnet(QStringLiteral("fe80::/10"))};
    QHostAddress address(url.host());
    bool isMapped = false;
    if (const quint32 ipv4 = address.toIPv4Address(&isMapped); isMapped) address = QHostAddress(ipv4);
    return url.isLoopback() || address.isLoopback() ||
           std::ranges::any_of(networks, [&](const auto &network) { return address.isInSubnet(network); });
}

} // namespace korvane
