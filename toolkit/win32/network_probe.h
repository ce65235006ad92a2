#pragma once

// Where IsNetworkAlive and InternetGetConnectedState get their answers on
// Linux: the host installs a probe (host/network_probe.h, following its
// configuration's "network.mode"); with none installed both calls fail.

#include <memory>

namespace toolkit_win32 {

class NetworkProbe
{
public:
    virtual ~NetworkProbe() = default;

    // Both are called on whatever thread probes, as often as every 10 ms, so
    // they must be thread-safe and only read state kept current elsewhere.
    // IsNetworkAlive: the machine is on a network.
    virtual bool OnNetwork() const = 0;
    // InternetGetConnectedState: the machine has a way to the internet.
    virtual bool HasInternetRoute() const = 0;
};

// Installs `probe` for the whole process (null removes it) and returns the one
// it replaces. A probe call that is running keeps its probe alive until it
// returns.
std::shared_ptr<const NetworkProbe> SetNetworkProbe(std::shared_ptr<const NetworkProbe> probe);

} // namespace toolkit_win32
