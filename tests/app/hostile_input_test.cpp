// Device names are whatever a phone calls itself: the text report must not
// let one drive the terminal or read differently from what it holds.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include <unistd.h>

#include "cloud_program.h"

namespace {

using app_test::Lines;
using app_test::RunAgainst;
using spacemgm_test::CloudEmulator;

// The sample account with the devices renamed.
std::string FixtureWithDeviceNames(const std::string& folder, const std::string& first,
                                   const std::string& second)
{
    Json::Value fixture;
    std::ifstream in(CloudEmulator::FixturePath("sample"));
    std::string errors;
    Json::parseFromStream(Json::CharReaderBuilder(), in, &fixture, &errors);
    fixture["backup"]["devices"][0]["device"]["devDisplayName"] = first;
    fixture["backup"]["devices"][1]["device"]["devDisplayName"] = second;
    const std::string path = folder + "/hostile.json";
    std::ofstream(path) << fixture.toStyledString();
    return path;
}

} // namespace

TEST(HostileInput, ControlCharactersAndBidiOverridesInDeviceNamesAreEscaped)
{
    char folder[] = "/tmp/spacemgm-hostile-XXXXXX";
    ASSERT_NE(mkdtemp(folder), nullptr);
    const std::string fixture =
        FixtureWithDeviceNames(folder, "\x1B[2J\x1B]0;owned\x07Phone\nCall records: 0 items",
                               "Tablet \xE2\x80\xAEgpj.exe\xE2\x80\xAC");
    CloudEmulator cloud(CloudEmulator::Options::ForFixture(fixture));
    const auto run = RunAgainst(cloud, {"usage"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out.find('\x1B'), std::string::npos);
    EXPECT_EQ(run.out.find('\x07'), std::string::npos);
    EXPECT_EQ(run.out.find("\xE2\x80\xAE"), std::string::npos);
    const auto lines = Lines(run.out);
    const auto has = [&lines](const std::string& line) {
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    };
    EXPECT_TRUE(
        has("  \\x1B[2J\\x1B]0;owned\\x07Phone\\x0ACall records: 0 items: 28.00 GB, device bk-0001-a1f3"))
        << run.out;
    EXPECT_TRUE(has("  Tablet \\u202Egpj.exe\\u202C: 6.00 GB, device bk-0002-a1f3")) << run.out;
    // The JSON keeps the names as the service sent them.
    const auto json = RunAgainst(cloud, {"usage", "--json"});
    EXPECT_NE(json.out.find("\\u001b[2J"), std::string::npos) << json.out;
    std::remove(fixture.c_str());
    rmdir(folder);
}
