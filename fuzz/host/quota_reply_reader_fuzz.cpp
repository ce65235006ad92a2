// Feeds arbitrary reply text to the host's account quota reader. It must
// never throw, and a refused reply must leave the caller's values alone.
#include <cstddef>
#include <cstdint>
#include <string>

#include "host/quota_reply.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string body(reinterpret_cast<const char*>(data), size);
    NS::Drive::UserSpaceInfo info;
    info.used = 3;
    info.family = 11;
    if (!host::ParseQuotaReply(body, info) && (info.used != 3 || info.family != 11)) {
        __builtin_trap();
    }
    return 0;
}
