// `spacemgm usage` under each fault kind of spacemgm-cloud: the report is
// still printed, each failed exchange gets one line on stderr, and the exit
// code is 3 when any exchange failed, 0 otherwise.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "cloud_program.h"

namespace {

using app_test::Lines;
using app_test::Rule;
using app_test::RunAgainst;
using app_test::StatusRule;
using spacemgm_test::CloudEmulator;

bool HasLine(const std::string& text, const std::string& line)
{
    const auto lines = Lines(text);
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

Json::Value ParseJson(const std::string& text)
{
    Json::Value root;
    std::istringstream in(text);
    std::string errors;
    Json::parseFromStream(Json::CharReaderBuilder(), in, &root, &errors);
    return root;
}

struct KindRow
{
    const char* kind;
    const char* problem; // the end of the line on stderr
};

} // namespace

TEST(UsageExitCodes, AHealthyLoadExitsZeroWithNothingOnStderr)
{
    CloudEmulator cloud;
    const auto run = RunAgainst(cloud, {"usage"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
}

TEST(UsageExitCodes, ANotPublishedOperationsConfigurationIsNoFailure)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("empty"));
    const auto run = RunAgainst(cloud, {"usage"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
}

TEST(UsageExitCodes, EachFaultKindOfTheStatisticsServiceIsOneLineAndExitThree)
{
    const KindRow rows[] = {
        {"empty", "empty reply"},
        {"emptyArray", "empty reply ([])"},
        {"notJson", "the reply is not JSON"},
        {"truncated", "the reply is not JSON"},
        {"cut", "the connection closed before the reply was complete"},
    };
    for (const KindRow& row : rows) {
        CloudEmulator cloud;
        Json::Value rule = Rule("pimds", row.kind);
        rule["endpoint"] = "/pimds/Statistic/Wlan";
        cloud.AddFault(rule);
        const auto run = RunAgainst(cloud, {"usage"});
        EXPECT_EQ(run.exitCode, 3) << row.kind << "\n" << run.err;
        EXPECT_EQ(run.err, std::string("data statistics: /Statistic/Wlan: ") + row.problem + "\n")
            << row.kind;
        EXPECT_TRUE(HasLine(run.out, "  Wi-Fi networks: no data")) << row.kind << "\n" << run.out;
    }
}

TEST(UsageExitCodes, AnErrorStatusNamesTheStatus)
{
    CloudEmulator cloud;
    cloud.AddFault(StatusRule("accountQuota", 401));
    const auto run = RunAgainst(cloud, {"usage"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, "account quota: HTTP 401\n");
    EXPECT_TRUE(HasLine(run.out, "Used 0 B of 0 B")) << run.out;
}

TEST(UsageExitCodes, AHangingExchangeIsBoundedByTheTimeoutOption)
{
    CloudEmulator cloud;
    Json::Value rule = Rule("familyShare", "hang");
    rule["endpoint"] = "/family/user/v1/quota/drive";
    rule["hangMs"] = 20000;
    cloud.AddFault(rule);
    const auto run = RunAgainst(cloud, {"usage", "--timeout", "1"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, "family share: /user/v1/quota/drive: timed out after 1 s\n");
    EXPECT_LT(run.seconds, 10.0);
}

TEST(UsageExitCodes, AddedLatencyAloneIsNoFailure)
{
    CloudEmulator cloud;
    Json::Value rule = Rule("", "latency");
    rule["latencyMs"] = 20;
    cloud.AddFault(rule);
    const auto run = RunAgainst(cloud, {"usage"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
}

TEST(UsageExitCodes, WrongTypesInTheQuotaReplyAreRefusedByTheHost)
{
    CloudEmulator cloud;
    cloud.AddFault(Rule("accountQuota", "wrongTypes"));
    const auto run = RunAgainst(cloud, {"usage"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, "account quota: the reply is not a quota\n");
}

TEST(UsageExitCodes, WrongTypesInAModuleReplyAreReadByTheModuleAndAreNoExchangeFailure)
{
    // The reply is JSON with status 200: the exchange worked, and what the
    // module makes of the types is the module's own rule.
    CloudEmulator cloud;
    Json::Value rule = Rule("pimds", "wrongTypes");
    rule["endpoint"] = "/pimds/Statistic/Wlan";
    cloud.AddFault(rule);
    const auto run = RunAgainst(cloud, {"usage"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
}

TEST(UsageExitCodes, ANestedQuotaReplyNeitherCrashesNorPassesForAnEmptyAccount)
{
    CloudEmulator cloud;
    cloud.AddFault(StatusRule("accountQuota", 200, std::string(5000, '[')));
    cloud.AddFault(StatusRule("omConfig", 200, std::string(5000, '[')));
    const auto run = RunAgainst(cloud, {"usage"});
    EXPECT_EQ(run.signal, 0);
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_TRUE(HasLine(run.err, "account quota: the reply is not JSON")) << run.err;
    EXPECT_TRUE(HasLine(run.err, "operations configuration: the reply is not JSON")) << run.err;
    // The next run cannot download the configuration and reads whatever file
    // the last run left: it must not be the nested body.
    cloud.ClearFaults();
    cloud.AddFault(StatusRule("omConfig", 503));
    const auto next = RunAgainst(cloud, {"usage"});
    EXPECT_EQ(next.signal, 0);
    EXPECT_EQ(next.exitCode, 3);
    EXPECT_EQ(next.err, "operations configuration: HTTP 503\n");
}

TEST(UsageExitCodes, AStoppedServiceIsACouldNotConnectLine)
{
    CloudEmulator cloud;
    cloud.Stop();
    const auto run = RunAgainst(cloud, {"usage"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_TRUE(HasLine(run.err, "account quota: could not connect")) << run.err;
    EXPECT_TRUE(HasLine(run.err, "cloud backup: /CloudBackup/ClientServlet: could not connect")) << run.err;
}

TEST(UsageExitCodes, AnUntrustedCertificateIsOneTlsLine)
{
    CloudEmulator::Options options;
    options.tls = true;
    CloudEmulator cloud(options);
    // A configuration without the emulator's CA: the system's store does not
    // know it.
    Json::Value config;
    {
        std::ifstream in(cloud.ConfigPath());
        std::string errors;
        ASSERT_TRUE(Json::parseFromStream(Json::CharReaderBuilder(), in, &config, &errors)) << errors;
    }
    config.removeMember("caFile");
    const std::string path = cloud.WorkDir() + "/untrusted.json";
    std::ofstream(path) << config.toStyledString();
    app_test::ProgramOptions program;
    program.arguments = {"usage", "--config", path};
    program.environment["XDG_DATA_HOME"] = cloud.WorkDir() + "/xdg";
    const auto run = app_test::RunProgram(program);
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, "TLS: certificate not trusted (the system's CA store)\n");
}

TEST(UsageExitCodes, JsonCarriesTheSameListUnderErrors)
{
    CloudEmulator cloud;
    cloud.AddFault(StatusRule("accountQuota", 503));
    Json::Value rule = Rule("pimds", "notJson");
    rule["endpoint"] = "/pimds/Statistic/Contact";
    cloud.AddFault(rule);
    const auto run = RunAgainst(cloud, {"usage", "--json"});
    EXPECT_EQ(run.exitCode, 3);
    const Json::Value root = ParseJson(run.out);
    ASSERT_TRUE(root["errors"].isArray()) << run.out;
    std::vector<std::string> messages;
    for (const Json::Value& error : root["errors"]) {
        messages.push_back(error["message"].asString());
    }
    std::sort(messages.begin(), messages.end());
    auto lines = Lines(run.err);
    std::sort(lines.begin(), lines.end());
    EXPECT_EQ(messages, lines);
    EXPECT_EQ(messages,
              (std::vector<std::string>{"account quota: HTTP 503",
                                        "data statistics: /Statistic/Contact: the reply is not JSON"}));
}
