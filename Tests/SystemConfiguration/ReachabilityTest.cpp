// Whether there is a default route and whether it is a cellular one: by the kernel's tables, and by the desktop's
// network service.
#include "Platform/SystemConfiguration/NetworkRoute.h"
#include "Platform/SystemConfiguration/SCNetworkReachability.h"
#include "Tests/Support/TestBus.h"
#include "Tests/Support/Testing.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QNetworkInformation>

#include <netinet/in.h>

#include <thread>

namespace korvane::test {
namespace {

constexpr SCNetworkReachabilityFlags reachable = 2;
constexpr SCNetworkReachabilityFlags cellular = 262144;

QByteArray route4(const QByteArray &device, const QByteArray &metric, const QByteArray &destination = "00000000",
                  const QByteArray &flags = "0003") {
    return device + '\t' + destination + "\t0101A8C0\t" + flags + "\t0\t0\t" + metric + '\t' + destination +
           "\t0\t0\t0\n";
}

QByteArray route6(const QByteArray &device, const QByteArray &metric,
                  const QByteArray &destination = QByteArray(32, '0'), const QByteArray &flags = "00000003") {
    const QByteArray zero(32, '0');
    return destination + " 00 " + zero + " 00 " + zero + ' ' + metric + " 00000001 00000000 " + flags + ' ' + device +
           '\n';
}

TEST(Reachability, KnowsADefaultRouteAndAModemByTheRoutesDevice) {
    const sockaddr_in everywhere{.sin_family = AF_INET, .sin_port = 0, .sin_addr = {INADDR_ANY}, .sin_zero = {}};
    const auto target = SCNetworkReachabilityCreateWithAddress(reinterpret_cast<const sockaddr *>(&everywhere));
    // The kernel's routes, and what it says of the device "net0".
    const std::tuple<QByteArray, QByteArray, QByteArray, SCNetworkReachabilityFlags> table[] = {
        {"", "", "", 0},
        {"eth0", "garbage\n\n", "", 0},
        {route4("net0", "100"), "", "INTERFACE=net0\nIFINDEX=2\n", reachable},
        {route4("net0", "100"), "", "DEVTYPE=wwan\nINTERFACE=net0\n", reachable | cellular},
        {route4("wwan0", "100"), "", "", reachable | cellular},
        {route4("ppp0", "0"), "", "", reachable | cellular},
        {route4("rmnet_data0", "0"), "", "", reachable | cellular},
        {route4("wwan0", "700") + route4("net0", "100"), "", "", reachable},
        {route4("net0", "1000") + route4("wwan0", "700"), "", "", reachable | cellular},
        {"", route6("net0", "00000400") + route6("wwan0", "00000040"), "", reachable | cellular},
        {route4("net0", "9"), route6("wwan0", "00000001"), "", reachable},
        {route4("net0", "100", "0001A8C0"), "", "", 0},
        {route4("*", "0", "00000000", "0200"), "", "", 0}, // "unreachable default"
        {"", route6("lo", "ffffffff"), "", 0},
        {"", route6("net0", "ffffffff", QByteArray(32, '0'), "00000200"), "", 0},
        {"", route6("net0", "00000100", "fe80" + QByteArray(28, '0')), "", 0},
    };
    for (const auto &[ipv4, ipv6, uevent, flags] : table) {
        const TemporaryHome root;
        root.file("proc/net/route", "Iface\tDestination\n" + ipv4);
        root.file("proc/net/ipv6_route", ipv6);
        root.file("sys/class/net/net0/uevent", uevent);
        setReachabilityRoots(root.path("proc"), root.path("sys"));
        SCNetworkReachabilityFlags found = 77;
        EXPECT_TRUE(SCNetworkReachabilityGetFlags(target, &found));
        EXPECT_EQ(found, flags) << ipv4.constData() << ipv6.constData() << uevent.constData();
        EXPECT_EQ(isDefaultRouteCellular(), (flags & cellular) != 0);
        EXPECT_EQ(NetworkRoute::hasDefaultRoute(root.path("proc")), flags != 0);
    }
    const TemporaryHome nothing;
    setReachabilityRoots(nothing.path(), nothing.path());
    SCNetworkReachabilityFlags found = 77;
    EXPECT_FALSE(SCNetworkReachabilityGetFlags(target, &found)) << "there is nothing to read";
    EXPECT_EQ(found, 77);
    setReachabilityRoots({}, {});
    EXPECT_TRUE(SCNetworkReachabilityGetFlags(target, &found)) << "the real tables can be read";
}

// The part of the desktop's network service that says over what the machine is connected: two connections to choose
// the primary one from, a modem's and a Wi-Fi's. It is asked with blocking calls of the main thread, so it lives on
// another.
class FakeNetworkService : public QDBusVirtualObject {
public:
    explicit FakeNetworkService(const QDBusConnection &bus) : _bus(bus) {
        _thread.start();
        _bus.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
        moveToThread(&_thread);
        _bus.registerService(_name);
    }
    ~FakeNetworkService() override {
        _thread.quit();
        _thread.wait();
    }

