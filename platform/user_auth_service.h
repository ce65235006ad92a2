// The host's session service: who is signed in and with which access token.
// Every value may be empty when nobody is signed in. The token must never be
// written to a log or an error text.
#pragma once

#include <string>

class UserAuthService
{
public:
    static UserAuthService* GetInstance();

    std::wstring GetCurrentAT() const;
    std::wstring GetCurrentUserID() const;
    std::wstring GetCurrentCountryCode() const;

private:
    UserAuthService() = default;
};
