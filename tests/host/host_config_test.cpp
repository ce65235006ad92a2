#include <gtest/gtest.h>

#include <cstdlib>
#include <thread>

#include <json/value.h>

#include "host/host_config.h"
#include "utilities/temp_folder.h"

namespace {

// Sets or clears an environment variable for one test.
class EnvScope
{
public:
    EnvScope(const char* name, const char* value) : name_(name)
    {
        if (const char* old = std::getenv(name)) {
            old_ = old;
        }
        if (value != nullptr) {
            setenv(name, value, 1);
        } else {
            unsetenv(name);
        }
    }
    ~EnvScope()
    {
        if (old_) {
            setenv(name_, old_->c_str(), 1);
        } else {
            unsetenv(name_);
        }
    }

private:
    const char* name_;
    std::optional<std::string> old_;
};

std::string ErrorOf(const std::string& path)
{
    try {
        host::LoadHostConfigFile(path);
    } catch (const host::ConfigError& error) {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(HostConfig, DefaultsWithoutAFile)
{
    EnvScope data("XDG_DATA_HOME", "/srv/data-home");
    const host::HostConfig config = host::DefaultHostConfig();
    EXPECT_EQ(config.sourcePath, "");
    EXPECT_EQ(config.language, "en-US");
    EXPECT_FALSE(config.replaceCommaCountry);
    EXPECT_EQ(config.backupGeneration, "v1");
    EXPECT_EQ(config.networkMode, "system");
    EXPECT_EQ(config.dataDir, "/srv/data-home/spacemgm");
    EXPECT_EQ(config.logDir, "/srv/data-home/spacemgm/log");
    EXPECT_FALSE(config.deviceModel.has_value());
    EXPECT_FALSE(config.deviceUuid.has_value());
    EXPECT_FALSE(config.caFile.has_value());
    EXPECT_FALSE(config.timeoutSeconds.has_value());
    EXPECT_TRUE(config.backupDevices.empty());
}

TEST(HostConfig, DataFolderFallsBackToTheHomeFolder)
{
    EnvScope data("XDG_DATA_HOME", nullptr);
    EnvScope home("HOME", "/home/someone");
    EXPECT_EQ(host::DefaultHostConfig().dataDir, "/home/someone/.local/share/spacemgm");
}

TEST(HostConfig, EveryDocumentedKeyIsRead)
{
    TempFolder folder;
    const auto file = folder.Write("spacemgm.json", R"({
  "services": {
    "nsp": "http://127.0.0.1:1/nsp", "basic": "http://127.0.0.1:1/basic", "portal": "http://127.0.0.1:1/portal",
    "cloudPhoto": "http://127.0.0.1:1/photo", "cbs": "http://127.0.0.1:1/cbs", "pimds": "http://127.0.0.1:1/pimds",
    "familyShare": "http://127.0.0.1:1/family", "cloudSyncDrive": "http://127.0.0.1:1/drive",
    "accountQuota": "http://127.0.0.1:1/quota", "omConfig": "http://127.0.0.1:1/om"
  },
  "session": { "accessToken": "token-1", "userId": "10086", "country": "GB" },
  "language": "ru-RU",
  "replaceCommaCountry": true,
  "deviceModel": "Model X",
  "deviceUuid": "uuid-1",
  "backup": { "generation": "v3", "devices": [ { "deviceId": "d1", "deviceName": "Phone" },
                                               { "deviceId": "d2", "deviceName": "Tablet" } ] },
  "network": { "mode": "file", "file": "/run/net-up" },
  "dataDir": "/var/lib/sm",
  "logDir": "/var/log/sm",
  "caFile": "/etc/ca.pem",
  "timeoutSeconds": 7
})");
    const host::HostConfig c = host::LoadHostConfigFile(file.string());
    EXPECT_EQ(c.sourcePath, file.string());
    EXPECT_EQ(c.services.nsp, "http://127.0.0.1:1/nsp");
    EXPECT_EQ(c.services.basic, "http://127.0.0.1:1/basic");
    EXPECT_EQ(c.services.portal, "http://127.0.0.1:1/portal");
    EXPECT_EQ(c.services.cloudPhoto, "http://127.0.0.1:1/photo");
    EXPECT_EQ(c.services.cbs, "http://127.0.0.1:1/cbs");
    EXPECT_EQ(c.services.pimds, "http://127.0.0.1:1/pimds");
    EXPECT_EQ(c.services.familyShare, "http://127.0.0.1:1/family");
    EXPECT_EQ(c.services.cloudSyncDrive, "http://127.0.0.1:1/drive");
    EXPECT_EQ(c.services.accountQuota, "http://127.0.0.1:1/quota");
    EXPECT_EQ(c.services.omConfig, "http://127.0.0.1:1/om");
    EXPECT_EQ(c.session.accessToken, "token-1");
    EXPECT_EQ(c.session.userId, "10086");
    EXPECT_EQ(c.session.country, "GB");
    EXPECT_EQ(c.language, "ru-RU");
    EXPECT_TRUE(c.replaceCommaCountry);
    EXPECT_EQ(c.deviceModel, std::optional<std::string>("Model X"));
    EXPECT_EQ(c.deviceUuid, std::optional<std::string>("uuid-1"));
    EXPECT_EQ(c.backupGeneration, "v3");
    ASSERT_EQ(c.backupDevices.size(), 2u);
    EXPECT_EQ(c.backupDevices[0].deviceId, "d1");
    EXPECT_EQ(c.backupDevices[0].deviceName, "Phone");
    EXPECT_EQ(c.backupDevices[1].deviceId, "d2");
    EXPECT_EQ(c.backupDevices[1].deviceName, "Tablet");
    EXPECT_EQ(c.networkMode, "file");
    EXPECT_EQ(c.networkFile, "/run/net-up");
    EXPECT_EQ(c.dataDir, "/var/lib/sm");
    EXPECT_EQ(c.logDir, "/var/log/sm");
    EXPECT_EQ(c.caFile, std::optional<std::string>("/etc/ca.pem"));
    EXPECT_EQ(c.timeoutSeconds, std::optional<int>(7));
}

TEST(HostConfig, AbsentKeysKeepTheirDefaults)
{
    TempFolder folder;
    EnvScope data("XDG_DATA_HOME", "/srv/dh");
    const auto file = folder.Write("min.json", R"({"session": {"country": "DE"}})");
    const host::HostConfig c = host::LoadHostConfigFile(file.string());
    EXPECT_EQ(c.session.country, "DE");
    EXPECT_EQ(c.language, "en-US");
    EXPECT_EQ(c.dataDir, "/srv/dh/spacemgm");
    EXPECT_EQ(c.logDir, "/srv/dh/spacemgm/log");
    EXPECT_FALSE(c.deviceModel.has_value());
}

TEST(HostConfig, RelativePathsResolveAgainstTheFileFolder)
{
    TempFolder folder;
    const auto file = folder.Write("conf/spacemgm.json", R"({
  "dataDir": "data", "caFile": "../certs/ca.pem", "network": {"mode": "file", "file": "./up"}
})");
    const host::HostConfig c = host::LoadHostConfigFile(file.string());
    const std::string base = (folder.Path() / "conf").string();
    EXPECT_EQ(c.dataDir, base + "/data");
    EXPECT_EQ(c.logDir, base + "/data/log");
    EXPECT_EQ(c.caFile, std::optional<std::string>((folder.Path() / "certs" / "ca.pem").string()));
    EXPECT_EQ(c.networkFile, base + "/up");
}

TEST(HostConfig, UnreadableFileNamesTheFile)
{
    TempFolder folder;
    const std::string path = (folder.Path() / "absent.json").string();
    EXPECT_EQ(ErrorOf(path), path + ": cannot be read");
}

TEST(HostConfig, MalformedFileGivesJsoncppLine)
{
    TempFolder folder;
    const auto file = folder.Write("bad.json", "{\n  \"language\": \"en-US\"\n  \"logDir\": \"x\"\n}\n");
    EXPECT_EQ(ErrorOf(file.string()),
              file.string() + ": is not JSON: Line 3, Column 3: Missing ',' or '}' in object declaration");
}

TEST(HostConfig, TopLevelMustBeAnObject)
{
    TempFolder folder;
    const auto file = folder.Write("array.json", "[1, 2]");
    EXPECT_EQ(ErrorOf(file.string()), file.string() + ": the top level must be an object");
}

TEST(HostConfig, WrongTypeNamesTheKey)
{
    TempFolder folder;
    const auto file = folder.Write("type.json", R"({"services": {"nsp": 5}})");
    EXPECT_EQ(ErrorOf(file.string()), file.string() + ": \"services.nsp\" must be a string");
}

TEST(HostConfig, WrongTypesOfOtherKinds)
{
    TempFolder folder;
    const std::pair<const char*, const char*> cases[] = {
        {R"({"replaceCommaCountry": "yes"})", "\"replaceCommaCountry\" must be a boolean"},
        {R"({"timeoutSeconds": "5"})", "\"timeoutSeconds\" must be an integer"},
        {R"({"timeoutSeconds": 2.5})", "\"timeoutSeconds\" must be an integer"},
        {R"({"session": []})", "\"session\" must be an object"},
        {R"({"backup": {"devices": {}}})", "\"backup.devices\" must be an array"},
        {R"({"backup": {"devices": [{"deviceId": "a"}, 3]}})", "\"backup.devices[1]\" must be an object"},
        {R"({"backup": {"devices": [{"deviceId": "a", "deviceName": 1}]}})",
         "\"backup.devices[0].deviceName\" must be a string"},
        {R"({"deviceUuid": null})", "\"deviceUuid\" must be a string"},
    };
    int index = 0;
    for (const auto& [content, message] : cases) {
        const auto file = folder.Write("case" + std::to_string(index++) + ".json", content);
        EXPECT_EQ(ErrorOf(file.string()), file.string() + ": " + message) << content;
    }
}

TEST(HostConfig, UnknownKeyIsReported)
{
    TempFolder folder;
    const auto top = folder.Write("top.json", R"({"langauge": "en-US"})");
    EXPECT_EQ(ErrorOf(top.string()), top.string() + ": \"langauge\" is not a known key");
    const auto nested = folder.Write("nested.json", R"({"services": {"nps": "http://x"}})");
    EXPECT_EQ(ErrorOf(nested.string()), nested.string() + ": \"services.nps\" is not a known key");
}

TEST(HostConfig, UnknownNetworkModeIsRefused)
{
    TempFolder folder;
    const auto file = folder.Write("mode.json", R"({"network": {"mode": "sometimes"}})");
    EXPECT_EQ(ErrorOf(file.string()),
              file.string() +
                  ": \"network.mode\" must be one of \"system\", \"online\", \"offline\", \"file\"");
}

TEST(HostConfig, FileNetworkModeWithoutAFileIsRefused)
{
    TempFolder folder;
    const auto file = folder.Write("nofile.json", R"({"network": {"mode": "file"}})");
    EXPECT_EQ(ErrorOf(file.string()),
              file.string() + ": \"network.file\" must name a file when \"network.mode\" is \"file\"");
}

TEST(HostConfig, AFileNestedTwoHundredThousandDeepIsNotJson)
{
    TempFolder folder;
    std::string text;
    for (int i = 0; i < 200000; ++i) {
        text += R"({"services":)";
    }
    const auto file = folder.Write("deep.json", text);
    EXPECT_EQ(ErrorOf(file.string()), file.string() + ": is not JSON: nested more than 1000 levels deep");
}

TEST(HostConfig, ServiceUrlsMustBeAbsoluteHttpOrHttps)
{
    TempFolder folder;
    const char* const refused[] = {"file:///etc/passwd#",     "gopher://127.0.0.1:70/x",
                                   "ftp://example.com/",      "/relative/path",
                                   "127.0.0.1:8080/nsp",      "http://",
                                   "http://exa mple.com/nsp", "https://example.com/\tnsp"};
    int index = 0;
    for (const char* url : refused) {
        Json::Value root;
        root["services"]["cbs"] = url;
        const auto file = folder.Write("url" + std::to_string(index++) + ".json", root.toStyledString());
        EXPECT_EQ(ErrorOf(file.string()),
                  file.string() + ": \"services.cbs\" must be an absolute http:// or https:// URL")
            << url;
    }
}

TEST(HostConfig, HttpAndHttpsUrlsAndAnEmptyOneAreAccepted)
{
    TempFolder folder;
    const auto file = folder.Write("urls.json", R"({"services": {"nsp": "http://127.0.0.1:4000/nsp",
        "cbs": "HTTPS://cloud.example.com/cbs?x=1", "pimds": ""}})");
    const host::HostConfig config = host::LoadHostConfigFile(file.string());
    EXPECT_EQ(config.services.nsp, "http://127.0.0.1:4000/nsp");
    EXPECT_EQ(config.services.cbs, "HTTPS://cloud.example.com/cbs?x=1");
    EXPECT_EQ(config.services.pimds, "");
}

