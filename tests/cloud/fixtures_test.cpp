// Start-up: bad fixtures are refused with the file, the place and the reason;
// the host configuration points at the emulator; signals stop it cleanly.
#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <ifaddrs.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "cloud_test_client.h"
#include "emulator_process.h"

namespace spacemgm_test {
namespace {

struct RunResult
{
    int exitCode = -1;
    std::string output;
};

RunResult RunEmulator(const std::string& args)
{
    std::string command = "'" + CloudEmulator::ExecutablePath() + "' " + args + " 2>&1";
    RunResult result;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe)
        return result;
    char buffer[512];
    while (fgets(buffer, sizeof buffer, pipe))
        result.output += buffer;
    int status = pclose(pipe);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

class BadFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        char pattern[] = "/tmp/spacemgm-cloud-bad-XXXXXX";
        ASSERT_NE(mkdtemp(pattern), nullptr);
        dir = pattern;
        path = dir + "/bad.json";
    }
    void TearDown() override
    {
        std::remove(path.c_str());
        rmdir(dir.c_str());
    }
    // Runs the emulator on `text` until it ends, at most 20 s: an emulator
    // that accepts the fixture fails the test instead of serving forever.
    RunResult Load(const std::string& text)
    {
        std::ofstream(path, std::ios::binary) << text;
        RunResult result;
        result.exitCode = RunEmulatorToEnd({"--port", "0", "--fixture", path}, result.output, 20);
        return result;
    }
    std::string dir;
    std::string path;
};

TEST_F(BadFixture, WrongTypeNamesFilePlaceAndReason)
{
    Json::Value f = ReadFixture("sample");
    f["backup"]["devices"][1]["backups"][0]["size"] = "big";
    RunResult r = Load(CompactJson(f));
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find(path), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("backup.devices[1].backups[0].size"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("must be an integer"), std::string::npos) << r.output;
}

TEST_F(BadFixture, UnknownKeyIsRefused)
{
    Json::Value f = ReadFixture("sample");
    f["pim"]["wlan"]["dataVersoin"] = "v2.0";
    RunResult r = Load(CompactJson(f));
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("pim.wlan.dataVersoin: unknown key"), std::string::npos) << r.output;
}

TEST_F(BadFixture, MissingSectionIsRefused)
{
    Json::Value f = ReadFixture("sample");
    f.removeMember("messages");
    RunResult r = Load(CompactJson(f));
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("messages: missing"), std::string::npos) << r.output;
}

TEST_F(BadFixture, TextThatIsNoJsonNamesTheLine)
{
    RunResult r = Load("{\n  \"name\": \"x\",\n  oops\n}\n");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("not JSON"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("Line 3"), std::string::npos) << r.output;
}

TEST_F(BadFixture, DriveBinLargerThanTheDriveIsRefused)
{
    Json::Value f = ReadFixture("sample");
    f["drive"]["recycleBytes"] = f["drive"]["used"].asInt64() + 1;
    RunResult r = Load(CompactJson(f));
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("drive.recycleBytes"), std::string::npos) << r.output;
}

// A byte that is not UTF-8 would come back changed from the state file (the
// writer escapes what it decodes), so it is refused where it stands.
TEST_F(BadFixture, TextThatIsNotUtf8IsRefused)
{
    Json::Value f = ReadFixture("sample");
    f["files"][0]["path"] = "/Sync/note/@.json";
    std::string text = CompactJson(f);
    text.replace(text.find('@'), 1, "\x82i"); // raw: the JSON writer would escape it into valid text
    RunResult r = Load(text);
    EXPECT_EQ(r.exitCode, 2) << r.output;
    EXPECT_NE(r.output.find(path + ": files[0].path: must be UTF-8 text"), std::string::npos) << r.output;
}

TEST_F(BadFixture, NestedTwoHundredThousandDeepIsRefusedWithoutACrash)
{
    RunResult r = Load(R"({"omConfig":)" + std::string(200000, '[') + std::string(200000, ']') + "}");
    EXPECT_EQ(r.exitCode, 2) << r.output.substr(0, 2000);
    EXPECT_NE(r.output.find(path + ": (root): not JSON: nested more than"), std::string::npos)
        << r.output.substr(0, 2000);
}

TEST_F(BadFixture, NestedStateFileIsRefusedWithoutACrash)
{
    const std::string state = dir + "/state.json";
    std::ofstream(state) << std::string(200000, '[');
    RunResult r;
    r.exitCode = RunEmulatorToEnd(
        {"--port", "0", "--fixture", CloudEmulator::FixturePath("sample"), "--state", state}, r.output, 20);
    std::remove(state.c_str());
    EXPECT_EQ(r.exitCode, 2) << r.output.substr(0, 2000);
    EXPECT_NE(r.output.find(state + ": (root): not JSON"), std::string::npos) << r.output.substr(0, 2000);
}

