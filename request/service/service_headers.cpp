#include "request/service/service_headers.h"

#include "foundation/utilities.h"
#include "platform/user_auth_service.h"
#include "request/pc_http_request.h"

namespace service_headers {

std::string CurrentToken()
{
    return WideToUtf8(UserAuthService::GetInstance()->GetCurrentAT());
}

std::string BearerToken()
{
    return "Bearer " + CurrentToken();
}

std::string AuthTypeValue()
{
    const std::string appId(kClientApplicationId);
    return Base64Encode(appId.data(), static_cast<int>(appId.size()));
}

} // namespace service_headers
