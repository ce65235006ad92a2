// The control dump of `spacemgm window --dump-controls`, field by field:
// {"window": <class name>, "controls": <root>}, each control with name,
// class, text, visible, shown, x, y, width, height, then selected (tab
// layouts and lists), value/min/max (progress), foreColor/bkColor (where
// set), children; one control a line.
#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "program_run.h"

namespace {

using app_window_test::FindControl;

// The keys of the first JSON object on `line`, in order, down to its
// "children" (whose members belong to the next lines).
std::vector<std::string> TopLevelKeys(const std::string& line)
{
    std::vector<std::string> keys;
    int depth = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (c == '"') {
            std::size_t end = i + 1;
            while (end < line.size() && line[end] != '"')
                end += line[end] == '\\' ? 2 : 1;
            if (depth == 1 && line.compare(end + 1, 2, ": ") == 0)
                keys.push_back(line.substr(i + 1, end - i - 1));
            i = end;
        } else if (c == '{' || c == '[') {
            ++depth;
        } else if (c == '}' || c == ']') {
            --depth;
        }
    }
    return keys;
}

// The keys a control line must have, given which optional ones it carries.
std::vector<std::string> ExpectedKeys(const std::vector<std::string>& keys)
{
    const auto has = [&keys](const char* key) {
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    };
    std::vector<std::string> expected = {"name", "class", "text",  "visible", "shown",
                                         "x",    "y",     "width", "height"};
    if (has("selected"))
        expected.push_back("selected");
    if (has("value")) {
        for (const char* key : {"value", "min", "max"})
            expected.push_back(key);
    }
    for (const char* key : {"foreColor", "bkColor"}) {
        if (has(key))
            expected.push_back(key);
    }
    expected.push_back("children");
    return expected;
}

struct Walk
{
    int controls = 0;
    int withSelected = 0;
    int progress = 0;
    int coloured = 0;
    std::vector<std::string> problems;
};

void CheckControl(const Json::Value& control, bool parentShown, const std::string& path, Walk& walk)
{
    ++walk.controls;
    const std::string where = path + "/" + control["name"].asString();
    const auto problem = [&walk, &where](const std::string& what) {
        walk.problems.push_back(where + ": " + what);
    };
    for (const char* key : {"name", "class", "text"}) {
        if (!control[key].isString())
            problem(std::string(key) + " is not a string");
    }
    for (const char* key : {"visible", "shown"}) {
        if (!control[key].isBool())
            problem(std::string(key) + " is not a boolean");
    }
    for (const char* key : {"x", "y", "width", "height"}) {
        if (!control[key].isInt())
            problem(std::string(key) + " is not a whole number");
    }
    if (control["width"].asInt() < 0 || control["height"].asInt() < 0)
        problem("negative size");
    const bool shown = parentShown && control["visible"].asBool();
    if (control["shown"].asBool() != shown)
        problem("shown is not visible-and-every-parent-visible");
    const std::string cls = control["class"].asString();
    const bool tabOrList =
        cls == "TabLayoutUI" || cls.find("ListView") != std::string::npos || cls == "ListUI";
    if (control.isMember("selected") != tabOrList)
        problem("selected on a " + cls);
    if (control.isMember("selected"))
        ++walk.withSelected;
    const bool progress = cls == "ProgressUI";
    for (const char* key : {"value", "min", "max"}) {
        if (control.isMember(key) != progress || (progress && !control[key].isInt()))
            problem(std::string(key) + " on a " + cls);
    }
    walk.progress += progress ? 1 : 0;
    static const std::regex colour("#[0-9A-F]{8}");
    for (const char* key : {"foreColor", "bkColor"}) {
        if (control.isMember(key)) {
            ++walk.coloured;
            if (!std::regex_match(control[key].asString(), colour))
                problem(std::string(key) + " is not #AARRGGBB: " + control[key].asString());
        }
    }
    if (!control["children"].isArray())
        problem("children is not an array");
    for (const Json::Value& child : control["children"])
        CheckControl(child, shown, where, walk);
}

} // namespace

