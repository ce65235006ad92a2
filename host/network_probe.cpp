#include "host/network_probe.h"

#include <system_error>

#include "host/network_states.h"

namespace host {

std::shared_ptr<const toolkit_win32::NetworkProbe> MakeNetworkProbe(const HostConfig& config)
{
    const std::string& mode = config.networkMode;
    if (mode == "online") {
        return std::make_shared<FixedNetworkState>(kOnline);
    }
    if (mode == "offline") {
        return std::make_shared<FixedNetworkState>(kOffline);
    }
    try {
        if (mode == "file") {
            return std::make_shared<FileNetworkState>(config.networkFile);
        }
        return std::make_shared<SystemNetworkState>();
    } catch (const std::system_error& error) {
        throw NetworkWatchError("cannot follow the network state for \"network.mode\" \"" + mode + "\" (" +
                                error.what() + "); \"online\" or \"offline\" need nothing");
    }
}

ScopedNetworkProbe::ScopedNetworkProbe(const HostConfig& config)
    : previous_(toolkit_win32::SetNetworkProbe(MakeNetworkProbe(config)))
{
}

ScopedNetworkProbe::~ScopedNetworkProbe()
{
    toolkit_win32::SetNetworkProbe(std::move(previous_));
}

} // namespace host
