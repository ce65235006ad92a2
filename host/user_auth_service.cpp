// The session of the stand-alone host comes from its configuration file.
#include "platform/user_auth_service.h"

#include "foundation/utilities.h"
#include "host/host_config.h"

namespace {

std::wstring Wide(const std::string& text)
{
    std::wstring wide;
    NarrowToWide(text, wide, kCodePageUtf8);
    return wide;
}

} // namespace

UserAuthService* UserAuthService::GetInstance()
{
    static UserAuthService instance;
    return &instance;
}

std::wstring UserAuthService::GetCurrentAT() const
{
    return Wide(host::CurrentHostConfig().session.accessToken);
}

std::wstring UserAuthService::GetCurrentUserID() const
{
    return Wide(host::CurrentHostConfig().session.userId);
}

std::wstring UserAuthService::GetCurrentCountryCode() const
{
    return Wide(host::CurrentHostConfig().session.country);
}
