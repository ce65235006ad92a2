#pragma once
// The signed-in user's access token as UTF-8, read anew for every use so that
// a token the session refreshed meanwhile is the one sent.
#include <string>

#include "foundation/utilities.h"
#include "platform/user_auth_service.h"

inline std::string CurrentAccessTokenUtf8()
{
    return WideToUtf8(UserAuthService::GetInstance()->GetCurrentAT());
}
