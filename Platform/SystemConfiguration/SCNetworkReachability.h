// How the network would be reached: at all, and over the cellular network or not.
#pragma once

#include <QString>

#include <memory>

struct sockaddr;

namespace korvane {

using SCNetworkReachabilityFlags = quint32;
inline constexpr SCNetworkReachabilityFlags kSCNetworkReachabilityFlagsReachable = 1 << 1;
inline constexpr SCNetworkReachabilityFlags kSCNetworkReachabilityFlagsIsWWAN = 1 << 18;

// Stands for the default route. Thread: any; it never changes.
class SCNetworkReachability {};
using SCNetworkReachabilityRef = std::shared_ptr<const SCNetworkReachability>;

// Null for any address but the wildcard one of IPv4 (0.0.0.0) or IPv6 (::), which stands for the default route.
SCNetworkReachabilityRef SCNetworkReachabilityCreateWithAddress(const sockaddr *address);

// Looks afresh. False, with flags untouched, where it cannot be told (or target is null). Thread: any.
bool SCNetworkReachabilityGetFlags(const SCNetworkReachabilityRef &target, SCNetworkReachabilityFlags *flags);

// Whether the default route goes over the cellular network: by the desktop's network service where that knows, else by
// the route's device. Quick enough to be asked before each request: it reads two or three small files of the kernel's
// at most. Thread: any.
bool isDefaultRouteCellular();

// For tests: reads the kernel's tables below these roots instead and leaves the network service out of it; empty ones
// put things back.
void setReachabilityRoots(const QString &procRoot, const QString &sysRoot);

} // namespace korvane
