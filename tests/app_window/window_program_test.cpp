// `spacemgm window --png` against spacemgm-cloud: each option, each error
// path, exit codes and messages.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "program_run.h"

namespace {

using app_window_test::FindControl;
using app_window_test::OutputFolder;
using app_window_test::ProgramResult;
using app_window_test::ReadDump;
using app_window_test::RunWindow;
using spacemgm_test::CloudEmulator;

constexpr int kPageLoading = 0;
constexpr int kPageContent = 1;
constexpr int kPageEmpty = 2;
constexpr int kPageFailed = 3;

struct Files
{
    std::string png;
    std::string dump;
};

Files FreshFiles(const std::string& name)
{
    const std::string folder = OutputFolder("program");
    Files files{folder + "/" + name + ".png", folder + "/" + name + ".json"};
    std::filesystem::remove(files.png);
    std::filesystem::remove(files.dump);
    return files;
}

int Selected(const Json::Value& dump, const std::string& name)
{
    const Json::Value* control = FindControl(dump["controls"], name);
    return control != nullptr ? (*control)["selected"].asInt() : -2;
}

bool ContainsText(const Json::Value& control, const std::string& text)
{
    if (control["text"].asString() == text)
        return true;
    for (const Json::Value& child : control["children"]) {
        if (ContainsText(child, text))
            return true;
    }
    return false;
}

// The index of the SpaceList row that shows `label`, or -1.
int RowShowing(const Json::Value& dump, const std::string& label)
{
    const Json::Value* list = FindControl(dump["controls"], "SpaceList");
    for (Json::ArrayIndex i = 0; list != nullptr && i < (*list)["children"].size(); ++i) {
        if (ContainsText((*list)["children"][i], label))
            return static_cast<int>(i);
    }
    return -1;
}

std::size_t Lines(const std::string& text)
{
    std::size_t lines = 0;
    for (char c : text)
        lines += c == '\n' ? 1 : 0;
    return lines;
}

Json::Value FaultRule(const std::string& service, const std::string& kind)
{
    Json::Value rule;
    rule["service"] = service;
    rule["kind"] = kind;
    return rule;
}

ProgramResult RunWithResources(const std::string& root, const std::vector<std::string>& more = {})
{
    CloudEmulator cloud;
    const Files files = FreshFiles("resources");
    std::vector<std::string> arguments = {"--png", files.png, "--res", root};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return RunWindow(cloud, arguments);
}

} // namespace

TEST(WindowProgram, TheSampleAccountIsWrittenWithTheFirstRowSelectedAndExitsZero)
{
    CloudEmulator cloud;
    const Files files = FreshFiles("sample");
    const ProgramResult run = RunWindow(cloud, {"--png", files.png, "--dump-controls", files.dump});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "");
    int width = 0;
    int height = 0;
    ASSERT_TRUE(app_window_test::PngSize(files.png, width, height));
    const Json::Value dump = ReadDump(files.dump);
    ASSERT_TRUE(dump.isObject());
    EXPECT_EQ(width, dump["controls"]["width"].asInt());
    EXPECT_EQ(height, dump["controls"]["height"].asInt());
    EXPECT_EQ(Selected(dump, "tab_switch"), kPageContent);
    EXPECT_EQ(Selected(dump, "SpaceList"), 0);
    EXPECT_EQ((*FindControl(dump["controls"], "SpaceList"))["children"].size(), 12u);
    EXPECT_EQ((*FindControl(dump["controls"], "lb_space_info"))["text"].asString(), "120 GB of 200 GB used");
}

TEST(WindowProgram, WithoutASubcommandTheProgramRunsTheWindow)
{
    CloudEmulator cloud;
    const Files files = FreshFiles("no-subcommand");
    const ProgramResult run = app_window_test::RunProgram(
        {"--png", files.png, "--config", cloud.ConfigPath()}, {{"XDG_DATA_HOME", cloud.WorkDir() + "/data"}});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_TRUE(std::filesystem::exists(files.png));
}

TEST(WindowProgram, SelectByNameClicksThatRowAndShowsItsPanel)
{
    CloudEmulator cloud;
    const Files files = FreshFiles("select-gallery");
    const ProgramResult run =
        RunWindow(cloud, {"--png", files.png, "--dump-controls", files.dump, "--select", "Gallery"});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    const Json::Value dump = ReadDump(files.dump);
    const int galleryRow = RowShowing(dump, "Gallery");
    ASSERT_GT(galleryRow, 0);
    EXPECT_EQ(Selected(dump, "SpaceList"), galleryRow);
    // The gallery's panel replaces the device list.
    EXPECT_FALSE((*FindControl(dump["controls"], "BackupList"))["shown"].asBool());
    EXPECT_TRUE((*FindControl(dump["controls"], "opr_btn"))["shown"].asBool());
}

