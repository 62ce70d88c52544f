// Whether the machine has a way out to the network, and over which device.
#include "Platform/SystemConfiguration/NetworkRoute.h"

#include <QByteArrayList>
#include <QFile>

#include <algorithm>
#include <array>
#include <limits>

namespace korvane {
namespace {

constexpr unsigned routeRejects = 0x0200; // RTF_REJECT, as in linux/route.h

// The preferred one of the default routes seen so far.
struct BestRoute {
    QByteArray device;
    quint64 metric = std::numeric_limits<quint64>::max();

    void offer(const QByteArray &other, quint64 otherMetric) {
        if (otherMetric >= metric) return;
        device = other;
        metric = otherMetric;
    }
};

// False where there is no such file.
bool readRows(const QString &path, QList<QByteArrayList> &rows) {
    QFile table(path);
    if (!table.open(QIODevice::ReadOnly)) return false;
    const QByteArrayList lines = table.readAll().split('\n');
    for (const QByteArray &line : lines)
        rows.append(line.simplified().split(' '));
    return true;
}

QByteArray defaultIPv4Device(const QList<QByteArrayList> &rows) {
    // Columns: device, destination, gateway, flags, ..., metric at 6, mask at 7; hexadecimal but for the metric.
    BestRoute best;
    for (const QByteArrayList &row : rows)
        if (row.size() > 7 && row[1] == "00000000" && row[7] == "00000000" &&
            !(row[3].toUInt(nullptr, 16) & routeRejects))
            best.offer(row[0], row[6].toUInt());
    return best.device;
}

QByteArray defaultIPv6Device(const QList<QByteArrayList> &rows) {
    // Columns: destination, its prefix length, ..., metric at 5, ..., flags at 8, device at 9; all hexadecimal.
    BestRoute best;
    for (const QByteArrayList &row : rows)
        if (row.size() > 9 && row[0].count('0') == 32 && row[1] == "00" && row[9] != "lo" &&
            !(row[8].toUInt(nullptr, 16) & routeRejects))
            best.offer(row[9], row[5].toUInt(nullptr, 16));
    return best.device;
}

} // namespace

std::optional<QByteArray> NetworkRoute::defaultDevice(const QString &procRoot) {
    QList<QByteArrayList> rows4;
    QList<QByteArrayList> rows6;
    const bool known4 = readRows(procRoot + QStringLiteral("/net/route"), rows4);
    const bool known6 = readRows(procRoot + QStringLiteral("/net/ipv6_route"), rows6);
    if (!known4 && !known6) return std::nullopt;
    const QByteArray device = defaultIPv4Device(rows4);
    return device.isEmpty() ? defaultIPv6Device(rows6) : device;
}

bool NetworkRoute::hasDefaultRoute(const QString &procRoot) {
    return !defaultDevice(procRoot).value_or(QByteArray()).isEmpty();
}

bool NetworkRoute::isCellularDevice(const QByteArray &device, const QString &sysRoot) {
    constexpr std::array modemNames = {"wwan", "ppp", "rmnet"};
    if (std::any_of(modemNames.begin(), modemNames.end(), [&](const char *name) { return device.startsWith(name); }))
        return true;
    if (device.isEmpty() || device.contains('/')) return false;
    QFile event(sysRoot + QStringLiteral("/class/net/%1/uevent").arg(QFile::decodeName(device)));
    return event.open(QIODevice::ReadOnly) && event.readAll().split('\n').contains("DEVTYPE=wwan");
}

} // namespace korvane
