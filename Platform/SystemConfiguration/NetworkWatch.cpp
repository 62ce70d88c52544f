// Tells when the machine has a way out to the network again.
#include "Platform/SystemConfiguration/NetworkWatch.h"

#include "Platform/Foundation/FileDescriptor.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/SystemConfiguration/NetworkRoute.h"

#include <QNetworkInformation>
#include <QSocketNotifier>
#include <QTimer>

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>

namespace korvane {
namespace {

// Null where the kernel gives no such socket.
FileDescriptor routeSocket() {
    FileDescriptor socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE));
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE | RTMGRP_LINK | RTMGRP_IPV4_IFADDR;
    if (socket && ::bind(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
        socket.reset();
    return socket;
}

bool isNewDefaultRoute(const nlmsghdr *message) {
    if (message->nlmsg_type != RTM_NEWROUTE || message->nlmsg_len < NLMSG_LENGTH(sizeof(rtmsg))) return false;
    const auto *route = static_cast<const rtmsg *>(NLMSG_DATA(message));
    return route->rtm_dst_len == 0 && route->rtm_type == RTN_UNICAST;
}

// Reads all waiting messages. True if one tells of a new default route, or if messages were lost.
bool readRouteMessages(int socket) {
    alignas(nlmsghdr) std::array<char, 16384> buffer;
    bool found = false;
    for (;;) {
        const ssize_t count = ::recv(socket, buffer.data(), buffer.size(), 0);
        if (count < 0 && errno == ENOBUFS) found = true;
        if (count < 0 && (errno == EINTR || errno == ENOBUFS)) continue;
        if (count <= 0) return found;
        auto left = int(count);
        for (auto *message = reinterpret_cast<nlmsghdr *>(buffer.data()); NLMSG_OK(message, left);
             message = NLMSG_NEXT(message, left))
            found = isNewDefaultRoute(message) || found;
    }
}

} // namespace

class NetworkWatch::Watcher : public QObject {
public:
    Watcher(std::function<void()> regained, int quietMilliseconds, Source source) : _regained(std::move(regained)) {
        _quiet.setSingleShot(true);
        _quiet.setInterval(quietMilliseconds);
        connect(&_quiet, &QTimer::timeout, this, [this] { _settle(); });
        if (source == Source::KernelRoutes || !_followNetworkService()) _followRoutes();
        _wasCutOff = !_hasWayOut();
    }

private:
    bool _followNetworkService() {
        if (!QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) return false;
        _service = QNetworkInformation::instance();
        connect(_service, &QNetworkInformation::reachabilityChanged, this, [this] { _changed(false); });
        return true;
    }

    void _followRoutes() {
        _socket = routeSocket();
        if (!_socket) return NSLog("Changes of the network cannot be followed: %@", qt_error_string());
        _notifier = std::make_unique<QSocketNotifier>(_socket.get(), QSocketNotifier::Read);
        connect(_notifier.get(), &QSocketNotifier::activated, this,
                [this] { _changed(readRouteMessages(_socket.get())); });
    }

    bool _hasWayOut() const {
        using Reachability = QNetworkInformation::Reachability;
        const auto reachability = _service ? _service->reachability() : Reachability::Unknown;
        if (reachability == Reachability::Unknown) return NetworkRoute::hasDefaultRoute();
        return reachability == Reachability::Online || reachability == Reachability::Site;
    }

    // A way out that came back between two looks counts as well.
    void _changed(bool gained) {
        _wasCutOff = _wasCutOff || gained || !_hasWayOut();
        _quiet.start();
    }

    void _settle() {
        if (!_wasCutOff || !_hasWayOut()) return;
        _wasCutOff = false;
        _regained();
    }

    std::function<void()> _regained;
    QTimer _quiet;
    QNetworkInformation *_service = nullptr; // belongs to Qt
    FileDescriptor _socket;
    std::unique_ptr<QSocketNotifier> _notifier;
    bool _wasCutOff = false;
};

NetworkWatch::NetworkWatch(std::function<void()> regained, int quietMilliseconds, Source source)
    : _watcher(std::make_unique<Watcher>(std::move(regained), quietMilliseconds, source)) {}

NetworkWatch::~NetworkWatch() = default;

} // namespace korvane
