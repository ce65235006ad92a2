// What the emulator refuses at start, and the files it writes: a port that
// another server holds, a faults file naming what it does not serve, and a
// host configuration that works from any folder and only for its owner.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <sys/stat.h>

#include "cloud_test_client.h"
#include "emulator_process.h"
#include "scratch_folder.h"

namespace spacemgm_test {
namespace {

std::string ReadText(const std::string& path)
{
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

mode_t PermissionsOf(const std::string& path)
{
    struct stat info
    {
    };
    EXPECT_EQ(::stat(path.c_str(), &info), 0) << path;
    return info.st_mode & 0777;
}

// The rest of the output line that starts with `name` and a blank.
std::string ValueOfLine(const std::string& output, const std::string& name)
{
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(name + " ", 0) == 0)
            return line.substr(name.size() + 1);
    return "";
}

std::vector<std::string> SampleArgs(std::vector<std::string> more)
{
    std::vector<std::string> args = {"--port", "0", "--fixture", CloudEmulator::FixturePath("sample")};
    args.insert(args.end(), more.begin(), more.end());
    return args;
}

TEST(PortInUse, SecondEmulatorOnTheSamePortIsRefused)
{
    CloudEmulator first;
    std::string output;
    const int status = RunEmulatorToEnd(
        {"--port", std::to_string(first.Port()), "--fixture", CloudEmulator::FixturePath("sample")}, output,
        10);
    EXPECT_EQ(status, 2) << "the second emulator must not share the port: " << output;
    EXPECT_NE(output.find("address already in use"), std::string::npos) << output;
    EXPECT_NE(output.find("127.0.0.1:" + std::to_string(first.Port())), std::string::npos) << output;
    EXPECT_EQ(HttpExchange("GET", first.Root() + "/_admin/ready", {}, "").status, 200);
}

TEST(WrittenConfig, RelativeWriteConfigWithTlsNamesTheCaFileFromAnyFolder)
{
    ScratchFolder dir;
    std::filesystem::create_directories(dir / "conf");
    EmulatorProcess cloud(SampleArgs({"--tls", "--write-config", "conf/c.json"}), dir.Path());
    ASSERT_TRUE(cloud.WaitForLine("ready")) << cloud.Output();
    const Json::Value config = ParseJsonText(ReadText(dir / "conf/c.json"));
    ASSERT_TRUE(config.isObject()) << cloud.Output();
    const std::string caFile = config["caFile"].asString();
    EXPECT_EQ(caFile, dir / "conf/spacemgm-cloud-ca.pem") << "an absolute path, resolved once";
    // From this process's folder, which is not the emulator's, the CA still verifies the server.
    const std::string admin = ValueOfLine(cloud.Output(), "admin");
    ASSERT_EQ(admin.rfind("https://127.0.0.1:", 0), 0u) << cloud.Output();
    EXPECT_EQ(HttpExchange("GET", admin + "/ready", {}, "", caFile).status, 200);
    EXPECT_EQ(cloud.Stop(), 0);
}

TEST(WrittenConfig, RelativeCaFileBecomesAbsolute)
{
    ScratchFolder dir;
    EmulatorProcess cloud(SampleArgs({"--tls", "--ca-file", "ca.pem", "--write-config", "c.json"}),
                          dir.Path());
    ASSERT_TRUE(cloud.WaitForLine("ready")) << cloud.Output();
    const Json::Value config = ParseJsonText(ReadText(dir / "c.json"));
    EXPECT_EQ(config["caFile"].asString(), dir / "ca.pem");
    EXPECT_NE(cloud.Output().find("caFile " + (dir / "ca.pem") + "\n"), std::string::npos) << cloud.Output();
    EXPECT_EQ(cloud.Stop(), 0);
}

TEST(WrittenConfig, ConfigurationAndStateAreForTheirOwnerOnly)
{
    ScratchFolder dir;
    CloudEmulator::Options options;
    options.stateFile = dir / "state.json";
    CloudEmulator cloud(options);
    EXPECT_EQ(PermissionsOf(cloud.ConfigPath()), 0600u) << "the configuration holds the session token";
    EXPECT_EQ(PermissionsOf(options.stateFile), 0600u) << "the state holds the session token";
}

TEST(FaultsFile, MayHoldASingleRule)
{
    ScratchFolder dir;
    CloudEmulator::Options options;
    options.faultsFile = dir.Write("faults.json", R"({"id":"alone","service":"cbs","kind":"emptyArray"})");
    CloudEmulator cloud(options);
    CloudTestClient client(cloud, "sample");
    CloudReply r =
        client.Backup(ParseJsonText(R"({"cmd":36,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})"));
    EXPECT_EQ(r.body, "[]");
    EXPECT_EQ(cloud.Hits()["rules"][0]["id"].asString(), "alone");
}

TEST(FaultsFile, NestedTwoHundredThousandDeepIsRefused)
{
    ScratchFolder dir;
    const std::string path = dir.Write("faults.json", std::string(200000, '[') + std::string(200000, ']'));
    std::string output;
    const int status = RunEmulatorToEnd(SampleArgs({"--faults", path}), output, 20);
    EXPECT_EQ(status, 2) << output;
    EXPECT_NE(output.find("spacemgm-cloud: " + path + ": cannot be read as JSON"), std::string::npos)
        << output;
}

struct BadFaultsCase
{
    const char* name;
    const char* rules;
    const char* expected; // in the one-line refusal, after the file's name
};

class FaultsFileRefusal : public ::testing::TestWithParam<BadFaultsCase>
{
};

TEST_P(FaultsFileRefusal, ExitsTwoNamingTheFileAndTheRule)
{
    ScratchFolder dir;
    const std::string path = dir.Write("faults.json", GetParam().rules);
    std::string output;
    const int status = RunEmulatorToEnd(SampleArgs({"--faults", path}), output, 10);
    EXPECT_EQ(status, 2) << output;
    EXPECT_NE(output.find("spacemgm-cloud: " + path), std::string::npos) << output;
    EXPECT_NE(output.find(GetParam().expected), std::string::npos) << output;
}

INSTANTIATE_TEST_SUITE_P(
    Targets, FaultsFileRefusal,
    ::testing::Values(BadFaultsCase{"UnknownService", R"([{"service":"family","kind":"empty"}])",
                                    R"([0]: "service": no service named "family")"},
                      BadFaultsCase{"UnknownEndpoint",
                                    R"([{"kind":"empty"},{"endpoint":"/family/rest","kind":"empty"}])",
                                    R"([1]: "endpoint": no endpoint at "/family/rest")"},
                      BadFaultsCase{"EndpointOfAnotherService",
                                    R"({"service":"cbs","endpoint":"/family/rest.php","kind":"empty"})",
                                    R"(: "endpoint": /family/rest.php belongs to familyShare, not cbs)"},
                      BadFaultsCase{"AdminEndpoint", R"({"endpoint":"/_admin/faults","kind":"empty"})",
                                    R"("endpoint": no endpoint at "/_admin/faults")"}),
    [](const ::testing::TestParamInfo<BadFaultsCase>& info) { return std::string(info.param.name); });

} // namespace
} // namespace spacemgm_test
