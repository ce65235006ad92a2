#include "request/service/cloud_backup_request.h"

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"

CloudBackUpRequest::CloudBackUpRequest()
    : PCHttpRequest(WideToUtf8(GlobalParamWrapper::GetInstance()->GetCBSUrl()))
{
}

void CloudBackUpRequest::AddHeaders()
{
    PCHttpRequest::AddHeaders();
    requestHeaders["Authorization"] = BuildAuthorization(std::string());
    requestHeaders["x-zp-trace-id"] = traceId;
    requestHeaders["Content-Type"] = "application/json";
    requestHeaders["version"] = "1122300";
    requestHeaders["x-zp-app-version"] = "1122300";
    requestHeaders["x-zp-backup-version"] = "1";
    // Backups are never encrypted in transit by this client, whatever the country.
    requestHeaders["encversion"] = "0";
}
