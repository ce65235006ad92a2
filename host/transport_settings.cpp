#include "host/transport_settings.h"

#include "host/host_config.h"

namespace host {

TransportSettings CurrentTransportSettings()
{
    const HostConfig& config = CurrentHostConfig();
    TransportSettings settings;
    settings.caFile = config.caFile.value_or(std::string());
    settings.timeoutSecondsOverride = config.timeoutSeconds.value_or(0);
    return settings;
}

} // namespace host
