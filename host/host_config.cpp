// Reading and checking the host configuration file, and the configuration
// in force. Every refusal names the file and, where there is one, the key.
#include "host/host_config.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <mutex>
#include <sstream>
#include <system_error>

#include <json/value.h>

#include "foundation/utilities.h"
#include "host/http_url.h"

namespace host {

namespace {

namespace fs = std::filesystem;

std::string Quoted(const std::string& key)
{
    return "\"" + key + "\"";
}

// Checks one object against the keys it may hold; `prefix` is the dotted
// path of the object ("" at the top).
class ObjectReader
{
public:
    ObjectReader(const std::string& file, const Json::Value& object, std::string prefix)
        : file_(file), object_(object), prefix_(std::move(prefix))
    {
    }

    void RejectUnknown(std::initializer_list<const char*> known) const
    {
        for (const std::string& name : object_.getMemberNames()) {
            bool isKnown = false;
            for (const char* k : known) {
                isKnown = isKnown || name == k;
            }
            if (!isKnown) {
                Fail(KeyOf(name), "is not a known key");
            }
        }
    }

    void String(const char* name, std::string& out) const
    {
        if (const Json::Value* value = Find(name)) {
            if (!value->isString()) {
                Fail(KeyOf(name), "must be a string");
            }
            out = value->asString();
        }
    }

    void String(const char* name, std::optional<std::string>& out) const
    {
        std::string text;
        if (Find(name) != nullptr) {
            String(name, text);
            out = text;
        }
    }

    // A service address: empty (the service is not configured) or an
    // absolute http:// or https:// URL. The transport speaks nothing else,
    // and a typo is better refused here than sent to some other protocol.
    void Url(const char* name, std::string& out) const
    {
        String(name, out);
        if (!out.empty() && !IsAbsoluteHttpUrl(out)) {
            Fail(KeyOf(name), "must be an absolute http:// or https:// URL");
        }
    }

    void Bool(const char* name, bool& out) const
    {
        if (const Json::Value* value = Find(name)) {
            if (!value->isBool()) {
                Fail(KeyOf(name), "must be a boolean");
            }
            out = value->asBool();
        }
    }

    void Int(const char* name, std::optional<int>& out) const
    {
        if (const Json::Value* value = Find(name)) {
            if ((value->type() != Json::intValue && value->type() != Json::uintValue) || !value->isInt()) {
                Fail(KeyOf(name), "must be an integer");
            }
            out = value->asInt();
        }
    }

    // Calls `read` with a reader for the nested object, if present.
    void Object(const char* name, const std::function<void(const ObjectReader&)>& read) const
    {
        if (const Json::Value* value = Find(name)) {
            if (!value->isObject()) {
                Fail(KeyOf(name), "must be an object");
            }
            read(ObjectReader(file_, *value, KeyOf(name)));
        }
    }

    // Calls `read` for each element of the nested array of objects, if present.
    void ArrayOfObjects(const char* name, const std::function<void(const ObjectReader&)>& read) const
    {
        if (const Json::Value* value = Find(name)) {
            if (!value->isArray()) {
                Fail(KeyOf(name), "must be an array");
            }
            for (Json::ArrayIndex i = 0; i < value->size(); ++i) {
                const std::string elementKey = KeyOf(name) + "[" + std::to_string(i) + "]";
                if (!(*value)[i].isObject()) {
                    Fail(elementKey, "must be an object");
                }
                read(ObjectReader(file_, (*value)[i], elementKey));
            }
        }
    }

    [[noreturn]] void Fail(const std::string& key, const std::string& what) const
    {
        throw ConfigError(file_ + ": " + Quoted(key) + " " + what);
    }

    std::string KeyOf(const std::string& name) const { return prefix_.empty() ? name : prefix_ + "." + name; }

private:
    const Json::Value* Find(const char* name) const { return object_.find(name, name + std::strlen(name)); }