TEST(HostConfig, ANegativeTimeoutIsRefused)
{
    TempFolder folder;
    const auto file = folder.Write("timeout.json", R"({"timeoutSeconds": -1})");
    EXPECT_EQ(ErrorOf(file.string()), file.string() + ": \"timeoutSeconds\" must not be negative");
    const auto zero = folder.Write("zero.json", R"({"timeoutSeconds": 0})");
    EXPECT_EQ(host::LoadHostConfigFile(zero.string()).timeoutSeconds, 0);
}

TEST(HostConfigPath, CommandLineWinsOverEverything)
{
    EnvScope env("SPACEMGM_CONFIG", "/from/env.json");
    EXPECT_EQ(host::ResolveHostConfigPath(std::string("/from/cli.json")),
              std::optional<std::string>("/from/cli.json"));
}

TEST(HostConfigPath, EnvironmentBeforeTheUserConfigFolder)
{
    TempFolder folder;
    folder.Write("spacemgm/spacemgm.json", "{}");
    EnvScope xdg("XDG_CONFIG_HOME", folder.Path().c_str());
    EnvScope env("SPACEMGM_CONFIG", "/from/env.json");
    EXPECT_EQ(host::ResolveHostConfigPath(std::nullopt), std::optional<std::string>("/from/env.json"));
}

