// `spacemgm usage` against the sample account of spacemgm-cloud, run as the
// program itself and read line by line. The expected texts were worked out
// from the fixture: 120 GiB used of 200 GiB, the colours of its
// configuration, bar lengths of 530 pixels times each group's share.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <vector>

#include <json/json.h>

#include "cloud_emulator.h"

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

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
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
        "  backup: 36507222016 bytes, colour 0xFF0A9BD4, bar 90",
        "  drive: 26843545600 bytes, colour 0xFF2E6BE6, bar 66",
        "  photos: 45097156608 bytes, colour 0xFF3DBB63, bar 111",
        "  other: 17179869184 bytes, colour 0xFFF2A516, bar 42",
        "  family: 3221225472 bytes, colour 0xFFE8643A, bar 7",
        "  full: colour 0xFFFA2A2D, bar 0",
        "  bkcolor: colour 0xFFF2F2F2, bar 530",
        "Categories:",
        "  CloudBackUp: size 34.00 GB, count 2",
        "  Gallery: size 42.00 GB, count -",
        "  CloudDisk: size 25.00 GB, count -",
        "  HarassmentInterception: size 1.25 MB, count -",
        "  Recorder: size 1.24 MB, count 6",
        "  Notepad: size 273.64 KB, count 57",
        "  Message: size -, count 3621",
        "  Phone: size -, count 1029",
        "  Contact: size -, count 812",
        "  Browser: size -, count 354",
        "  Calendar: size -, count 152",
        "  Wlan: size -, count 23",
        "Backups:",
    };
    // The backup service is asked for the devices in no fixed order, so the
    // device lines are compared as a set.
    const std::vector<std::string> expectedDevices = {
        "  Nuvo P60 Pro: 28.00 GB (30064771072 bytes), device bk-0001-a1f3",
        "  Nuvo Pad 11: 6.00 GB (6442450944 bytes), device bk-0002-a1f3",
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
}

TEST(UsageOutput, EmptyAccountShowsNoRows)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("empty"));
    const ProgramRun run = RunUsage(cloud, "");
    ASSERT_EQ(run.exitCode, 0) << run.output;
    const auto lines = Lines(run.output);
    ASSERT_GE(lines.size(), 4u);
    EXPECT_EQ(lines[0], "Used 0 B of 5 GB");
    EXPECT_EQ(lines[lines.size() - 3], "  (none)");
    EXPECT_EQ(lines[lines.size() - 2], "Backups:");
    EXPECT_EQ(lines.back(), "  (none)");
}
