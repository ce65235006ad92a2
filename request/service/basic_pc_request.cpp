#include "request/service/basic_pc_request.h"

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"

namespace {

bool IsBasicRow(const BasicType& type, int32_t rowId)
{
    const BasicType* row = FindEnumRow<BasicType>(rowId);
    return row != nullptr && type == *row;
}

} // namespace

BasicPCRequest::BasicPCRequest() : PCHttpRequest(WideToUtf8(GlobalParamWrapper::GetInstance()->GetBasicUrl()))
{
}

void BasicPCRequest::AddHeaders()
{
    PCHttpRequest::AddHeaders();
    requestHeaders["Authorization"] = BuildAuthorization(std::string());
    requestHeaders["x-zp-trace-id"] = "";
    requestHeaders["version"] = "";
    requestHeaders["x-zp-device-category"] = "pc";

    // The last operation record is always asked for in Chinese.
    if (IsBasicRow(basicType, 10207) && requestHeaders.count("Accept-Language") != 0) {
        requestHeaders["Accept-Language"] = "zh-CN";
    }
    if (IsBasicRow(basicType, 10209)) {
        requestHeaders["x-zp-active-method"] = "manual";
    }
}
