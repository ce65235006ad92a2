// What the "system" network mode asks the kernel: interfaces through
// getifaddrs, the default route through an rtnetlink dump of the routes.

#include <ifaddrs.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/socket.h>

#include <cerrno>
#include <memory>
#include <system_error>
#include <vector>

#include "host/network_states.h"

namespace host {
namespace {

[[noreturn]] void ThrowErrno(const char* what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

// The table a route is in: the header's byte, or the attribute for tables
// past 255.
unsigned RouteTable(const nlmsghdr* message)
{
    const auto* route = static_cast<const rtmsg*>(NLMSG_DATA(message));
    unsigned table = route->rtm_table;
    int length = static_cast<int>(RTM_PAYLOAD(message));
    for (const rtattr* attribute = RTM_RTA(route); RTA_OK(attribute, length);
         attribute = RTA_NEXT(attribute, length)) {
        if (attribute->rta_type == RTA_TABLE) {
            table = *static_cast<const unsigned*>(RTA_DATA(attribute));
        }
    }
    return table;
}

bool IsDefaultRoute(const nlmsghdr* message)
{
    const auto* route = static_cast<const rtmsg*>(NLMSG_DATA(message));
    return (route->rtm_family == AF_INET || route->rtm_family == AF_INET6) && route->rtm_dst_len == 0 &&
           route->rtm_type == RTN_UNICAST && RouteTable(message) == RT_TABLE_MAIN;
}

void RequestRouteDump(int socket)
{
    struct
    {
        nlmsghdr header;
        rtmsg route;
    } request{};
    request.header.nlmsg_len = sizeof request;
    request.header.nlmsg_type = RTM_GETROUTE;
    request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
    request.header.nlmsg_seq = 1;
    request.route.rtm_family = AF_UNSPEC; // IPv4 and IPv6 in one dump
    sockaddr_nl kernel{};
    kernel.nl_family = AF_NETLINK;
    if (::sendto(socket, &request, sizeof request, 0, reinterpret_cast<const sockaddr*>(&kernel),
                 sizeof kernel) < 0) {
        ThrowErrno("netlink route request");
    }
}

} // namespace

bool HasRunningInterfaceWithAddress()
{
    ifaddrs* raw = nullptr;
    if (::getifaddrs(&raw) != 0) {
        ThrowErrno("getifaddrs");
    }
    const std::unique_ptr<ifaddrs, decltype(&::freeifaddrs)> list(raw, &::freeifaddrs);
    for (const ifaddrs* entry = list.get(); entry != nullptr; entry = entry->ifa_next) {
        const bool hasAddress = entry->ifa_addr != nullptr && (entry->ifa_addr->sa_family == AF_INET ||
                                                               entry->ifa_addr->sa_family == AF_INET6);
        const unsigned flags = entry->ifa_flags;
        if (hasAddress && (flags & IFF_LOOPBACK) == 0 && (flags & IFF_UP) != 0 &&
            (flags & IFF_RUNNING) != 0) {
            return true;
        }
    }
    return false;
}

bool HasDefaultRoute()
{
    const FileDescriptor socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE));
    if (!socket) {
        ThrowErrno("netlink socket");
    }
    RequestRouteDump(socket.Get());
    std::vector<char> buffer(1 << 16);
    bool found = false;
    for (;;) {
        const ssize_t received = ::recv(socket.Get(), buffer.data(), buffer.size(), 0);
        if (received < 0) {
            if (errno == EINTR) {
                continue;
            }
            ThrowErrno("netlink route dump");
        }
        auto length = static_cast<unsigned>(received);
        for (auto* message = reinterpret_cast<nlmsghdr*>(buffer.data()); NLMSG_OK(message, length);
             message = NLMSG_NEXT(message, length)) {
            if (message->nlmsg_type == NLMSG_DONE) {
                return found;
            }
            if (message->nlmsg_type == NLMSG_ERROR) {
                errno = -static_cast<const nlmsgerr*>(NLMSG_DATA(message))->error;
                ThrowErrno("netlink route dump");
            }
            found = found || (message->nlmsg_type == RTM_NEWROUTE && IsDefaultRoute(message));
        }
    }
}

} // namespace host
