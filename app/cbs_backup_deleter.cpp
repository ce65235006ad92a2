#include "app/cbs_backup_deleter.h"

#include <memory>

#include "foundation/request_catalogue.h"
#include "foundation/utilities.h"
#include "host/host_config.h"
#include "platform/user_auth_service.h"
#include "request/postable_string.h"
#include "request/run_request.h"

namespace app {
namespace {

bool HostListsDevice(const std::string& deviceId)
{
    for (const host::BackupDevice& device : host::CurrentHostConfig().backupDevices) {
        if (device.deviceId == deviceId) {
            return true;
        }
    }
    return false;
}

// Asks the service, the way the version 3 backup rows are asked for,
// whether it holds any bytes of this device's backups. The removal command
// acknowledges an id it does not know as readily as one it does, so this
// is how a device unknown to the service is told apart.
bool ServiceHoldsBackupOf(const std::string& deviceId)
{
    const std::string token = WideToUtf8(UserAuthService::GetInstance()->GetCurrentAT());
    const auto reply = RunRequest<GetQuotaUsedInfoResponseBk>(
        &kFamilyShareType0,
        std::make_shared<PostableString>(ToFormText(MakeDeviceQuotaQuery(token, "[" + deviceId + "]"))));
    if (!reply || reply->retCode != 0) {
        return false;
    }
    for (const QuotaDetailBk& detail : reply->quotaDetails) {
        if (detail.deviceId == deviceId && detail.assetsQuotadSpace > 0) {
            return true;
        }
    }
    return false;
}

} // namespace

std::string DeleteDeviceBackup(const std::string& deviceId)
{
    if (deviceId.empty() || !HostListsDevice(deviceId)) {
        return "unknown device";
    }
    if (!ServiceHoldsBackupOf(deviceId)) {
        return "no backup on the service";
    }
    auto request = MakeBackUpDeleteRequest();
    request->deviceId = deviceId;
    const auto reply = RunRequest<BaseRsp>(&kCbsType1, request);
    if (!reply) {
        return "no reply";
    }
    return reply->result == 0 ? std::string("success") : "result " + std::to_string(reply->result);
}

} // namespace app
