// Whether a host configuration names any service: without one, every load
// would end empty and look like an empty account.
#pragma once

#include <optional>
#include <string>

#include "host/host_config.h"

namespace app {

// The one-line problem to report when `config` names no service, after
// "spacemgm: "; nothing when it names one.
std::optional<std::string> NoServiceProblem(const host::HostConfig& config);

} // namespace app
