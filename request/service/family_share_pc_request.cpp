#include "request/service/family_share_pc_request.h"

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"
#include "request/service/service_headers.h"

void AddFamilyShareHeaders(PCHttpRequest& request)
{
    for (const auto& [name, value] : GetCommonHeaders()) {
        request.requestHeaders.emplace(name, value);
    }
    request.requestHeaders["Authorization"] = service_headers::BearerToken();
    request.requestHeaders["x-zp-trace-id"] = request.traceId;
    request.requestHeaders["Content-Type"] = "application/json";
    request.requestHeaders["version"] = "1122300";
    request.requestHeaders["x-zp-app-version"] = "1122300";
}

FamilySharePCRequest::FamilySharePCRequest()
    : PCHttpRequest(WideToUtf8(GlobalParamWrapper::GetInstance()->GetFamilyShareUrl()))
{
}

void FamilySharePCRequest::AddHeaders()
{
    AddFamilyShareHeaders(*this);
}

PimDataVersionPCRequest::PimDataVersionPCRequest()
    : PCHttpRequest(WideToUtf8(GlobalParamWrapper::GetInstance()->GetCloudSyncDriveUrl()))
{
}

void PimDataVersionPCRequest::AddHeaders()
{
    AddFamilyShareHeaders(*this);
}
