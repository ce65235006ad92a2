// The host's answer to the network probe (IsNetworkAlive and
// InternetGetConnectedState), chosen by the configuration's "network.mode":
//
//   "system"  the kernel's state: on a network while an interface other than
//             loopback is up and running with an address; a way to the
//             internet while the main routing table has a default route
//             (IPv4 or IPv6). A host thread follows kernel notifications;
//             a probe only reads what it last saw.
//   "online"  both calls succeed; "offline": both fail.
//   "file"    the word in "network.file" (docs/host-config.md), followed with
//             inotify: a probe reads the file again only after it changed.
#pragma once

#include <memory>
#include <stdexcept>

#include "host/host_config.h"
#include "toolkit/win32/network_probe.h"

namespace host {

// The network state cannot be followed (no netlink or inotify here). The
// message says what failed and that "network.mode" can avoid it.
class NetworkWatchError : public std::runtime_error
{
public:
    using runtime_error::runtime_error;
};

// The probe for `config`, not installed. Throws NetworkWatchError.
std::shared_ptr<const toolkit_win32::NetworkProbe> MakeNetworkProbe(const HostConfig& config);

// Installs the probe for `config` while it exists, then puts back the one
// it replaced. Throws NetworkWatchError.
class ScopedNetworkProbe
{
public:
    explicit ScopedNetworkProbe(const HostConfig& config);
    ~ScopedNetworkProbe();
    ScopedNetworkProbe(const ScopedNetworkProbe&) = delete;
    ScopedNetworkProbe& operator=(const ScopedNetworkProbe&) = delete;

private:
    std::shared_ptr<const toolkit_win32::NetworkProbe> previous_;
};

} // namespace host
