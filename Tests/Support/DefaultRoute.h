// A network of a test's own choice, as far as requests look at it.
#pragma once

#include "Platform/SystemConfiguration/SCNetworkReachability.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace korvane::test {

// While it lives, the machine's way out goes over that device: "wwan0" is a modem.
class DefaultRoute {
public:
    explicit DefaultRoute(const QByteArray &device) {
        QDir(_root.path()).mkdir(QStringLiteral("net"));
        QFile table(_root.filePath(QStringLiteral("net/route")));
        table.open(QIODevice::WriteOnly);
        table.write("Iface\n" + device + " 00000000 0 0003 0 0 0 00000000\n");
        setReachabilityRoots(_root.path(), _root.path());
    }
    ~DefaultRoute() { setReachabilityRoots({}, {}); }
    DefaultRoute(const DefaultRoute &) = delete;
    DefaultRoute &operator=(const DefaultRoute &) = delete;

    // A loopback URL as one that is not, of the same server.
    static QString notLoopback(QString url) {
        return url.replace(QLatin1String("127.0.0.1"), QLatin1String("0.0.0.0"));
    }

private:
    QTemporaryDir _root;
};

} // namespace korvane::test
