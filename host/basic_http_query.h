#pragma once

#include <string>

#include "platform/any_basic_http_lib_strategy.h"

namespace host {

// Performs the strategy's request; returns the status. Throws when no reply
// arrived.
int PerformBasicQuery(const AnyBasicHttpLibStrategy& strategy, std::string& response);

} // namespace host