TEST(HostConfigPath, UserConfigFolderWhenTheFileExists)
{
    TempFolder folder;
    EnvScope env("SPACEMGM_CONFIG", nullptr);
    EnvScope xdg("XDG_CONFIG_HOME", folder.Path().c_str());
    EXPECT_EQ(host::ResolveHostConfigPath(std::nullopt), std::nullopt);
    const auto file = folder.Write("spacemgm/spacemgm.json", "{}");
    EXPECT_EQ(host::ResolveHostConfigPath(std::nullopt), std::optional<std::string>(file.string()));
}

TEST(HostConfigPath, HomeConfigFolderWhenXdgIsUnset)
{
    TempFolder folder;
    EnvScope env("SPACEMGM_CONFIG", nullptr);
    EnvScope xdg("XDG_CONFIG_HOME", nullptr);
    EnvScope home("HOME", folder.Path().c_str());
    const auto file = folder.Write(".config/spacemgm/spacemgm.json", "{}");
    EXPECT_EQ(host::ResolveHostConfigPath(std::nullopt), std::optional<std::string>(file.string()));
}

TEST(CurrentHostConfig, DefaultsUntilSetAndReferencesOutliveALaterSet)
{
    host::HostConfig first = host::DefaultHostConfig();
    first.language = "fr-FR";
    host::SetCurrentHostConfig(first);
    const host::HostConfig& held = host::CurrentHostConfig();
    EXPECT_EQ(held.language, "fr-FR");

    host::HostConfig second = host::DefaultHostConfig();
    second.language = "de-DE";
    host::SetCurrentHostConfig(second);
    EXPECT_EQ(host::CurrentHostConfig().language, "de-DE");
    EXPECT_EQ(held.language, "fr-FR");
    host::SetCurrentHostConfig(host::DefaultHostConfig());
}

TEST(CurrentHostConfig, ReadsWhileAnotherThreadSets)
{
    std::atomic<bool> stop{false};
    std::atomic<int> bad{0};
    std::thread reader([&] {
        while (!stop) {
            const std::string& language = host::CurrentHostConfig().language;
            if (language != "en-US" && language != "it-IT") {
                ++bad;
            }
        }
    });
    for (int i = 0; i < 200; ++i) {
        host::HostConfig config = host::DefaultHostConfig();
        config.language = i % 2 ? "it-IT" : "en-US";
        host::SetCurrentHostConfig(config);
    }
    stop = true;
    reader.join();
    EXPECT_EQ(bad.load(), 0);
    host::SetCurrentHostConfig(host::DefaultHostConfig());
}
