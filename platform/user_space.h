// The host's network service: the signed-in account's quota as the drive
// service reports it.
#pragma once

#include <cstdint>

namespace NS {
namespace Drive {

// All values are bytes. `reserved` is filled by the service and not read by
// the module.
struct UserSpaceInfo
{
    uint64_t used = 0;
    uint64_t reserved = 0;
    uint64_t total = 0;
    uint64_t backup = 0;
    uint64_t drive = 0;
    uint64_t photos = 0;
    uint64_t other = 0;
    uint64_t family = 0;
};

class UserSpace
{
public:
    // Fills `info` with the account's quota and reports whether the query
    // succeeded. `force` skips any cache the host might keep; the stand-alone
    // host keeps none and always asks. Never throws.
    static bool QueryUserSpace(UserSpaceInfo& info, bool force);
};

} // namespace Drive
} // namespace NS