    void setPrimaryConnection(int index) {
        QDBusMessage signal = QDBusMessage::createSignal(_path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                         QStringLiteral("PropertiesChanged"));
        signal << _name << QVariantMap{_primaryConnection(index)} << QStringList();
        _bus.send(signal);
    }

    QString introspect(const QString &) const override {
        return QStringLiteral("<interface name='org.freedesktop.NetworkManager.Connection.Active'>"
                              "<property name='Devices' type='ao' access='read'/></interface>"
                              "<interface name='org.freedesktop.NetworkManager.Device'>"
                              "<property name='DeviceType' type='u' access='read'/></interface>");
    }
    bool handleMessage(const QDBusMessage &call, const QDBusConnection &bus) override {
        if (call.member() == QLatin1String("Introspect")) return false;
        const QVariantMap properties = _propertiesOf(call.path());
        const bool wantsOne = call.member() == QLatin1String("Get");
        const QDBusVariant one(properties.value(call.arguments().value(1).toString()));
        return bus.send(call.createReply(wantsOne ? QVariant::fromValue(one) : properties));
    }

private:
    static std::pair<QString, QVariant> _primaryConnection(int index) {
        const QDBusObjectPath path(QStringLiteral("/active/%1").arg(index));
        return {QStringLiteral("PrimaryConnection"), QVariant::fromValue(path)};
    }
    static QVariantMap _propertiesOf(const QString &path) {
        if (path == _path)
            return {_primaryConnection(0),
                    {QStringLiteral("Connectivity"), 4U}, // full
                    {QStringLiteral("State"), 70U}};      // connected globally
        const QString index = path.last(1);
        const QList<QDBusObjectPath> devices{QDBusObjectPath(QStringLiteral("/device/") + index)};
        if (path.startsWith(QLatin1String("/active/")))
            return {{QStringLiteral("Devices"), QVariant::fromValue(devices)}};
        return {{QStringLiteral("DeviceType"), index == QLatin1String("0") ? 8U : 2U}};
    }

    inline static const QString _path = QStringLiteral("/org/freedesktop/NetworkManager");
    inline static const QString _name = QStringLiteral("org.freedesktop.NetworkManager");
    QDBusConnection _bus;
    QThread _thread;
};

TEST(Reachability, BelievesTheNetworkServiceBeforeTheDevicesName) {
    if (QNetworkInformation::instance()) GTEST_SKIP() << "the network service was asked before, on another bus";
    TestBus bus;
    ASSERT_TRUE(bus.start());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.address());
    FakeNetworkService service(bus.connection());
    const auto becomes = [](bool expected) {
        const bool seen = waitFor([&] { return isDefaultRouteCellular() == expected; });
        bool onOtherThread = !expected;
        std::thread([&] { onOtherThread = isDefaultRouteCellular(); }).join();
        return seen && onOtherThread == expected;
    };
    EXPECT_TRUE(becomes(true));
    service.setPrimaryConnection(1);
    EXPECT_TRUE(becomes(false));
}

} // namespace
} // namespace korvane::test
