// Whether the machine has a way out to the network.
#include "Platform/SystemConfiguration/NetworkRoute.h"

#include <QByteArrayList>
#include <QFile>

namespace korvane {
namespace {

constexpr unsigned routeRejects = 0x0200; // RTF_REJECT, as in linux/route.h

QList<QByteArrayList> rowsOf(const QString &path) {
    QList<QByteArrayList> rows;
    QFile table(path);
    if (!table.open(QIODevice::ReadOnly)) return rows;
    const QByteArrayList lines = table.readAll().split('\n');
    for (const QByteArray &line : lines)
        rows.append(line.simplified().split(' '));
    return rows;
}

bool hasIPv4Default(const QString &path) {
    // Columns: device, destination, gateway, flags, ..., mask at 7; numbers in hexadecimal.
    for (const QByteArrayList &row : rowsOf(path))
        if (row.size() > 7 && row[1] == "00000000" && row[7] == "00000000" &&
            !(row[3].toUInt(nullptr, 16) & routeRejects))
            return true;
    return false;
}

bool hasIPv6Default(const QString &path) {
    // Columns: destination, its prefix length, ..., flags at 8, device at 9.
    for (const QByteArrayList &row : rowsOf(path))
        if (row.size() > 9 && row[0].count('0') == 32 && row[1] == "00" && row[9] != "lo" &&
            !(row[8].toUInt(nullptr, 16) & routeRejects))
            return true;
    return false;
}

} // namespace

bool NetworkRoute::hasDefaultRoute(const QString &procRoot) {
    return hasIPv4Default(procRoot + QStringLiteral("/net/route")) ||
           hasIPv6Default(procRoot + QStringLiteral("/net/ipv6_route"));
}

} // namespace korvane