TEST(WindowProgram, SelectByNumberIsTheSameAsByName)
{
    CloudEmulator cloud;
    const Files byNumber = FreshFiles("select-10");
    const Files byName = FreshFiles("select-phone");
    ASSERT_EQ(RunWindow(cloud, {"--png", byNumber.png, "--dump-controls", byNumber.dump, "--select", "10"})
                  .exitCode,
              0);
    ASSERT_EQ(
        RunWindow(cloud, {"--png", byName.png, "--dump-controls", byName.dump, "--select", "Phone"}).exitCode,
        0);
    // The first row is selected without --select; call records come later.
    const int byNumberRow = Selected(ReadDump(byNumber.dump), "SpaceList");
    EXPECT_GT(byNumberRow, 0);
    EXPECT_EQ(byNumberRow, Selected(ReadDump(byName.dump), "SpaceList"));
}

TEST(WindowProgram, SelectingACategoryWithNoRowNamesItAndTheRowsThereAre)
{
    CloudEmulator cloud;
    cloud.AddFault(FaultRule("cbs", "empty"));
    const Files files = FreshFiles("select-missing");
    const ProgramResult run = RunWindow(cloud, {"--png", files.png, "--select", "CloudBackUp"});
    EXPECT_EQ(run.exitCode, 2);
    // The refusal, then the exchange that failed and took the row away.
    EXPECT_EQ(Lines(run.err), 2u) << run.err;
    EXPECT_EQ(run.err.rfind("spacemgm: --select: no row for CloudBackUp (5); the rows are ", 0), 0u)
        << run.err;
    EXPECT_NE(run.err.find("\ncloud backup: /CloudBackup/ClientServlet: empty reply\n"), std::string::npos)
        << run.err;
    for (const char* row : {"Gallery", "CloudDisk", "Recorder", "HarassmentInterception"})
        EXPECT_NE(run.err.find(row), std::string::npos) << row << " in " << run.err;
    EXPECT_EQ(run.err.find("are CloudBackUp"), std::string::npos) << run.err;
    EXPECT_FALSE(std::filesystem::exists(files.png));
}

TEST(WindowProgram, SelectingOnTheEmptyPageSaysTheWindowShowsNoRows)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("empty"));
    const Files files = FreshFiles("select-empty");
    const ProgramResult run = RunWindow(cloud, {"--png", files.png, "--select", "Message"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, "spacemgm: --select: no row for Message (9); the window shows no rows\n");
}

TEST(WindowProgram, TheEmptyAccountGivesTheEmptyPage)
{
    CloudEmulator cloud(CloudEmulator::Options::ForFixture("empty"));
    const Files files = FreshFiles("empty");
    ASSERT_EQ(RunWindow(cloud, {"--png", files.png, "--dump-controls", files.dump}).exitCode, 0);
    EXPECT_EQ(Selected(ReadDump(files.dump), "tab_switch"), kPageEmpty);
}

// With the network up, a load that reaches no service finds no category.
TEST(WindowProgram, NoEmulatorWithTheNetworkUpGivesTheEmptyPage)
{
    CloudEmulator cloud;
    const Files files = FreshFiles("no-emulator");
    cloud.Stop();
    const ProgramResult run = RunWindow(cloud, {"--png", files.png, "--dump-controls", files.dump});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(Selected(ReadDump(files.dump), "tab_switch"), kPageEmpty);
    // The page cannot tell an empty account from a service out of reach; the
    // program names the exchanges that failed.
    EXPECT_NE(run.err.find("account quota: "), std::string::npos) << run.err;
}

TEST(WindowProgram, AConfigurationWithNoServiceIsRefusedInsteadOfShowingAnEmptyAccount)
{
    CloudEmulator cloud;
    const std::string none = cloud.WorkDir() + "/no-services.json";
    std::ofstream(none) << "{}";
    const Files files = FreshFiles("no-services");
    const ProgramResult run = RunWindow(cloud, {"--png", files.png, "--config", none});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_NE(run.err.find("spacemgm: no service is configured (" + none + " names none)"), std::string::npos)
        << run.err;
    EXPECT_FALSE(std::filesystem::exists(files.png));
}

