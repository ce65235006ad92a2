// The global parameter service of the stand-alone host: everything comes
// from the host configuration in force, the system UUID from the machine.
#include "platform/global_param_wrapper.h"

#include <fstream>

#include "foundation/utilities.h"
#include "host/host_config.h"

namespace {

std::wstring Wide(const std::string& text)
{
    std::wstring wide;
    NarrowToWide(text, wide, kCodePageUtf8);
    return wide;
}

std::string ReadMachineId()
{
    std::ifstream in("/etc/machine-id");
    std::string id;
    std::getline(in, id);
    return id;
}

} // namespace

GlobalParamWrapper* GlobalParamWrapper::GetInstance()
{
    static GlobalParamWrapper instance;
    return &instance;
}

std::wstring GlobalParamWrapper::GetSystemUUid()
{
    const auto& configured = host::CurrentHostConfig().deviceUuid;
    return Wide(configured ? *configured : ReadMachineId());
}

std::wstring GlobalParamWrapper::GetCountryCode()
{
    return Wide(host::CurrentHostConfig().session.country);
}

std::wstring GlobalParamWrapper::GetAppDataLocalPath()
{
    return Wide(host::CurrentHostConfig().dataDir);
}

std::wstring GlobalParamWrapper::GetNspUrl()
{
    return Wide(host::CurrentHostConfig().services.nsp);
}

std::wstring GlobalParamWrapper::GetBasicUrl()
{
    return Wide(host::CurrentHostConfig().services.basic);
}

std::wstring GlobalParamWrapper::GetPortalUrl()
{
    return Wide(host::CurrentHostConfig().services.portal);
}

std::wstring GlobalParamWrapper::GetCloudPhotoUrl()
{
    return Wide(host::CurrentHostConfig().services.cloudPhoto);
}

std::wstring GlobalParamWrapper::GetCBSUrl()
{
    return Wide(host::CurrentHostConfig().services.cbs);
}

std::wstring GlobalParamWrapper::GetPIMDSUrl()
{
    return Wide(host::CurrentHostConfig().services.pimds);
}

std::wstring GlobalParamWrapper::GetFamilyShareUrl()
{
    return Wide(host::CurrentHostConfig().services.familyShare);
}

std::wstring GlobalParamWrapper::GetCloudSyncDriveUrl()
{
    return Wide(host::CurrentHostConfig().services.cloudSyncDrive);
}

bool GlobalParamWrapper::IsReplaceCommaCountry()
{
    return host::CurrentHostConfig().replaceCommaCountry;
}

std::wstring GlobalParamWrapper::ReplaceComma(const std::wstring& number)
{
    std::wstring text = number;
    for (auto& c : text) {
        if (c == L'.') {
            c = L',';
        }
    }
    return text;
}

std::string GlobalParamWrapper::ReplaceComma(const std::string& number)
{
    std::string text = number;
    for (auto& c : text) {
        if (c == '.') {
            c = ',';
        }
    }
    return text;
}
