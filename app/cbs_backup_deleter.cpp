#include "app/cbs_backup_deleter.h"

#include "foundation/request_catalogue.h"
#include "request/run_request.h"

namespace app {

std::string DeleteDeviceBackup(const std::string& deviceId)
{
    auto request = MakeBackUpDeleteRequest();
    request->deviceId = deviceId;
    const auto reply = RunRequest<BaseRsp>(&kCbsType1, request);
    if (!reply) {
        return "no reply";
    }
    return reply->result == 0 ? std::string("success") : "result " + std::to_string(reply->result);
}

} // namespace app
