// How the programs meet a person at the command line: help, version, words
// they do not know, and configurations they cannot use.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>

#include "cloud_emulator.h"
#include "program_run.h"
#include "utilities/temp_folder.h"

namespace {

using app_test::Lines;
using app_test::ProgramOptions;
using app_test::RunProgram;

app_test::ProgramRun RunWith(std::vector<std::string> arguments)
{
    ProgramOptions options;
    options.arguments = std::move(arguments);
    return RunProgram(options);
}

// Runs spacemgm-cloud itself with the arguments, stdout and stderr together.
std::pair<int, std::string> RunCloud(const std::string& arguments)
{
    const std::string command =
        "'" + spacemgm_test::CloudEmulator::ExecutablePath() + "' " + arguments + " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    std::string output;
    char buffer[1024];
    size_t got = 0;
    while ((got = fread(buffer, 1, sizeof buffer, pipe)) > 0) {
        output.append(buffer, got);
    }
    const int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

} // namespace

TEST(ProgramInterface, HelpGoesToStdoutWithExitZero)
{
    const auto run = RunWith({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_NE(run.out.find("delete backup DEVICE"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("--timeout SECONDS"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("Exit status"), std::string::npos) << run.out;
}

TEST(ProgramInterface, VersionPrintsTheVersion)
{
    const auto run = RunWith({"--version"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, std::string("spacemgm ") + SPACEMGM_VERSION + "\n");
}

TEST(ProgramInterface, AnUnknownSubcommandNamesItself)
{
    const auto run = RunWith({"usgae"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    ASSERT_FALSE(Lines(run.err).empty());
    EXPECT_EQ(Lines(run.err)[0], "spacemgm: unknown subcommand \"usgae\"");
}

TEST(ProgramInterface, AnUnknownOptionNamesItself)
{
    const auto run = RunWith({"usage", "--verbose"});
    EXPECT_EQ(run.exitCode, 2);
    ASSERT_FALSE(Lines(run.err).empty());
    EXPECT_EQ(Lines(run.err)[0], "spacemgm: unknown option \"--verbose\"");
}

TEST(ProgramInterface, WithoutAnyConfigurationItSaysNoServiceIsConfigured)
{
    TempFolder home;
    ProgramOptions options;
    options.arguments = {"usage"};
    options.environment = {{"HOME", home.Path().string()},
                           {"XDG_CONFIG_HOME", ""},
                           {"XDG_DATA_HOME", (home.Path() / "data").string()},
                           {"SPACEMGM_CONFIG", ""}};
    const auto run = RunProgram(options);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.out.find("Used 0 B of 0 B"), std::string::npos);
    EXPECT_NE(run.err.find("no service is configured"), std::string::npos) << run.err;
}

TEST(ProgramInterface, AConfigurationNestedTwoHundredThousandDeepIsRefusedInOneLine)
{
    TempFolder folder;
    std::string text;
    for (int i = 0; i < 200000; ++i) {
        text += "[";
    }
    const auto file = folder.Write("deep.json", text);
    const auto run = RunWith({"usage", "--config", file.string()});
    EXPECT_EQ(run.signal, 0);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, "spacemgm: " + file.string() + ": is not JSON: nested more than 1000 levels deep\n");
}

TEST(ProgramInterface, AServiceUrlOfAnotherProtocolIsRefused)
{
    TempFolder folder;
    const auto file = folder.Write("file.json", R"({"services": {"accountQuota": "file:///etc/passwd#"}})");
    const auto run = RunWith({"usage", "--config", file.string()});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, "spacemgm: " + file.string() +
                           ": \"services.accountQuota\" must be an absolute http:// or https:// URL\n");
}

TEST(ProgramInterface, TheEmulatorsHelpWorksAndItsUsageIsComplete)
{
    const auto [status, output] = RunCloud("--help");
    EXPECT_EQ(status, 0) << output;
    for (const char* option : {"--port", "--fixture", "--state", "--tls", "--faults", "--write-config",
                               "--ca-file", "--threads", "--start-delay-ms", "--help"}) {
        EXPECT_NE(output.find(option), std::string::npos) << option << " missing from:\n" << output;
    }
}
