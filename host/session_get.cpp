#include "host/session_get.h"

#include "foundation/utilities.h"
#include "platform/any_basic_http_lib_context.h"
#include "platform/any_basic_http_lib_strategy.h"
#include "platform/user_auth_service.h"

namespace host {

int GetAsSignedInUser(const std::string& url, std::string& body)
{
    AnyBasicHttpLibStrategy strategy;
    strategy.SetUrl(url);
    strategy.SetHttpRequestMethod(0);
    strategy.SetLogFunction([](const std::string&) {});
    const UserAuthService* auth = UserAuthService::GetInstance();
    strategy.SetHeaders({{"Authorization", "Bearer " + WideToUtf8(auth->GetCurrentAT())},
                         {"uid", WideToUtf8(auth->GetCurrentUserID())}});
    AnyCurlHttpLibContext context(strategy);
    return context.Request(body);
}

} // namespace host
