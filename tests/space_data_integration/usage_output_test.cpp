// `spacemgm usage` against the sample account of spacemgm-cloud, run as the
// program itself and read line by line. The expected texts were worked out
// from the fixture: 120 GiB used of 200 GiB, the groups' sizes, the
// categories under their English names; the colours of its configuration
// and bar lengths of 530 pixels times each group's share are in the JSON.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <vector>

#include <json/json.h>

#include "cloud_emulator.h"
#include "utilities/text_lines.h"

namespace {

using spacemgm_test::CloudEmulator;

struct ProgramRun
{
    int exitCode = -1;
    std::string output;
};

ProgramRun RunUsage(const CloudEmulator& cloud, const std::string& arguments)
{
    const std::string command = "XDG_DATA_HOME='" + cloud.WorkDir() +
                                "/xdg' '" SPACEMGM_BINARY_DIR "/bin/spacemgm' usage " + arguments +
                                " --config '" + cloud.ConfigPath() + "' 2>/dev/null";
    ProgramRun run;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) {
        return run;
    }
    char buffer[4096];
    size_t got = 0;
    while ((got = fread(buffer, 1, sizeof buffer, pipe)) > 0) {
        run.output.append(buffer, got);
    }
    const int status = pclose(pipe);
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

} // namespace

TEST(UsageOutput, SampleAccountLineByLine)
{
    CloudEmulator cloud;
    const ProgramRun run = RunUsage(cloud, "");
    ASSERT_EQ(run.exitCode, 0) << run.output;
    std::vector<std::string> lines = Lines(run.output);

    const std::vector<std::string> expectedHead = {
        "Used 120 GB of 200 GB",
        "Groups:",
        "  Cloud backup: 34.00 GB",
        "  Cloud drive: 25.00 GB",
        "  Gallery: 42.00 GB",
        "  Other: 16.00 GB",
        "  Family sharing: 3.00 GB",
        "Categories:",
        "  Cloud backup: 34.00 GB, 2 devices",
        "  Gallery: 42.00 GB",
        "  Cloud drive: 25.00 GB",
        "  Spam & blocked: 1.25 MB",
        "  Recordings: 1.24 MB, 6 items",
        "  Notes: 273.64 KB, 57 items",
        "  Messages: 3621 items",
        "  Call records: 1029 items",
        "  Contacts: 812 items",
        "  Browser data: 354 items",
        "  Calendar: 152 items",
        "  Wi-Fi networks: 23 items",
        "Backups:",
    };
    // The backup service is asked for the devices in no fixed order, so the
    // device lines are compared as a set.
    const std::vector<std::string> expectedDevices = {
        "  Nuvo P60 Pro: 28.00 GB, device bk-0001-a1f3",
        "  Nuvo Pad 11: 6.00 GB, device bk-0002-a1f3",
    };
    ASSERT_EQ(lines.size(), expectedHead.size() + expectedDevices.size()) << run.output;
    for (size_t i = 0; i < expectedHead.size(); ++i) {
        EXPECT_EQ(lines[i], expectedHead[i]) << "line " << i + 1;
    }
    std::vector<std::string> devices(lines.begin() + static_cast<long>(expectedHead.size()), lines.end());
    std::sort(devices.begin(), devices.end());
    EXPECT_EQ(devices, expectedDevices);
}

TEST(UsageOutput, JsonCarriesTheSameReport)
{
    CloudEmulator cloud;
    const ProgramRun run = RunUsage(cloud, "--json");
    ASSERT_EQ(run.exitCode, 0) << run.output;
    Json::Value root;
    Json::CharReaderBuilder reader;
    std::string errors;
    std::istringstream in(run.output);
    ASSERT_TRUE(Json::parseFromStream(reader, in, &root, &errors)) << errors;

    EXPECT_EQ(root["quota"]["used"].asString(), "120 GB");
    EXPECT_EQ(root["quota"]["total"].asString(), "200 GB");
    EXPECT_EQ(root["quota"]["usedBytes"].asUInt64(), 128849018880u);
    EXPECT_EQ(root["quota"]["totalBytes"].asUInt64(), 214748364800u);
    ASSERT_EQ(root["groups"].size(), 5u);
    EXPECT_EQ(root["groups"][0]["key"].asString(), "backup");
    EXPECT_EQ(root["groups"][0]["length"].asInt(), 90);
    EXPECT_EQ(root["groups"][2]["color"].asString(), "0xFF3DBB63");
    EXPECT_EQ(root["bar"]["bkcolor"]["length"].asInt(), 530);
    ASSERT_EQ(root["categories"].size(), 12u);
    EXPECT_EQ(root["categories"][0]["name"].asString(), "CloudBackUp");
    const Json::Value& browser = root["categories"][9];
    EXPECT_EQ(browser["name"].asString(), "Browser");
    EXPECT_EQ(browser["count"].asString(), "354");
    EXPECT_EQ(browser["bookmarkCount"].asInt(), 310);
    EXPECT_EQ(browser["infoflowCount"].asInt(), 44);
    EXPECT_EQ(root["categories"][1]["recycle"].asInt64(), 2147483648);
    EXPECT_EQ(root["backups"].size(), 2u);
    ASSERT_TRUE(root["errors"].isArray());
    EXPECT_EQ(root["errors"].size(), 0u);
}

TEST(UsageOutput, EmptyAccountShowsNoDataForEveryCategory)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("empty"));
    const ProgramRun run = RunUsage(cloud, "");
    ASSERT_EQ(run.exitCode, 0) << run.output;
    const auto lines = Lines(run.output);
    ASSERT_EQ(lines.size(), 22u) << run.output;
    EXPECT_EQ(lines[0], "Used 0 B of 5 GB");
    EXPECT_EQ(lines[7], "Categories:");
    const std::vector<std::string> categories(lines.begin() + 8, lines.begin() + 20);
    const std::vector<std::string> expected = {
        "  Wi-Fi networks: no data", "  Call records: no data", "  Browser data: no data",
        "  Messages: no data",       "  Calendar: no data",     "  Contacts: no data",
        "  Cloud backup: no data",   "  Gallery: no data",      "  Cloud drive: no data",
        "  Notes: no data",          "  Recordings: no data",   "  Spam & blocked: no data",
    };
    EXPECT_EQ(categories, expected);
    EXPECT_EQ(lines[lines.size() - 2], "Backups:");
    EXPECT_EQ(lines.back(), "  (none)");
}