TEST(CommandLine, MissingFixtureFileIsReported)
{
    RunResult r = RunEmulator("--port 0 --fixture /nonexistent/fixture.json");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("/nonexistent/fixture.json"), std::string::npos) << r.output;
}

TEST(CommandLine, UnknownArgumentShowsUsage)
{
    RunResult r = RunEmulator("--fixture x --bogus");
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_NE(r.output.find("usage:"), std::string::npos) << r.output;
}

TEST(HostConfig, PointsEveryServiceAtTheEmulatorWithTheFixtureSession)
{
    CloudEmulator::Options options;
    options.fixture = "v2";
    CloudEmulator cloud(options);
    std::ifstream in(cloud.ConfigPath());
    std::stringstream text;
    text << in.rdbuf();
    Json::Value config = ParseJsonText(text.str());
    ASSERT_TRUE(config.isObject()) << text.str();
    for (const char* service : {"nsp", "basic", "portal", "cloudPhoto", "cbs", "pimds", "familyShare",
                                "cloudSyncDrive", "accountQuota", "omConfig"}) {
        EXPECT_EQ(config["services"][service].asString(), cloud.BaseUrl(service)) << service;
        EXPECT_EQ(config["services"][service].asString().rfind("http://127.0.0.1:", 0), 0u) << service;
    }
    Json::Value fixture = ReadFixture("v2");
    EXPECT_EQ(config["session"]["accessToken"], fixture["session"]["accessToken"]);
    EXPECT_EQ(config["session"]["userId"], fixture["session"]["userId"]);
    EXPECT_EQ(config["session"]["country"], fixture["session"]["country"]);
    EXPECT_EQ(config["backup"]["generation"].asString(), "v3");
    ASSERT_EQ(config["backup"]["devices"].size(), fixture["backup"]["devices"].size());
    EXPECT_EQ(config["backup"]["devices"][0]["deviceName"],
              fixture["backup"]["devices"][0]["device"]["devDisplayName"]);
    EXPECT_EQ(config["network"]["mode"].asString(), "online");
    EXPECT_FALSE(config.isMember("caFile"));
}

TEST(Signals, InterruptStopsCleanly)
{
    CloudEmulator cloud;
    ASSERT_EQ(kill(cloud.Pid(), SIGINT), 0);
    int status = 0;
    ASSERT_EQ(waitpid(cloud.Pid(), &status, 0), cloud.Pid());
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

// The server thread may not have entered its accept loop when "ready" is
// printed; an interrupt in that window must still stop it. The start delay
// holds the window open so that every round lands in it.
TEST(Signals, InterruptBeforeTheAcceptLoopStillStops)
{
    for (int round = 0; round < 3; ++round) {
        CloudEmulator::Options options;
        options.startDelayMs = 300;
        CloudEmulator cloud(options);
        ASSERT_EQ(kill(cloud.Pid(), SIGINT), 0);
        int status = 0;
        pid_t ended = 0;
        for (int waited = 0; waited < 10000 && ended == 0; waited += 10) {
            ended = waitpid(cloud.Pid(), &status, WNOHANG);
            if (ended == 0)
                usleep(10 * 1000);
        }
        ASSERT_EQ(ended, cloud.Pid()) << "round " << round << ": still serving 10 s after SIGINT";
        EXPECT_TRUE(WIFEXITED(status));
        EXPECT_EQ(WEXITSTATUS(status), 0);
    }
}

TEST(Binding, NotReachableFromAnotherAddress)
{
    CloudEmulator cloud;
    ifaddrs* list = nullptr;
    ASSERT_EQ(getifaddrs(&list), 0);
    std::string other;
    for (ifaddrs* a = list; a; a = a->ifa_next) {
        if (!a->ifa_addr || a->ifa_addr->sa_family != AF_INET)
            continue;
        auto* in = reinterpret_cast<sockaddr_in*>(a->ifa_addr);
        if ((ntohl(in->sin_addr.s_addr) >> 24) == 127)
            continue;
        char text[INET_ADDRSTRLEN];
        inet_ntop(AF_INET, &in->sin_addr, text, sizeof text);
        other = text;
        break;
    }
    freeifaddrs(list);
    if (other.empty())
        GTEST_SKIP() << "no address besides loopback on this machine";
    HttpResult r = HttpExchange(
        "GET", "http://" + other + ":" + std::to_string(cloud.Port()) + "/_admin/ready", {}, "", "", 2000);
    EXPECT_NE(r.curlCode, 0) << "the emulator must listen on 127.0.0.1 only";
    EXPECT_EQ(HttpExchange("GET", cloud.Root() + "/_admin/ready", {}, "").status, 200);
}

} // namespace
} // namespace spacemgm_test
