// Changes of the kernel's routes, in a network namespace of the test's own.
#include "Platform/SystemConfiguration/NetworkWatch.h"
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

} // namespace
} // namespace korvane::test
