// Changes of the kernel's routes, in a network namespace of the test's own.
#include "Platform/SystemConfiguration/NetworkWatch.h"
#include "Platform/SystemConfiguration/NetworkRoute.h"
#include "Tests/Support/Testing.h"

#include <QProcess>

#include <sched.h>

namespace korvane::test {
namespace {

constexpr int quietMilliseconds = 100;

bool ip(const char *arguments) {
    return QProcess::execute(QStringLiteral("ip"), QString::fromLatin1(arguments).split(u' ')) == 0;
}

TEST(NetworkWatch, TellsOnceOfEachWayOutThatIsGained) {
    if (::unshare(CLONE_NEWNET) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0)
        GTEST_SKIP() << "no network namespace can be made here";
    if (!ip("link set lo up")) GTEST_SKIP() << "the ip program is missing or may not change the namespace";
    int regained = 0;
    const NetworkWatch watch([&regained] { ++regained; }, quietMilliseconds, NetworkWatch::Source::KernelRoutes);
    const auto regainsMore = [&](int count, int milliseconds) {
        return waitFor([&] { return regained > count; }, milliseconds);
    };

    ASSERT_TRUE(ip("addr add 192.0.2.1/24 dev lo"));
    EXPECT_FALSE(regainsMore(0, 3 * quietMilliseconds)) << "an address alone is no way out";
    ASSERT_TRUE(ip("route add default dev lo"));
    ASSERT_TRUE(ip("route add 198.51.100.0/24 dev lo"));
    EXPECT_TRUE(regainsMore(0, 5000));
    EXPECT_FALSE(regainsMore(1, 3 * quietMilliseconds)) << "one way out, although there are two routes";
    ASSERT_TRUE(ip("route del 198.51.100.0/24 dev lo"));
    EXPECT_FALSE(regainsMore(1, 3 * quietMilliseconds)) << "still online: nothing to tell";
    ASSERT_TRUE(ip("route del default dev lo")); // away and back before anybody looks
    ASSERT_TRUE(ip("route add default dev lo"));
    EXPECT_TRUE(regainsMore(1, 5000));
    EXPECT_EQ(regained, 2);
}

TEST(NetworkRoute, ReadsTheKernelsTables) {
    const QByteArray head4 = "Iface\tDestination\tGateway\tFlags\tRefCnt\tUse\tMetric\tMask\tMTU\tWindow\tIRTT\n";
    const QByteArray zero(32, '0'), other = "fe80" + QByteArray(28, '0');
    const auto route6 = [&zero](const QByteArray &destination, const char *prefix, const char *flags,
                                const char *device) {
        return destination + ' ' + prefix + ' ' + zero + " 00 " + zero + " 00000400 00000001 00000000 " + flags + ' ' +
               device + '\n';
    };
    const std::tuple<QByteArray, QByteArray, bool> cases[] = {
        {"", "", false},
        {head4 + "eth0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n", "", true},
        {head4 + "eth0\t0001A8C0\t00000000\t0001\t0\t0\t100\t00FFFFFF\t0\t0\t0\n", "", false},
        {head4 + "*\t00000000\t00000000\t0200\t0\t0\t0\t00000000\t0\t0\t0\n", "", false}, // "unreachable default"
        {head4, route6(zero, "00", "00000003", "eth0"), true},
        {head4, route6(zero, "00", "00200200", "lo"), false},
        {head4, route6(other, "40", "00000001", "eth0"), false},
        {"eth0", "garbage\n\n", false},
    };
    const TemporaryHome root;
    for (const auto &[ipv4, ipv6, wayOut] : cases) {
        root.file("net/route", ipv4);
        root.file("net/ipv6_route", ipv6);
        EXPECT_EQ(NetworkRoute::hasDefaultRoute(root.path()), wayOut) << ipv4.constData() << ipv6.constData();
    }
}

} // namespace
} // namespace korvane::test