TEST(WindowDump, EveryControlHasTheDocumentedFieldsInOrderOnALineOfItsOwn)
{
    spacemgm_test::CloudEmulator cloud;
    const std::string folder = app_window_test::OutputFolder("dump");
    const std::string dumpPath = folder + "/sample.json";
    const auto run =
        app_window_test::RunWindow(cloud, {"--png", folder + "/sample.png", "--dump-controls", dumpPath});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    const std::string text = app_window_test::ReadWhole(dumpPath);
    const Json::Value dump = app_window_test::ReadDump(dumpPath);
    ASSERT_TRUE(dump.isObject()) << text.substr(0, 200);
    EXPECT_EQ(dump.getMemberNames(), (std::vector<std::string>{"controls", "window"}));
    EXPECT_EQ(text.rfind("{\"window\": \"SpaceMgmWnd\", \"controls\":\n", 0), 0u) << text.substr(0, 80);

    Walk walk;
    CheckControl(dump["controls"], true, "", walk);
    for (const std::string& problem : walk.problems)
        ADD_FAILURE() << problem;
    EXPECT_GT(walk.controls, 100);
    EXPECT_GE(walk.withSelected, 3); // tab_switch, tab_right, SpaceList, BackupList at least
    EXPECT_GE(walk.progress, 6);     // the five groups and the full bar
    EXPECT_GT(walk.coloured, 0);

    // One control a line, indented two blanks a level, keys in order.
    std::istringstream lines(text);
    std::string line;
    int controlLines = 0;
    while (std::getline(lines, line)) {
        const std::size_t start = line.find_first_not_of(' ');
        if (start == std::string::npos || line.compare(start, 9, "{\"name\": ") != 0)
            continue;
        ++controlLines;
        EXPECT_EQ(start % 2, 0u) << line;
        const std::vector<std::string> keys = TopLevelKeys(line.substr(start));
        EXPECT_EQ(keys, ExpectedKeys(keys)) << line;
    }
    EXPECT_EQ(controlLines, walk.controls);
}

TEST(WindowDump, PositionsAreWindowPixelsAndListRowsAreChildrenInRowOrder)
{
    spacemgm_test::CloudEmulator cloud;
    const std::string folder = app_window_test::OutputFolder("dump");
    const std::string one = folder + "/scale1.json";
    const std::string half = folder + "/scale15.json";
    ASSERT_EQ(
        app_window_test::RunWindow(cloud, {"--png", folder + "/scale1.png", "--dump-controls", one}).exitCode,
        0);
    ASSERT_EQ(app_window_test::RunWindow(
                  cloud, {"--png", folder + "/scale15.png", "--dump-controls", half, "--scale", "1.5"})
                  .exitCode,
              0);
    const Json::Value atOne = app_window_test::ReadDump(one);
    const Json::Value atHalf = app_window_test::ReadDump(half);
    const Json::Value* close1 = FindControl(atOne["controls"], "btn_close");
    const Json::Value* close15 = FindControl(atHalf["controls"], "btn_close");
    ASSERT_TRUE(close1 != nullptr && close15 != nullptr);
    EXPECT_EQ((*close15)["x"].asInt(), (*close1)["x"].asInt() * 3 / 2);
    EXPECT_EQ((*close15)["width"].asInt(), (*close1)["width"].asInt() * 3 / 2);

    const Json::Value& rows = (*FindControl(atOne["controls"], "SpaceList"))["children"];
    ASSERT_EQ(rows.size(), 12u);
    for (Json::ArrayIndex i = 1; i < rows.size(); ++i)
        EXPECT_GT(rows[i]["y"].asInt(), rows[i - 1]["y"].asInt()) << "row " << i;
    const Json::Value* tab = FindControl(atOne["controls"], "tab_switch");
    ASSERT_NE(tab, nullptr);
    for (Json::ArrayIndex i = 0; i < (*tab)["children"].size(); ++i)
        EXPECT_EQ((*tab)["children"][i]["visible"].asBool(),
                  static_cast<int>(i) == (*tab)["selected"].asInt());
}
