// The host's global parameter service: server base URLs, the country, the
// device UUID, the data folder and the decimal-comma rule. Every member is
// static, so both `GlobalParamWrapper::GetCountryCode()` and
// `GlobalParamWrapper::GetInstance()->GetCountryCode()` are valid calls.
#pragma once

#include <string>

class GlobalParamWrapper
{
public:
    static GlobalParamWrapper* GetInstance();

    static std::wstring GetSystemUUid();
    static std::wstring GetCountryCode();
    static std::wstring GetAppDataLocalPath();

    static std::wstring GetNspUrl();
    static std::wstring GetBasicUrl();
    static std::wstring GetPortalUrl();
    static std::wstring GetCloudPhotoUrl();
    static std::wstring GetCBSUrl();
    static std::wstring GetPIMDSUrl();
    static std::wstring GetFamilyShareUrl();
    static std::wstring GetCloudSyncDriveUrl();

    // True for countries that write sizes with a decimal comma.
    static bool IsReplaceCommaCountry();
    // The number text with its decimal point written as a comma.
    static std::wstring ReplaceComma(const std::wstring& number);
    static std::string ReplaceComma(const std::string& number);

private:
    GlobalParamWrapper() = default;
};
