// The failed exchanges as the main job reports them, one line each:
//   family share: /user/v1/quota/drive: timed out after 100 s
//   account quota: HTTP 401
//   TLS: certificate not trusted (caFile /home/a/ca.pem)
#pragma once

#include <string>
#include <vector>

#include "app/exchange_log.h"

namespace app {

// The service's name in words ("family share"); the key itself for one this
// program does not know.
std::string ServiceDisplayName(const std::string& serviceKey);

std::string FailureLine(const FailedExchange& failure);

// One line per failure, in order, each line once: a TLS failure, for one,
// usually hits every exchange of a load in the same way.
std::vector<std::string> FailureLines(const std::vector<FailedExchange>& failures);

} // namespace app
