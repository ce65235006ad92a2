// What the host configuration says about HTTPS and timeouts, read at the
// moment a request is sent so that a reloaded configuration takes effect.
#pragma once

#include <string>

namespace host {

struct TransportSettings
{
    // A CA bundle to verify peers with instead of the system's; empty keeps
    // the system's store.
    std::string caFile;
    // When above 0, replaces the timeout that the request layer asks for.
    int timeoutSecondsOverride = 0;
};

TransportSettings CurrentTransportSettings();

} // namespace host
