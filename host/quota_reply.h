// The reply of the account quota service: a JSON object of byte counts,
// {"retCode":0,"used":N,"total":N,"backup":N,"drive":N,"photos":N,...}.
#pragma once

#include <string>

#include "platform/user_space.h"

namespace host {

// Fills `info` from a reply and returns true, or returns false and leaves
// `info` alone for a reply that is not such an object: not JSON, nested too
// deep, a result code other than 0, or "used" or "total" missing or not a
// byte count. A group the service leaves out is 0. Never throws.
bool ParseQuotaReply(const std::string& body, NS::Drive::UserSpaceInfo& info);

} // namespace host
