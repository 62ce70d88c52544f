// Changes of the kernel's routes, in a network namespace of the test's own.
#include "Platform/SystemConfiguration/NetworkWatch.h"
#include "Platform/SystemConfiguration/NetworkRoute.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sched.h>

#include <functional>

namespace korvane {
namespace {

constexpr int quietMilliseconds = 100;

bool ip(const char *arguments) {
    return QProcess::execute(QStringLiteral("ip"), QString::fromLatin1(arguments).split(u' ')) == 0;
}

void runLoop(
    int milliseconds, const std::function<bool()> &until = [] { return false; }) {
    for (const QDeadlineTimer deadline(milliseconds); !deadline.hasExpired() && !until();)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

TEST(NetworkWatch, TellsOnceOfEachWayOutThatIsGained) {
    if (::unshare(CLONE_NEWNET) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0)
        GTEST_SKIP() << "no network namespace can be made here";
    if (!ip("link set lo up")) GTEST_SKIP() << "the ip program is missing or may not change the namespace";
    int regained = 0;
    const NetworkWatch watch([&regained] { ++regained; }, quietMilliseconds, NetworkWatch::Source::KernelRoutes);

    ASSERT_TRUE(ip("addr add 192.0.2.1/24 dev lo")); // an address alone is no way out
    runLoop(3 * quietMilliseconds);
    EXPECT_EQ(regained, 0);

    ASSERT_TRUE(ip("route add default dev lo"));
    ASSERT_TRUE(ip("route add 198.51.100.0/24 dev lo"));
    runLoop(5000, [&] { return regained > 0; });
    runLoop(3 * quietMilliseconds);
    EXPECT_EQ(regained, 1);

    ASSERT_TRUE(ip("route del 198.51.100.0/24 dev lo")); // still online: nothing to tell
    runLoop(3 * quietMilliseconds);
    EXPECT_EQ(regained, 1);

    ASSERT_TRUE(ip("route del default dev lo")); // away and back before anybody looks
    ASSERT_TRUE(ip("route add default dev lo"));
    runLoop(5000, [&] { return regained > 1; });
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
    const struct {
        QByteArray ipv4, ipv6;
        bool wayOut;
    } cases[] = {
        {"", "", false},
        {head4 + "eth0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n", "", true},
        {head4 + "eth0\t0001A8C0\t00000000\t0001\t0\t0\t100\t00FFFFFF\t0\t0\t0\n", "", false},
        {head4 + "*\t00000000\t00000000\t0200\t0\t0\t0\t00000000\t0\t0\t0\n", "", false}, // "unreachable default"
        {head4, route6(zero, "00", "00000003", "eth0"), true},
        {head4, route6(zero, "00", "00200200", "lo"), false},
        {head4, route6(other, "40", "00000001", "eth0"), false},
        {"eth0", "garbage\n\n", false},
    };
    for (const auto &[ipv4, ipv6, wayOut] : cases) {
        const QTemporaryDir root;
        QDir(root.path()).mkdir(QStringLiteral("net"));
        for (const auto &[name, text] :
             {std::pair(QStringLiteral("/net/route"), ipv4), {QStringLiteral("/net/ipv6_route"), ipv6}}) {
            QFile table(root.path() + name);
            ASSERT_TRUE(table.open(QIODevice::WriteOnly));
            table.write(text);
        }
        EXPECT_EQ(NetworkRoute::hasDefaultRoute(root.path()), wayOut) << ipv4.constData() << ipv6.constData();
    }
}

} // namespace
} // namespace korvane

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
