// The progress line: on a terminal it shows how far the load is and what it
// waits for, and is erased before the report; piped or with --json, nothing
// extra reaches stderr.
#include <gtest/gtest.h>

#include <string>

#include "cloud_program.h"

namespace {

using app_test::Rule;
using app_test::RunAgainst;
using spacemgm_test::CloudEmulator;

constexpr const char* kErase = "\r\x1B[K";

// Every request waits, so that the load lasts long enough to be drawn.
void SlowDown(CloudEmulator& cloud, int milliseconds)
{
    Json::Value rule = Rule("", "latency");
    rule["latencyMs"] = milliseconds;
    cloud.AddFault(rule);
}

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

} // namespace

TEST(Progress, OnATerminalTheLoadShowsProgressAndErasesItBeforeTheReport)
{
    CloudEmulator cloud;
    SlowDown(cloud, 400);
    const auto run = RunAgainst(cloud, {"usage"}, true);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_NE(run.err.find("Loading: 0 of 12 categories answered"), std::string::npos) << run.err;
    EXPECT_NE(run.err.find(" of 12 categories answered; waiting "), std::string::npos) << run.err;
    EXPECT_NE(run.err.find(" s for "), std::string::npos) << run.err;
    EXPECT_TRUE(EndsWith(run.err, kErase)) << run.err;
    EXPECT_EQ(run.out.rfind("Used 120 GB of 200 GB\n", 0), 0u) << run.out;
}

TEST(Progress, TheLongestRequestIsNamed)
{
    CloudEmulator cloud;
    Json::Value rule = Rule("familyShare", "latency");
    rule["endpoint"] = "/family/user/v1/quota/drive";
    rule["latencyMs"] = 1500;
    cloud.AddFault(rule);
    const auto run = RunAgainst(cloud, {"usage"}, true);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_NE(run.err.find("for family share /user/v1/quota/drive"), std::string::npos) << run.err;
}

TEST(Progress, WithJsonNothingExtraReachesTheTerminal)
{
    CloudEmulator cloud;
    SlowDown(cloud, 400);
    const auto run = RunAgainst(cloud, {"usage", "--json"}, true);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
}

TEST(Progress, PipedNothingExtraReachesStderr)
{
    CloudEmulator cloud;
    SlowDown(cloud, 400);
    const auto run = RunAgainst(cloud, {"usage"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
}

TEST(Progress, ADeletionShowsWhatItWaitsFor)
{
    CloudEmulator cloud;
    SlowDown(cloud, 700);
    const auto run = RunAgainst(cloud, {"delete", "messages"}, true);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_NE(run.err.find("Deleting; waiting "), std::string::npos) << run.err;
    EXPECT_NE(run.err.find("for cloud backup /CloudBackup/ClientServlet"), std::string::npos) << run.err;
    EXPECT_TRUE(EndsWith(run.err, kErase)) << run.err;
}

TEST(Progress, FailureLinesFollowTheErasedLine)
{
    CloudEmulator cloud;
    SlowDown(cloud, 400);
    cloud.AddFault(app_test::StatusRule("accountQuota", 401));
    const auto run = RunAgainst(cloud, {"usage"}, true);
    EXPECT_EQ(run.exitCode, 3);
    // The terminal turns "\n" into "\r\n".
    EXPECT_TRUE(EndsWith(run.err, std::string(kErase) + "account quota: HTTP 401\r\n")) << run.err;
}