    const std::string& file_;
    const Json::Value& object_;
    std::string prefix_;
};

void ReadServices(const ObjectReader& services, ServiceUrls& urls)
{
    services.RejectUnknown({"nsp", "basic", "portal", "cloudPhoto", "cbs", "pimds", "familyShare",
                            "cloudSyncDrive", "accountQuota", "omConfig"});
    services.Url("nsp", urls.nsp);
    services.Url("basic", urls.basic);
    services.Url("portal", urls.portal);
    services.Url("cloudPhoto", urls.cloudPhoto);
    services.Url("cbs", urls.cbs);
    services.Url("pimds", urls.pimds);
    services.Url("familyShare", urls.familyShare);
    services.Url("cloudSyncDrive", urls.cloudSyncDrive);
    services.Url("accountQuota", urls.accountQuota);
    services.Url("omConfig", urls.omConfig);
}

void ReadBackup(const ObjectReader& backup, HostConfig& config)
{
    backup.RejectUnknown({"generation", "devices"});
    backup.String("generation", config.backupGeneration);
    backup.ArrayOfObjects("devices", [&](const ObjectReader& device) {
        device.RejectUnknown({"deviceId", "deviceName"});
        BackupDevice entry;
        device.String("deviceId", entry.deviceId);
        device.String("deviceName", entry.deviceName);
        config.backupDevices.push_back(entry);
    });
}

void ReadNetwork(const ObjectReader& network, HostConfig& config)
{
    network.RejectUnknown({"mode", "file"});
    network.String("mode", config.networkMode);
    const std::string& mode = config.networkMode;
    if (mode != "system" && mode != "online" && mode != "offline" && mode != "file") {
        network.Fail(network.KeyOf("mode"), "must be one of \"system\", \"online\", \"offline\", \"file\"");
    }
    network.String("file", config.networkFile);
    if (mode == "file" && config.networkFile.empty()) {
        network.Fail(network.KeyOf("file"), "must name a file when \"network.mode\" is \"file\"");
    }
}

// jsoncpp reports "* Line 3, Column 5\n  Missing ',' or '}' in object
// declaration\n..."; the first error, on one line, is enough.
std::string FirstParseError(const std::string& errors)
{
    std::istringstream lines(errors);
    std::string position;
    std::string message;
    std::getline(lines, position);
    std::getline(lines, message);
    const auto trim = [](std::string text) {
        const size_t begin = text.find_first_not_of(" *\t");
        const size_t end = text.find_last_not_of(" \t\r");
        return begin == std::string::npos ? std::string() : text.substr(begin, end - begin + 1);
    };
    position = trim(position);
    message = trim(message);
    if (message.empty()) {
        return position;
    }
    return position + ": " + message;
}

std::string ResolveAgainst(const fs::path& folder, const std::string& path)
{
    if (path.empty()) {
        return path;
    }
    const fs::path p(path);
    return p.is_absolute() ? path : (folder / p).lexically_normal().string();
}

std::string EnvOrEmpty(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

std::string DefaultDataDir()
{
    std::string base = EnvOrEmpty("XDG_DATA_HOME");
    if (base.empty()) {
        base = EnvOrEmpty("HOME") + "/.local/share";
    }
    return base + "/spacemgm";
}

} // namespace

HostConfig DefaultHostConfig()
{
    HostConfig config;
    config.dataDir = DefaultDataDir();
    config.logDir = config.dataDir + "/log";
    return config;
}

HostConfig LoadHostConfigFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::error_code ec;
    if (!in || fs::is_directory(path, ec)) {
        throw ConfigError(path + ": cannot be read");
    }
    std::ostringstream content;
    content << in.rdbuf();
    if (in.bad()) {
        throw ConfigError(path + ": cannot be read");
    }
    return ParseHostConfigText(path, content.str());
}

HostConfig ParseHostConfigText(const std::string& path, const std::string& text)
{
    JsonParseOptions options;
    options.rejectDuplicateKeys = true;
    options.collectComments = false;
    Json::Value root;
    std::string errors;
    if (!ParseJson(text, root, options, &errors)) {
        throw ConfigError(path + ": is not JSON: " + FirstParseError(errors));
    }
    if (!root.isObject()) {
        throw ConfigError(path + ": the top level must be an object");
    }

    HostConfig config;
    config.sourcePath = path;
    std::optional<std::string> dataDir, logDir;
    const ObjectReader top(path, root, "");
    top.RejectUnknown({"services", "session", "language", "replaceCommaCountry", "deviceModel", "deviceUuid",
                       "backup", "network", "dataDir", "logDir", "caFile", "timeoutSeconds"});
    top.Object("services", [&](const ObjectReader& services) { ReadServices(services, config.services); });
    top.Object("session", [&](const ObjectReader& session) {
        session.RejectUnknown({"accessToken", "userId", "country"});
        session.String("accessToken", config.session.accessToken);
        session.String("userId", config.session.userId);
        session.String("country", config.session.country);
    });
    top.String("language", config.language);
    top.Bool("replaceCommaCountry", config.replaceCommaCountry);
    top.String("deviceModel", config.deviceModel);
    top.String("deviceUuid", config.deviceUuid);
    top.Object("backup", [&](const ObjectReader& backup) { ReadBackup(backup, config); });
    top.Object("network", [&](const ObjectReader& network) { ReadNetwork(network, config); });
    top.String("dataDir", dataDir);
    top.String("logDir", logDir);
    top.String("caFile", config.caFile);
    top.Int("timeoutSeconds", config.timeoutSeconds);
    if (config.timeoutSeconds && *config.timeoutSeconds < 0) {
        top.Fail("timeoutSeconds", "must not be negative");
    }

    std::error_code ec;
    const fs::path folder =
        fs::path(path).parent_path().empty() ? fs::path(".") : fs::path(path).parent_path();
    const fs::path absoluteFolder = fs::absolute(folder, ec).lexically_normal();
    config.dataDir = dataDir ? ResolveAgainst(absoluteFolder, *dataDir) : DefaultDataDir();
    config.logDir = logDir ? ResolveAgainst(absoluteFolder, *logDir) : config.dataDir + "/log";
    config.networkFile = ResolveAgainst(absoluteFolder, config.networkFile);
    if (config.caFile) {
        config.caFile = ResolveAgainst(absoluteFolder, *config.caFile);
    }
    return config;
}

std::optional<std::string> ResolveHostConfigPath(const std::optional<std::string>& cliPath)
{
    if (cliPath) {
        return cliPath;
    }
    const std::string fromEnvironment = EnvOrEmpty("SPACEMGM_CONFIG");
    if (!fromEnvironment.empty()) {
        return fromEnvironment;
    }
    std::string configHome = EnvOrEmpty("XDG_CONFIG_HOME");
    if (configHome.empty()) {
        const std::string home = EnvOrEmpty("HOME");
        if (home.empty()) {
            return std::nullopt;
        }
        configHome = home + "/.config";
    }
    const std::string candidate = configHome + "/spacemgm/spacemgm.json";
    std::error_code ec;
    if (fs::exists(candidate, ec)) {
        return candidate;
    }
    return std::nullopt;
}

namespace {

// Every configuration ever set is kept, so that a reference handed out by
// CurrentHostConfig stays valid while a later set replaces it. Sets happen
// at start-up and in tests only.
std::mutex configsMutex;
std::vector<std::unique_ptr<const HostConfig>> configs;
std::atomic<const HostConfig*> current{nullptr};

} // namespace

const HostConfig& CurrentHostConfig()
{
    if (const HostConfig* config = current.load(std::memory_order_acquire)) {
        return *config;
    }
    std::lock_guard<std::mutex> lock(configsMutex);
    if (const HostConfig* config = current.load(std::memory_order_acquire)) {
        return *config;
    }
    configs.push_back(std::make_unique<const HostConfig>(DefaultHostConfig()));
    current.store(configs.back().get(), std::memory_order_release);
    return *configs.back();
}

void SetCurrentHostConfig(HostConfig config)
{
    std::lock_guard<std::mutex> lock(configsMutex);
    configs.push_back(std::make_unique<const HostConfig>(std::move(config)));
    current.store(configs.back().get(), std::memory_order_release);
}

} // namespace host
