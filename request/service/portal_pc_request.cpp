#include "request/service/portal_pc_request.h"

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"
#include "request/service/service_headers.h"

const std::string& PortalCookieText()
{
    static const std::string cookie;
    return cookie;
}

PortalPCRequest::PortalPCRequest()
    : PCHttpRequest(WideToUtf8(GlobalParamWrapper::GetInstance()->GetPortalUrl()))
{
}

void PortalPCRequest::AddHeaders()
{
    PCHttpRequest::AddHeaders();
    requestHeaders["Authorization"] = UrlEncode(service_headers::CurrentToken());
    requestHeaders["x-zp-trace-id"] = traceId;
    requestHeaders["Content-Type"] = "application/json";

    // requestType holds a copy of the row; the row is told by its id.
    const PortalInferfaceType* tokenByCode = FindEnumRow<PortalInferfaceType>(6);
    if (tokenByCode != nullptr && requestType == *tokenByCode) {
        requestHeaders["Cookie"] = PortalCookieText();
    }
}
