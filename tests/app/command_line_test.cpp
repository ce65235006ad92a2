#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/command_line.h"

namespace {

std::string ErrorOf(const std::vector<std::string>& arguments)
{
    try {
        app::ParseCommandLine(arguments);
    } catch (const app::UsageError& error) {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(CommandLine, UsageWithItsOptions)
{
    const app::CommandLine line =
        app::ParseCommandLine({"usage", "--json", "--config", "c.json", "--timeout", "7"});
    EXPECT_EQ(line.command, app::Command::Usage);
    EXPECT_TRUE(line.json);
    EXPECT_EQ(line.configPath, "c.json");
    EXPECT_EQ(line.timeoutSeconds, 7);
}

TEST(CommandLine, EachDeleteTarget)
{
    EXPECT_EQ(app::ParseCommandLine({"delete", "messages"}).target, app::DeleteTarget::Messages);
    EXPECT_EQ(app::ParseCommandLine({"delete", "calls"}).target, app::DeleteTarget::Calls);
    EXPECT_EQ(app::ParseCommandLine({"delete", "harassment"}).target, app::DeleteTarget::Harassment);
    const app::CommandLine backup = app::ParseCommandLine({"delete", "backup", "bk-1"});
    EXPECT_EQ(backup.target, app::DeleteTarget::Backup);
    EXPECT_EQ(backup.deviceId, "bk-1");
}

TEST(CommandLine, HelpAndVersionWinOverEverythingElse)
{
    EXPECT_EQ(app::ParseCommandLine({"--help"}).command, app::Command::Help);
    EXPECT_EQ(app::ParseCommandLine({"usage", "-h"}).command, app::Command::Help);
    EXPECT_EQ(app::ParseCommandLine({"--version"}).command, app::Command::Version);
    EXPECT_EQ(app::ParseCommandLine({"nonsense", "--version"}).command, app::Command::Version);
}

TEST(CommandLine, AnUnknownSubcommandOrOptionNamesItself)
{
    EXPECT_EQ(ErrorOf({"usgae"}), "unknown subcommand \"usgae\"");
    EXPECT_EQ(ErrorOf({"usage", "--jsn"}), "unknown option \"--jsn\"");
    EXPECT_EQ(ErrorOf({"delete", "photos"}),
              "cannot delete \"photos\": messages, calls, harassment or backup DEVICE");
    EXPECT_EQ(ErrorOf({"usage", "extra"}), "unexpected argument \"extra\"");
    EXPECT_EQ(ErrorOf({"delete", "messages", "all"}), "unexpected argument \"all\"");
    EXPECT_EQ(ErrorOf({}), "no subcommand given");
}

TEST(CommandLine, WordsFromTheCommandLineAreEscapedInMessages)
{
    EXPECT_EQ(ErrorOf({"us\x1B[2Jage"}), "unknown subcommand \"us\\x1B[2Jage\"");
}

TEST(CommandLine, OptionsThatNeedAValue)
{
    EXPECT_EQ(ErrorOf({"usage", "--config"}), "--config needs a file");
    EXPECT_EQ(ErrorOf({"usage", "--timeout"}), "--timeout needs a number of seconds");
    EXPECT_EQ(ErrorOf({"delete", "backup"}), "delete backup needs the device's id");
    EXPECT_EQ(ErrorOf({"delete"}),
              "delete needs what to delete: messages, calls, harassment or backup DEVICE");
}

TEST(CommandLine, TheTimeoutIsAWholeNumberAboveZero)
{
    for (const char* bad : {"0", "-3", "2.5", "ten", "", "99999999999"}) {
        EXPECT_EQ(ErrorOf({"usage", "--timeout", bad}),
                  std::string("--timeout needs a whole number of seconds above 0, not \"") + bad + "\"")
            << bad;
    }
}

TEST(CommandLine, JsonIsForUsageOnly)
{
    EXPECT_EQ(ErrorOf({"delete", "messages", "--json"}), "--json applies to usage only");
}

TEST(CommandLine, HelpListsSubcommandsOptionsAndExitCodes)
{
    const std::string help = app::HelpText();
    for (const char* needed :
         {"usage", "delete messages", "delete calls", "delete harassment", "delete backup DEVICE",
          "--config FILE", "--json", "--timeout SECONDS", "--help", "--version", "Exit status", "  0  ",
          "  1  ", "  2  ", "  3  ", "  4  "}) {
        EXPECT_NE(help.find(needed), std::string::npos) << needed;
    }
}
