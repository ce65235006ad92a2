#include "host_config_writer.h"

#include "emulator.h"
#include "state_file.h"
#include "wire_text.h"

namespace cloud {

bool WriteHostConfig(const std::string& path, const Emulator& emulator, const AccountData& account,
                     std::string& error)
{
    Json::Value config;
    for (const auto& profile : ServiceProfiles())
        config["services"][profile.name] = emulator.ServiceUrl(profile.name);
    config["session"]["accessToken"] = account.session.accessToken;
    config["session"]["userId"] = account.session.userId;
    config["session"]["country"] = account.session.country;
    if (!account.session.deviceUuid.empty())
        config["deviceUuid"] = account.session.deviceUuid;
    config["backup"]["generation"] = account.backupGeneration;
    config["backup"]["devices"] = Json::Value(Json::arrayValue);
    for (const auto& owner : account.backups) {
        Json::Value device;
        device["deviceId"] = owner.device.deviceId;
        device["deviceName"] = owner.device.devDisplayName;
        config["backup"]["devices"].append(device);
    }
    config["network"]["mode"] = "online";
    if (!emulator.CaFile().empty())
        config["caFile"] = emulator.CaFile();
    return WriteFileAtomically(path, WriteStyledJson(config), kOwnerOnly, error);
}

} // namespace cloud