TEST(WindowProgram, WithoutTheNetworkTheLoadEndsOnTheFailedPage)
{
    CloudEmulator cloud;
    Json::Value config = ReadDump(cloud.ConfigPath());
    config["network"]["mode"] = "offline";
    const std::string offline = cloud.WorkDir() + "/offline.json";
    std::ofstream(offline) << config.toStyledString();
    const Files files = FreshFiles("offline");
    const ProgramResult run =
        RunWindow(cloud, {"--png", files.png, "--dump-controls", files.dump, "--config", offline});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(Selected(ReadDump(files.dump), "tab_switch"), kPageFailed);
}

TEST(WindowProgram, ALoadNotEndedWithinTheTimeoutWritesWhatIsShownAndExitsThree)
{
    CloudEmulator cloud;
    Json::Value hang = FaultRule("accountQuota", "hang");
    hang["hangMs"] = 120000;
    cloud.AddFault(hang);
    const Files files = FreshFiles("timeout");
    const ProgramResult run =
        RunWindow(cloud, {"--png", files.png, "--dump-controls", files.dump, "--timeout", "2"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err,
              "spacemgm: the load has not ended after 2 s; " + files.png + " shows the window as it is\n");
    EXPECT_TRUE(std::filesystem::exists(files.png));
    EXPECT_EQ(Selected(ReadDump(files.dump), "tab_switch"), kPageLoading);
}

TEST(WindowProgram, ScaleTwoDoublesThePictureAndTheDumpsPixels)
{
    CloudEmulator cloud;
    const Files files = FreshFiles("scale2");
    ASSERT_EQ(RunWindow(cloud, {"--png", files.png, "--dump-controls", files.dump, "--scale", "2"}).exitCode,
              0);
    int width = 0;
    int height = 0;
    ASSERT_TRUE(app_window_test::PngSize(files.png, width, height));
    const Json::Value dump = ReadDump(files.dump);
    EXPECT_EQ(width, 1840);
    EXPECT_EQ(height, 1320);
    EXPECT_EQ(dump["controls"]["width"].asInt(), 1840);
    EXPECT_EQ((*FindControl(dump["controls"], "btn_close"))["width"].asInt(), 64);
}

TEST(WindowProgram, TheLanguageOptionChangesTheTexts)
{
    CloudEmulator cloud;
    const Files files = FreshFiles("lang-ru");
    ASSERT_EQ(
        RunWindow(cloud, {"--png", files.png, "--dump-controls", files.dump, "--lang", "ru-RU"}).exitCode, 0);
    const std::string line =
        (*FindControl(ReadDump(files.dump)["controls"], "lb_space_info"))["text"].asString();
    EXPECT_NE(line, "120 GB of 200 GB used");
    EXPECT_NE(line.find("200"), std::string::npos) << line;
    EXPECT_NE(line.find("\xD0"), std::string::npos) << "no Cyrillic in " << line;
}

TEST(WindowProgram, AnUnknownLanguageIsRefusedListingTheLanguagesThereAre)
{
    CloudEmulator cloud;
    const ProgramResult run = RunWindow(cloud, {"--png", FreshFiles("lang-xx").png, "--lang", "de-DE"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err,
              "spacemgm: --lang: unknown language \"de-DE\"; there are en-US, ru-RU, th-TH, zh-CN\n");
}

TEST(WindowProgram, AnUnknownLanguageInTheConfigurationIsNamedAsTheConfigurations)
{
    CloudEmulator cloud;
    Json::Value config = ReadDump(cloud.ConfigPath());
    config["language"] = "xx-XX";
    const std::string path = cloud.WorkDir() + "/language.json";
    std::ofstream(path) << config.toStyledString();
    const ProgramResult run = RunWindow(cloud, {"--png", FreshFiles("lang-config").png, "--config", path});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err,
              "spacemgm: the configuration's \"language\": unknown language \"xx-XX\"; there are en-US, "
              "ru-RU, th-TH, zh-CN\n");
}

TEST(WindowProgram, BadScaleSelectAndTimeoutAreRefusedWithExitTwo)
{
    CloudEmulator cloud;
    const std::string png = FreshFiles("bad-options").png;
    const ProgramResult scale = RunWindow(cloud, {"--png", png, "--scale", "0"});
    EXPECT_EQ(scale.exitCode, 2);
    EXPECT_NE(scale.err.find("spacemgm: --scale: \"0\" is not a number from 1 to 4"), std::string::npos)
        << scale.err;
    const ProgramResult select = RunWindow(cloud, {"--png", png, "--select", "Photos"});
    EXPECT_EQ(select.exitCode, 2);
    EXPECT_NE(select.err.find("spacemgm: --select: \"Photos\" is not a category"), std::string::npos)
        << select.err;
    const ProgramResult timeout = RunWindow(cloud, {"--png", png, "--timeout", "soon"});
    EXPECT_EQ(timeout.exitCode, 2);
    EXPECT_NE(timeout.err.find("spacemgm: --timeout: \"soon\" is not a whole number"), std::string::npos)
        << timeout.err;
    EXPECT_FALSE(std::filesystem::exists(png));
}

TEST(WindowProgram, APngThatCannotBeWrittenIsNamedWithExitOne)
{
    CloudEmulator cloud;
    const std::string png = OutputFolder("program") + "/no-such-folder/window.png";
    const ProgramResult run = RunWindow(cloud, {"--png", png});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "spacemgm: cannot write " + png + "\n");
}

