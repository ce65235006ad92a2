// The account quota of the stand-alone host: one GET to the address
// `services.accountQuota`, answered with a JSON object of byte counts.
#include "platform/user_space.h"

#include <string>

#include "host/exchange_observer.h"
#include "host/host_config.h"
#include "host/quota_reply.h"
#include "host/session_get.h"

namespace NS {
namespace Drive {

bool UserSpace::QueryUserSpace(UserSpaceInfo& info, bool /*force*/)
{
    const std::string url = host::CurrentHostConfig().services.accountQuota;
    if (url.empty()) {
        return false;
    }
    std::string body;
    if (host::GetAsSignedInUser(url, body) != 200) {
        return false;
    }
    if (!host::ParseQuotaReply(body, info)) {
        host::ReportRefusedReply("the reply is not a quota");
        return false;
    }
    return true;
}

} // namespace Drive
} // namespace NS
