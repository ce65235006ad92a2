// The "system" network mode: the kernel's state, read again after each burst
// of rtnetlink notifications.

#include <linux/rtnetlink.h>
#include <sys/socket.h>

#include <cerrno>
#include <system_error>

#include "host/network_states.h"

namespace host {
namespace {

constexpr int kRetryAfterFailureMs = 100;

FileDescriptor SubscribeToNetworkChanges()
{
    FileDescriptor socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE));
    if (!socket) {
        throw std::system_error(errno, std::generic_category(), "netlink socket");
    }
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups =
        RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR | RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE;
    if (::bind(socket.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        throw std::system_error(errno, std::generic_category(), "netlink bind");
    }
    return socket;
}

// Reads every notification queued; what they say does not matter, since the
// state is read afresh afterwards.
void DrainNotifications(int socket)
{
    char buffer[8192];
    for (;;) {
        const ssize_t length = ::recv(socket, buffer, sizeof buffer, 0);
        // ENOBUFS: notifications were lost; the fresh read covers them too.
        if (length == 0 || (length < 0 && errno != ENOBUFS && errno != EINTR)) {
            return;
        }
    }
}

} // namespace

SystemNetworkState::SystemNetworkState() : notifications_(SubscribeToNetworkChanges())
{
    // Subscribed first, then read, so that a change in between is not lost.
    if (!ReadState()) {
        throw std::system_error(errno, std::generic_category(), "reading the network state");
    }
    thread_ = std::make_unique<PollThread>(
        notifications_.Get(), [this](bool readable) { return Step(readable); }, -1);
}

bool SystemNetworkState::ReadState()
{
    try {
        const bool onNetwork = HasRunningInterfaceWithAddress();
        const bool route = HasDefaultRoute();
        state_ = (onNetwork ? kOnNetwork : kOffline) | (route ? kInternetRoute : kOffline);
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

int SystemNetworkState::Step(bool readable)
{
    if (readable) {
        DrainNotifications(notifications_.Get());
    }
    return ReadState() ? -1 : kRetryAfterFailureMs;
}

} // namespace host
