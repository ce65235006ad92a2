#include "platform/server_config_helper.h"

#include "foundation/utilities.h"
#include "host/host_config.h"

std::wstring ServerConfigHelper::GetServerAddress(const std::wstring& serviceName)
{
    const host::ServiceUrls& urls = host::CurrentHostConfig().services;
    const std::pair<const wchar_t*, const std::string*> known[] = {
        {L"nsp", &urls.nsp},
        {L"basic", &urls.basic},
        {L"portal", &urls.portal},
        {L"cloudPhoto", &urls.cloudPhoto},
        {L"cbs", &urls.cbs},
        {L"pimds", &urls.pimds},
        {L"familyShare", &urls.familyShare},
        {L"cloudSyncDrive", &urls.cloudSyncDrive},
    };
    for (const auto& [name, url] : known) {
        if (serviceName == name) {
            std::wstring wide;
            NarrowToWide(*url, wide, kCodePageUtf8);
            return wide;
        }
    }
    return std::wstring();
}
