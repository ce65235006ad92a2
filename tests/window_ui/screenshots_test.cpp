// Every page of the window in four languages and at three scales: each
// writes its PNGs under build/test-output/window/ and fails when a shown text
// does not fit its place or a control reaches out of its parent.
#include <gtest/gtest.h>

#include "space_window_session.h"
#include "window/error_wnd.h"
#include "window/toolkit_texts.h"

namespace {

using namespace window_ui;

struct Look
{
    std::wstring language;
    int dpi;
};

void PrintTo(const Look& look, std::ostream* out)
{
    *out << attr::Narrow(look.language) << " at " << look.dpi << " dpi";
}

std::string NameOf(const Look& look)
{
    std::string name = attr::Narrow(look.language);
    name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
    return name + "_" + std::to_string(look.dpi * 100 / 96);
}

std::string Join(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += "\n  " + line;
    return text;
}

SessionOptions OptionsFor(const Look& look, std::string fixture = "sample")
{
    SessionOptions options;
    options.fixture = std::move(fixture);
    options.language = look.language;
    options.dpi = look.dpi;
    return options;
}

void ExpectTidy(SpaceWindowSession& session, const std::string& shot)
{
    const std::string path = session.Screenshot(shot);
    const auto problems = session.LayoutProblems();
    EXPECT_TRUE(problems.empty()) << path << Join(problems);
}

class WindowLooks : public ::testing::TestWithParam<Look>
{
};

} // namespace

TEST_P(WindowLooks, TheListWithTheBackupPanelAndACategoryPanel)
{
    const Look look = GetParam();
    SpaceWindowSession session(OptionsFor(look));
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    ExpectTidy(session, "content_backup_" + NameOf(look));
    ASSERT_TRUE(session.ClickRow(session.RowOf(Gallery)));
    ExpectTidy(session, "content_gallery_" + NameOf(look));
    ASSERT_TRUE(session.ClickRow(session.RowOf(Message)));
    ExpectTidy(session, "content_messages_" + NameOf(look));
    ASSERT_TRUE(session.ClickRow(session.SpaceRowCount() - 1));
    ExpectTidy(session, "content_last_row_" + NameOf(look));
}

TEST_P(WindowLooks, TheFullAndEmptyAccounts)
{
    const Look look = GetParam();
    {
        SpaceWindowSession session(OptionsFor(look, "full"));
        ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
        ExpectTidy(session, "full_" + NameOf(look));
    }
    {
        SpaceWindowSession session(OptionsFor(look, "empty"));
        ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
        ExpectTidy(session, "empty_" + NameOf(look));
    }
}

TEST_P(WindowLooks, TheLoadingAndFailedPagesAndTheFailedPanel)
{
    const Look look = GetParam();
    SessionOptions options = OptionsFor(look);
    options.networkMode = "file";
    Json::Value slow;
    slow["service"] = "accountQuota";
    slow["kind"] = "latency";
    slow["latencyMs"] = 5000;
    options.faults = {slow};
    SpaceWindowSession session(options);
    session.SetNetwork(false);
    ASSERT_TRUE(session.Open()) << session.CreateError();
    uitest::Pump(100);
    ASSERT_EQ(session.TabPage(L"tab_switch"), PageLoading);
    ExpectTidy(session, "loading_" + NameOf(look));
    ASSERT_TRUE(session.WaitUntilSettled());
    ASSERT_EQ(session.TabPage(L"tab_switch"), PageFailed);
    ExpectTidy(session, "failed_" + NameOf(look));
    session.cloud().ClearFaults();
    session.SetNetwork(true);
    ASSERT_TRUE(uitest::PumpUntil([&] { return session.TabPage(L"tab_switch") == PageContent; }, 15000));
    ASSERT_TRUE(session.WaitUntilSettled());
    session.SetNetwork(false);
    ASSERT_TRUE(uitest::PumpUntil([&] { return session.TabPage(L"tab_right") == 1; }, 3000));
    ExpectTidy(session, "failed_panel_" + NameOf(look));
}

TEST_P(WindowLooks, TheDeleteFailedToast)
{
    const Look look = GetParam();
    SpaceWindowSession session(OptionsFor(look));
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    std::string path;
    ModalDriver driver;
    driver.Add([&] {
        const HWND toast = ErrorWnd::GetActiveToast();
        auto* window =
            toast != nullptr ? dynamic_cast<WindowImplBase*>(CWindowWnd::FromHandle(toast)) : nullptr;
        if (window == nullptr)
            return false;
        path = std::string(SPACEMGM_BINARY_DIR) + "/test-output/window/toast_" + NameOf(look) + ".png";
        uitest::Snapshot(window->GetPaintManager()).WritePng(path);
        return true;
    });
    ShowErrorWnd(session.hwnd(), ToolkitText(L"IDS_SPACEMANAGEMENT_DELETE_FAILED"));
    EXPECT_TRUE(driver.Done());
    EXPECT_FALSE(path.empty());
}

INSTANTIATE_TEST_SUITE_P(Languages, WindowLooks,
                         ::testing::Values(Look{L"en-US", 96}, Look{L"en-US", 144}, Look{L"en-US", 192},
                                           Look{L"zh-CN", 96}, Look{L"zh-CN", 144}, Look{L"zh-CN", 192},
                                           Look{L"ru-RU", 96}, Look{L"ru-RU", 144}, Look{L"ru-RU", 192},
                                           Look{L"th-TH", 96}, Look{L"th-TH", 144}, Look{L"th-TH", 192}),
                         [](const ::testing::TestParamInfo<Look>& info) { return NameOf(info.param); });
