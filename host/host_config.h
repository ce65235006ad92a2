// The stand-alone host's configuration: one JSON file (docs/host-config.md
// lists its keys), read once at start-up and readable from any thread.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace host {

struct ServiceUrls
{
    std::string nsp, basic, portal, cloudPhoto, cbs, pimds, familyShare, cloudSyncDrive, accountQuota,
        omConfig;
};

struct Session
{
    std::string accessToken, userId, country;
};

struct BackupDevice
{
    std::string deviceId, deviceName;
};

struct HostConfig
{
    std::string sourcePath; // file it was read from; empty for defaults
    ServiceUrls services;
    Session session;
    std::string language = "en-US";
    bool replaceCommaCountry = false;
    std::optional<std::string> deviceModel, deviceUuid;
    std::string backupGeneration = "v1";
    std::vector<BackupDevice> backupDevices;
    std::string networkMode = "system"; // "system", "online", "offline" or "file"
    std::string networkFile;
    std::string dataDir, logDir;
    std::optional<std::string> caFile;
    std::optional<int> timeoutSeconds;
};

// A configuration file that cannot be used. The message names the file and,
// where there is one, the offending key: `<path>: "services.nsp" must be a string`.
class ConfigError : public std::runtime_error
{
public:
    using runtime_error::runtime_error;
};

// Reads and checks one file; throws ConfigError. Relative paths in it are
// taken relative to the file's folder.
HostConfig LoadHostConfigFile(const std::string& path);

// The same for a text already read; `path` names it in messages and anchors
// its relative paths.
HostConfig ParseHostConfigText(const std::string& path, const std::string& text);

// The file to read: `--config FILE`, else $SPACEMGM_CONFIG, else
// $XDG_CONFIG_HOME/spacemgm/spacemgm.json (~/.config when unset) if it
// exists; nullopt when none applies.
std::optional<std::string> ResolveHostConfigPath(const std::optional<std::string>& cliPath);

// The configuration without a file: data in $XDG_DATA_HOME/spacemgm
// (~/.local/share when unset), logs in its "log" folder.
HostConfig DefaultHostConfig();

// The configuration in force; the defaults until one is set. The reference
// stays valid for the life of the process, also across later sets.
const HostConfig& CurrentHostConfig();
void SetCurrentHostConfig(HostConfig config);

} // namespace host