TEST(WindowProgram, WithoutADisplayTheWindowSaysSoInOneLineAndExitsTwo)
{
    CloudEmulator cloud;
    const ProgramResult run =
        RunWindow(cloud, {}, {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}, {"SPACEMGM_TOOLKIT_BACKEND", ""}});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(Lines(run.err), 1u) << run.err;
    EXPECT_EQ(run.err.rfind("spacemgm: no display to show the window on", 0), 0u) << run.err;
    EXPECT_NE(run.err.find("--png FILE"), std::string::npos) << run.err;
    EXPECT_NE(run.err.find("xvfb-run"), std::string::npos) << run.err;
}

TEST(WindowProgram, ABrokenWindowSkinIsNamedWithItsLine)
{
    const std::string root = app_window_test::CopyOfResources("broken-skin");
    std::ofstream(root + "/Res/skin/SpaceMgm/SpaceMgmWnd.xml", std::ios::trunc)
        << "<Window size=\"10,10\">\n<VerticalLayout>\n<Label text=\"x\" \n</Window>\n";
    const ProgramResult run = RunWithResources(root);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(Lines(run.err), 1u) << run.err;
    EXPECT_NE(run.err.find("skin/SpaceMgm/SpaceMgmWnd.xml:4: XML: "), std::string::npos) << run.err;
}

TEST(WindowProgram, AMissingRowSkinIsNamed)
{
    const std::string root = app_window_test::CopyOfResources("missing-row-skin");
    std::filesystem::remove(root + "/Res/skin/SpaceMgm/BackupItem.xml");
    const ProgramResult run = RunWithResources(root);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(Lines(run.err), 1u) << run.err;
    EXPECT_NE(run.err.find("skin/SpaceMgm/BackupItem.xml: cannot open skin file"), std::string::npos)
        << run.err;
}

TEST(WindowProgram, AMissingIconIsNamed)
{
    const std::string root = app_window_test::CopyOfResources("missing-icon");
    std::filesystem::remove(root + "/Res/skin/SpaceMgm/wifi.svg");
    const ProgramResult run = RunWithResources(root);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(Lines(run.err), 1u) << run.err;
    EXPECT_NE(run.err.find("SpaceMgm/wifi.svg"), std::string::npos) << run.err;
}

TEST(WindowProgram, ABrokenLanguageFileIsNamedWithItsLine)
{
    const std::string root = app_window_test::CopyOfResources("broken-language");
    std::ofstream(root + "/Res/lang/th-TH.json", std::ios::trunc)
        << "{\n  \"IDS_A\": \"a\",\n  \"IDS_B\" \"b\"\n}\n";
    const ProgramResult run = RunWithResources(root, {"--lang", "th-TH"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(Lines(run.err), 1u) << run.err;
    EXPECT_NE(run.err.find("Res/lang/th-TH.json:3:"), std::string::npos) << run.err;
}

TEST(WindowProgram, HelpDocumentsTheWindowAndItsExitCodes)
{
    const ProgramResult run = app_window_test::RunProgram({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    for (const char* part : {"spacemgm [window]", "--png FILE", "--dump-controls FILE", "--select TYPE",
                             "--timeout SECONDS", "--res DIR", "\"exit 0 jump MESSAGE PARAM\"",
                             "Exit status of window", "3  the load did not end within --timeout"})
        EXPECT_NE(run.out.find(part), std::string::npos) << part << " in\n" << run.out;
}
