// IsNetworkAlive and InternetGetConnectedState, answered by the installed
// probe.

#include "toolkit/win32/network_probe.h"

#include <atomic>

#include "platform/win32.h"

namespace toolkit_win32 {
namespace {

// The installed probe. std::atomic_load and std::atomic_store on a
// shared_ptr make a swap while another thread probes safe.
std::shared_ptr<const NetworkProbe>& InstalledProbe()
{
    static std::shared_ptr<const NetworkProbe>* probe = new std::shared_ptr<const NetworkProbe>;
    return *probe;
}

std::shared_ptr<const NetworkProbe> CurrentProbe()
{
    return std::atomic_load(&InstalledProbe());
}

} // namespace

std::shared_ptr<const NetworkProbe> SetNetworkProbe(std::shared_ptr<const NetworkProbe> probe)
{
    return std::atomic_exchange(&InstalledProbe(), std::move(probe));
}

} // namespace toolkit_win32

BOOL IsNetworkAlive(LPDWORD flags)
{
    const auto probe = toolkit_win32::CurrentProbe();
    const bool alive = probe && probe->OnNetwork();
    if (flags != nullptr) {
        *flags = alive ? NETWORK_ALIVE_LAN : 0;
    }
    return alive ? TRUE : FALSE;
}

BOOL InternetGetConnectedState(LPDWORD flags, DWORD /*reserved*/)
{
    const auto probe = toolkit_win32::CurrentProbe();
    const bool connected = probe && probe->HasInternetRoute();
    if (flags != nullptr) {
        *flags = connected ? (INTERNET_CONNECTION_LAN | INTERNET_CONNECTION_CONFIGURED)
                           : INTERNET_CONNECTION_OFFLINE;
    }
    return connected ? TRUE : FALSE;
}
