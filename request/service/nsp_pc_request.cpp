#include "request/service/nsp_pc_request.h"

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"
#include "request/postable_string.h"

NSPPCRequest::NSPPCRequest() : PCHttpRequest(WideToUtf8(GlobalParamWrapper::GetInstance()->GetNspUrl())) {}

void NSPPCRequest::AddHeaders()
{
    PCHttpRequest::AddHeaders();
    requestHeaders["x-zp-trace-id"] = traceId;
    requestHeaders["Content-Type"] = "application/json";
}

void NSPPCRequest::AddConnectionOptions()
{
    requestHeaders["Keep-alive"] = "false";
    SetHttpVersion(2);
}

void NSPPCRequest::MarshalBody()
{
    PrepareBody();
    if (postData) {
        postData = std::make_shared<PostableString>(postData->ToFormString());
    }
}

std::string NSPPCRequest::GetInterfacePath(const AdvancedIntEnumType&)
{
    return std::string();
}
