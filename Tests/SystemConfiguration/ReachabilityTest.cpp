// Whether the default route is a cellular one: by the kernel's tables, and by the desktop's network service.
#include "Platform/SystemConfiguration/SCNetworkReachability.h"
#include "Tests/Support/TestBus.h"
#include "Tests/SystemConfiguration/FakeNetworkManager.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QNetworkInformation>
#include <QTemporaryDir>

#include <netinet/in.h>

#include <thread>

namespace korvane::test {
namespace {

constexpr SCNetworkReachabilityFlags reachable = 2;
constexpr SCNetworkReachabilityFlags cellular = 262144;

void write(const QString &path, const QByteArray &text) {
    QDir().mkpath(path.section(u'/', 0, -2));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray route4(const QByteArray &device, const QByteArray &metric) {
    return device + "\t00000000\t0101A8C0\t0003\t0\t0\t" + metric + "\t00000000\t0\t0\t0\n";
}

QByteArray route6(const QByteArray &device, const QByteArray &metric) {
    const QByteArray zero(32, '0');
    return zero + " 00 " + zero + " 00 " + zero + ' ' + metric + " 00000001 00000000 00000003 " + device + '\n';
}

sockaddr_in address4(quint32 address) {
    sockaddr_in socket{};
    socket.sin_family = AF_INET;
    socket.sin_addr.s_addr = htonl(address);
    return socket;
}

TEST(Reachability, KnowsAModemByTheRoutesDevice) {
    const sockaddr_in everywhere = address4(INADDR_ANY);
    const auto target = SCNetworkReachabilityCreateWithAddress(reinterpret_cast<const sockaddr *>(&everywhere));
    const struct {
        QByteArray ipv4, ipv6, uevent; // the last that of the device "net0"
        SCNetworkReachabilityFlags flags;
    } table[] = {
        {"", "", "", 0},
        {route4("net0", "100"), "", "INTERFACE=net0\nIFINDEX=2\n", reachable},
        {route4("net0", "100"), "", "DEVTYPE=wlan\nINTERFACE=net0\n", reachable},
        {route4("net0", "100"), "", "DEVTYPE=wwan\nINTERFACE=net0\n", reachable | cellular},
        {route4("wwan0", "100"), "", "", reachable | cellular},
        {route4("ppp0", "0"), "", "", reachable | cellular},
        {route4("rmnet_data0", "0"), "", "", reachable | cellular},
        {route4("wwan0", "700") + route4("net0", "100"), "", "", reachable},
        {route4("net0", "1000") + route4("wwan0", "700"), "", "", reachable | cellular},
        {"", route6("net0", "00000400") + route6("wwan0", "00000040"), "", reachable | cellular},
        {route4("net0", "9"), route6("wwan0", "00000001"), "", reachable},
    };
    for (const auto &[ipv4, ipv6, uevent, flags] : table) {
        const QTemporaryDir root;
        write(root.filePath(QStringLiteral("proc/net/route")), "Iface\tDestination\n" + ipv4);
        write(root.filePath(QStringLiteral("proc/net/ipv6_route")), ipv6);
        write(root.filePath(QStringLiteral("sys/class/net/net0/uevent")), uevent);
        setReachabilityRoots(root.filePath(QStringLiteral("proc")), root.filePath(QStringLiteral("sys")));
        SCNetworkReachabilityFlags found = 77;
        EXPECT_TRUE(SCNetworkReachabilityGetFlags(target, &found));
        EXPECT_EQ(found, flags) << ipv4.constData() << ipv6.constData() << uevent.constData();
        EXPECT_EQ(isDefaultRouteCellular(), (flags & cellular) != 0);
    }
    const QTemporaryDir nothing;
    setReachabilityRoots(nothing.path(), nothing.path());
    SCNetworkReachabilityFlags found = 77;
    EXPECT_FALSE(SCNetworkReachabilityGetFlags(target, &found)) << "there is nothing to read";
    EXPECT_EQ(found, 77);
    setReachabilityRoots({}, {});
    EXPECT_TRUE(SCNetworkReachabilityGetFlags(target, &found)) << "the real tables can be read";
    EXPECT_FALSE(SCNetworkReachabilityGetFlags(nullptr, &found));

    const sockaddr_in loopback = address4(INADDR_LOOPBACK);
    EXPECT_EQ(SCNetworkReachabilityCreateWithAddress(reinterpret_cast<const sockaddr *>(&loopback)), nullptr);
    EXPECT_EQ(SCNetworkReachabilityCreateWithAddress(nullptr), nullptr);
}

TEST(Reachability, BelievesTheNetworkServiceBeforeTheDevicesName) {
    if (QNetworkInformation::instance()) GTEST_SKIP() << "the network service was asked before, on another bus";
    TestBus bus;
    ASSERT_TRUE(bus.start());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.address());
    FakeNetworkService service(bus.connection(), {FakeNetworkService::modem, FakeNetworkService::wifi});

    const auto becomes = [](bool expected) {
        for (const QDeadlineTimer deadline(10'000); !deadline.hasExpired() && isDefaultRouteCellular() != expected;)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        bool onOtherThread = !expected;
        std::thread([&] { onOtherThread = isDefaultRouteCellular(); }).join();
        return isDefaultRouteCellular() == expected && onOtherThread == expected;
    };
    EXPECT_TRUE(becomes(true));
    service.setPrimaryConnection(1);
    EXPECT_TRUE(becomes(false));
    service.setPrimaryConnection(0);
    EXPECT_TRUE(becomes(true));
}

} // namespace
} // namespace korvane::test
