// How the network would be reached: at all, and over the cellular network or not.
#include "Platform/SystemConfiguration/SCNetworkReachability.h"

#include "Platform/Foundation/Dispatch.h"
#include "Platform/SystemConfiguration/NetworkRoute.h"

#include <QCoreApplication>
#include <QNetworkInformation>

#include <netinet/in.h>

#include <atomic>
#include <mutex>

namespace korvane {
namespace {

using Medium = QNetworkInformation::TransportMedium;

std::atomic<Medium> knownMedium = Medium::Unknown; // what the network service said last
std::once_flag serviceFollowed;

std::mutex rootsMutex;
QString testProcRoot;
QString testSysRoot;

struct Roots {
    QString proc = QStringLiteral("/proc");
    QString sys = QStringLiteral("/sys");
    bool areReal = true;
};

Roots currentRoots() {
    const std::lock_guard lock(rootsMutex);
    if (testProcRoot.isEmpty()) return {};
    return {testProcRoot, testSysRoot, false};
}

// QNetworkInformation belongs to the main thread, so that alone asks it; the others read what it said.
void followNetworkService() {
    dispatchMain([] {
        if (!QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::TransportMedium)) return;
        const auto *service = QNetworkInformation::instance();
        QObject::connect(service, &QNetworkInformation::transportMediumChanged, service,
                         [](Medium medium) { knownMedium = medium; });
        knownMedium = service->transportMedium();
    });
}

Medium mediumByService(const Roots &roots) {
    if (!roots.areReal || !QCoreApplication::instance()) return Medium::Unknown;
    std::call_once(serviceFollowed, followNetworkService);
    return knownMedium;
}

bool isWildcard(const sockaddr *address) {
    if (address->sa_family == AF_INET)
        return reinterpret_cast<const sockaddr_in *>(address)->sin_addr.s_addr == INADDR_ANY;
    return address->sa_family == AF_INET6 &&
           IN6_IS_ADDR_UNSPECIFIED(&reinterpret_cast<const sockaddr_in6 *>(address)->sin6_addr);
}

bool isCellular(const Roots &roots, const QByteArray &device) {
    const Medium medium = mediumByService(roots);
    if (medium == Medium::Unknown) return NetworkRoute::isCellularDevice(device, roots.sys);
    return medium == Medium::Cellular;
}

} // namespace

SCNetworkReachabilityRef SCNetworkReachabilityCreateWithAddress(const sockaddr *address) {
    if (!address || !isWildcard(address)) return nullptr;
    return std::make_shared<SCNetworkReachability>();
}

bool SCNetworkReachabilityGetFlags(const SCNetworkReachabilityRef &target, SCNetworkReachabilityFlags *flags) {
    const Roots roots = currentRoots();
    const auto device = NetworkRoute::defaultDevice(roots.proc);
    if (!target || !device) return false;
    *flags = device->isEmpty() ? 0 : kSCNetworkReachabilityFlagsReachable;
    if (isCellular(roots, *device)) *flags |= kSCNetworkReachabilityFlagsIsWWAN;
    return true;
}

bool isDefaultRouteCellular() {
    const Roots roots = currentRoots();
    return isCellular(roots, NetworkRoute::defaultDevice(roots.proc).value_or(QByteArray()));
}

void setReachabilityRoots(const QString &procRoot, const QString &sysRoot) {
    const std::lock_guard lock(rootsMutex);
    testProcRoot = procRoot;
    testSysRoot = sysRoot;
}

} // namespace korvane
