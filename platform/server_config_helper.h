// The host's router service: the address of a cloud service by its name.
// The module's requests take their addresses from GlobalParamWrapper; this
// lookup exists for the host and for static address tables.
#pragma once

#include <string>

class ServerConfigHelper
{
public:
    // The base URL configured for `serviceName` ("nsp", "basic", "portal",
    // "cloudPhoto", "cbs", "pimds", "familyShare", "cloudSyncDrive"), or an
    // empty string when the name is unknown or not configured.
    static std::wstring GetServerAddress(const std::wstring& serviceName);
};
