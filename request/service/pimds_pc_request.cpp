#include "request/service/pimds_pc_request.h"

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"

PIMDSPCRequest::PIMDSPCRequest() : PCHttpRequest(WideToUtf8(GlobalParamWrapper::GetInstance()->GetPIMDSUrl()))
{
}

void PIMDSPCRequest::AddHeaders()
{
    PCHttpRequest::AddHeaders();
    requestHeaders["Authorization"] = BuildAuthorization(std::string());
    requestHeaders["x-zp-trace-id"] = traceId;
    requestHeaders["Content-Type"] = "application/json";
    requestHeaders["version"] = "11.2.4.301";
    // Only the mainland service reads unencrypted statistics. The comparison
    // is exact: "cn" or an empty country count as abroad.
    requestHeaders["encversion"] = GlobalParamWrapper::GetInstance()->GetCountryCode() == L"CN" ? "0" : "1";
}
