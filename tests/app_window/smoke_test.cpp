// `spacemgm` in a real SDL2 window under Xvfb: rows clicked with xdotool at
// the positions the live control dump gives, a screen capture probed for
// the bar's segment colours and the selected row's highlight, and the
// program's answer on stdout when a button ends it. Skipped where xvfb-run,
// xdotool or xwd is missing.
#include <gtest/gtest.h>

#include <set>

#include "program_run.h"
#include "real_window.h"

namespace {

using app_window_test::FindControl;
using app_window_test::RealWindow;
using spacemgm_test::CloudEmulator;

constexpr int kPageLoading = 0;
constexpr int kPageContent = 1;
// itemselectedbkcolor of SpaceList in the window's skin.
constexpr std::uint32_t kSelectedRow = 0xE8F0FF;

int Selected(const Json::Value& dump, const char* name)
{
    const Json::Value* control = FindControl(dump["controls"], name);
    return control != nullptr ? (*control)["selected"].asInt() : -2;
}

std::uint32_t Rgb(const std::string& argb)
{
    return static_cast<std::uint32_t>(std::stoul(argb.substr(3), nullptr, 16));
}

const Json::Value& Rows(const Json::Value& dump)
{
    return (*FindControl(dump["controls"], "SpaceList"))["children"];
}

bool HasText(const Json::Value& control, const std::string& text)
{
    if (control["text"].asString() == text)
        return true;
    for (const Json::Value& child : control["children"]) {
        if (HasText(child, text))
            return true;
    }
    return false;
}

// Opens the window and waits for the sample account's list with the bar
// standing still; the dump then.
Json::Value OpenWithList(RealWindow& window)
{
    if (!window.WaitForWindow())
        return Json::Value();
    if (window.WaitForDump([](const Json::Value& d) { return Selected(d, "tab_switch") == kPageContent; })
            .isNull())
        return Json::Value();
    return window.WaitUntilStill();
}

} // namespace

TEST(WindowSmoke, RowsClickedInTheRealWindowAreHighlightedAndTheCloseButtonAnswersExit1)
{
    if (!app_window_test::ToolsForRealWindows())
        GTEST_SKIP() << "xvfb-run, xdotool and xwd are needed for the smoke test";
    CloudEmulator cloud;
    RealWindow window(cloud, "rows");
    const Json::Value listed = OpenWithList(window);
    ASSERT_TRUE(listed.isObject()) << "no still window with a list in " << window.Folder();
    ASSERT_EQ(Rows(listed).size(), 12u);
    ASSERT_EQ(Selected(listed, "SpaceList"), 0);

    for (int row : {3, 1}) {
        ASSERT_TRUE(window.Click(Rows(listed)[row]));
        const Json::Value clicked =
            window.WaitForDump([row](const Json::Value& d) { return Selected(d, "SpaceList") == row; });
        ASSERT_TRUE(clicked.isObject()) << "row " << row << " was not selected";
    }
    const Json::Value still = window.WaitUntilStill();
    ASSERT_TRUE(still.isObject());

    uitest::Screen screen;
    ASSERT_TRUE(window.Capture(screen, "rows.png"));
    // Each segment of the bar wide enough to probe shows its colour.
    std::set<std::uint32_t> colours;
    for (const char* name :
         {"pro_space_cloud_backup", "pro_space_cloud_disk", "pro_space_gallery", "pro_space_app_data"}) {
        const Json::Value& bar = *FindControl(still["controls"], name);
        ASSERT_TRUE(bar["shown"].asBool()) << name;
        ASSERT_GE(bar["width"].asInt(), 6) << name;
        const int x = window.left() + bar["x"].asInt() + bar["width"].asInt() / 2;
        const int y = window.top() + bar["y"].asInt() + bar["height"].asInt() / 2;
        EXPECT_EQ(screen.At(x, y), Rgb(bar["foreColor"].asString()))
            << name << std::hex << " " << screen.At(x, y);
        colours.insert(screen.At(x, y));
    }
    EXPECT_EQ(colours.size(), 4u);
    // The selected row is highlighted; the row that was selected before is not.
    const auto rowPixel = [&](int row) {
        const Json::Value& r = Rows(still)[row];
        return screen.At(window.left() + r["x"].asInt() + 6,
                         window.top() + r["y"].asInt() + r["height"].asInt() / 2);
    };
    EXPECT_EQ(rowPixel(1), kSelectedRow) << std::hex << rowPixel(1);
    EXPECT_NE(rowPixel(3), kSelectedRow) << std::hex << rowPixel(3);
    EXPECT_NE(rowPixel(0), kSelectedRow) << std::hex << rowPixel(0);

    ASSERT_TRUE(window.Click(*FindControl(still["controls"], "btn_close")));
    EXPECT_EQ(window.WaitForExit(), "exit 1\n");
}

TEST(WindowSmoke, AJumpFromTheGalleryPanelAnswersExit0WithTheJump)
{
    if (!app_window_test::ToolsForRealWindows())
        GTEST_SKIP() << "xvfb-run, xdotool and xwd are needed for the smoke test";
    CloudEmulator cloud;
    RealWindow window(cloud, "jump");
    const Json::Value listed = OpenWithList(window);
    ASSERT_TRUE(listed.isObject()) << "no still window with a list in " << window.Folder();
    int gallery = -1;
    for (Json::ArrayIndex i = 0; i < Rows(listed).size(); ++i) {
        if (HasText(Rows(listed)[i], "Gallery"))
            gallery = static_cast<int>(i);
    }
    ASSERT_GT(gallery, 0);
    ASSERT_TRUE(window.Click(Rows(listed)[gallery]));
    const Json::Value panel = window.WaitForDump([gallery](const Json::Value& d) {
        const Json::Value* button = FindControl(d["controls"], "opr_btn");
        return Selected(d, "SpaceList") == gallery && button != nullptr && (*button)["shown"].asBool();
    });
    ASSERT_TRUE(panel.isObject());
    ASSERT_TRUE(window.Click(*FindControl(window.WaitUntilStill()["controls"], "opr_btn")));
    EXPECT_EQ(window.WaitForExit(), "exit 0 jump 3222 2\n");
}

TEST(WindowSmoke, TheCloseButtonEndsTheProgramAtOnceWhileALoadIsBlocked)
{
    if (!app_window_test::ToolsForRealWindows())
        GTEST_SKIP() << "xvfb-run, xdotool and xwd are needed for the smoke test";
    CloudEmulator cloud;
    Json::Value hang;
    hang["service"] = "accountQuota";
    hang["kind"] = "hang";
    hang["hangMs"] = 120000;
    cloud.AddFault(hang);
    RealWindow window(cloud, "blocked");
    ASSERT_TRUE(window.WaitForWindow());
    const Json::Value loading = window.WaitForDump([](const Json::Value& d) {
        const Json::Value* close = FindControl(d["controls"], "btn_close");
        return Selected(d, "tab_switch") == kPageLoading && close != nullptr && (*close)["width"].asInt() > 0;
    });
    ASSERT_TRUE(loading.isObject());
    // The quota request is held by the emulator: the load cannot end.
    ASSERT_TRUE(window.Click(*FindControl(loading["controls"], "btn_close")));
    // The hang lasts two minutes; the program must be gone well before.
    const std::string answer = window.WaitForExit(20000);
    EXPECT_EQ(answer, "exit 1\n");
    uitest::Screen screen;
    if (answer.empty() && window.Capture(screen, "still-open.png"))
        ADD_FAILURE() << "the window is still open: " << window.Folder() << "/still-open.png";
}
