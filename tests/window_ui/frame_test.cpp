// The window frame against spacemgm-cloud: pages, loads, the network, the
// answer to the host, messages, and resources that cannot be used.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <set>
#include <thread>

#include "space_window_session.h"
#include "window/backup_list_ui.h"
#include "window/load_sequence.h"
#include "window/operation_records.h"
#include "window/space_list_ui.h"
#include "window/usage_bar.h"

namespace {

using namespace window_ui;
using Clock = std::chrono::steady_clock;

Json::Value LatencyRule(const std::string& service, int ms)
{
    Json::Value rule;
    rule["service"] = service;
    rule["kind"] = "latency";
    rule["latencyMs"] = ms;
    return rule;
}

int Count(const std::vector<std::string>& lines, const std::string& line)
{
    return static_cast<int>(std::count(lines.begin(), lines.end(), line));
}

// A filter that sees the window's messages before the paint manager.
struct RecordingFilter : IMessageFilterUI
{
    std::vector<UINT> seen;
    UINT takes = 0;
    LRESULT MessageHandler(UINT uMsg, WPARAM, LPARAM, bool& bHandled) override
    {
        seen.push_back(uMsg);
        bHandled = uMsg == takes;
        return bHandled ? 42 : 0;
    }
};

// A copy of Res/ in which the test can break one file.
std::string CopyOfResources(const std::string& name)
{
    namespace fs = std::filesystem;
    const fs::path root = fs::path(SPACEMGM_BINARY_DIR) / "test-output" / "window" / name;
    fs::remove_all(root);
    fs::create_directories(root);
    fs::copy(fs::path(SPACEMGM_SOURCE_DIR) / "Res", root / "Res", fs::copy_options::recursive);
    return root.string();
}

// Opens a window over the copy `root` of the resources; the creation error.
std::string CreationErrorWith(const std::string& root, SessionOptions options = {})
{
    SpaceWindowSession session(options);
    CPaintManagerUI::SetInstancePath(attr::Widen(root).c_str());
    EXPECT_FALSE(session.Open());
    EXPECT_FALSE(session.IsOpen());
    EXPECT_TRUE(LoadSequence::Instance().Idle());
    return session.CreateError();
}

} // namespace

TEST(SpaceWindowFrame, TheSampleAccountShowsEveryCategoryWithTheCloudBackupRowSelected)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageContent);
    EXPECT_EQ(session.TabPage(L"tab_right"), 0);
    ASSERT_EQ(session.SpaceRowCount(), 12);
    std::set<int> types;
    auto* list = session.Find<CListUI>(L"SpaceList");
    for (int i = 0; i < list->GetCount(); ++i)
        types.insert(dynamic_cast<CSpaceItemUI*>(list->GetItemAt(i))->GetSpaceInfo().type);
    EXPECT_EQ(types.size(), 12u);
    EXPECT_EQ(list->GetCurSel(), 0);
    EXPECT_EQ(session.RowOf(CloudBackUp), 0);
    EXPECT_TRUE(session.Shown(L"BackupList"));
    EXPECT_FALSE(session.Shown(L"UseSpaceSizeInfo"));
}

TEST(SpaceWindowFrame, TheEmptyAccountShowsTheEmptyPage)
{
    SpaceWindowSession session(SessionOptions::Fixture("empty"));
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageEmpty);
    EXPECT_TRUE(session.Shown(L"empty_title"));
    EXPECT_EQ(session.SpaceRowCount(), 0);
}

TEST(SpaceWindowFrame, ASecondShowInfoPageDuringALoadRebuildsTwiceWithEachCategoryOnce)
{
    SessionOptions options;
    options.faults = {LatencyRule("accountQuota", 400)};
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.Open()) << session.CreateError();
    session.window().ShowInfoPage();
    ASSERT_TRUE(session.WaitUntilSettled());
    EXPECT_EQ(
        Count(session.LogLines("CloudSpaceManagementViewModel::GetCloudInfo"), "Getting cloud info ends."),
        2);
    // Each rebuild selects its first row, which writes its record.
    EXPECT_EQ(session.Records(209).size(), 2u);
    ASSERT_EQ(session.SpaceRowCount(), 12);
    std::set<int> types;
    auto* list = session.Find<CListUI>(L"SpaceList");
    for (int i = 0; i < list->GetCount(); ++i)
        types.insert(dynamic_cast<CSpaceItemUI*>(list->GetItemAt(i))->GetSpaceInfo().type);
    EXPECT_EQ(types.size(), 12u);
}

TEST(SpaceWindowFrame, LosingTheNetworkBeforeTheFirstListShowsTheFailedPage)
{
    SessionOptions options;
    options.networkMode = "file";
    options.faults = {LatencyRule("accountQuota", 3000)};
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.Open()) << session.CreateError();
    session.SetNetwork(false);
    EXPECT_TRUE(uitest::PumpUntil([&] { return session.TabPage(L"tab_switch") == PageFailed; }, 3000));
    ASSERT_TRUE(session.WaitUntilSettled());
    // The load that was running ends on the failed page too.
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageFailed);
    EXPECT_TRUE(session.Shown(L"refresh_btn"));
    EXPECT_EQ(Count(session.LogLines("SpaceMgmWnd::onLoadDataEnd"), "Network error."), 1);
}

TEST(SpaceWindowFrame, AWindowOpenedOfflineEndsItsFirstLoadOnTheFailedPage)
{
    SessionOptions options;
    options.networkMode = "file";
    SpaceWindowSession session(options);
    session.SetNetwork(false);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageFailed);
    EXPECT_EQ(Count(session.LogLines("NetworkChecker::CheckNetwork"), "Network status is exception."), 1);
}

TEST(SpaceWindowFrame, LosingTheNetworkAfterTheListKeepsItAndShowsTheFailedPanel)
{
    SessionOptions options;
    options.networkMode = "file";
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    EXPECT_EQ(Count(session.LogLines("NetworkChecker::CheckNetwork"), "Network status is OK."), 1);
    session.SetNetwork(false);
    EXPECT_TRUE(uitest::PumpUntil([&] { return session.TabPage(L"tab_right") == 1; }, 3000));
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageContent);
    EXPECT_EQ(session.SpaceRowCount(), 12);
    EXPECT_TRUE(session.Shown(L"refresh_btn_r"));
}

TEST(SpaceWindowFrame, TheNetworkComingBackStartsALoadByItselfAndCentresTheWindowAgain)
{
    SessionOptions options;
    options.networkMode = "file";
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    const RECT centred = session.window().GetWindowRect();
    ::MoveWindow(session.hwnd(), 3, 4, centred.right - centred.left, centred.bottom - centred.top, TRUE);
    session.SetNetwork(false);
    ASSERT_TRUE(uitest::PumpUntil([&] { return session.TabPage(L"tab_right") == 1; }, 3000));
    const auto loadsBefore =
        Count(session.LogLines("CloudSpaceManagementViewModel::GetCloudInfo"), "Getting cloud info starts.");
    session.SetNetwork(true);
    ASSERT_TRUE(uitest::PumpUntil(
        [&] {
            return Count(session.LogLines("CloudSpaceManagementViewModel::GetCloudInfo"),
                         "Getting cloud info starts.") > loadsBefore;
        },
        5000));
    ASSERT_TRUE(session.WaitUntilSettled());
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageContent);
    EXPECT_EQ(session.TabPage(L"tab_right"), 0);
    const RECT now = session.window().GetWindowRect();
    EXPECT_EQ(now.left, centred.left);
    EXPECT_EQ(now.top, centred.top);
}

TEST(SpaceWindowFrame, TheUpgradeButtonLeaves3037And0AndExitCodeZero)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    EXPECT_EQ(session.LeaveBy(L"update_btn"), 0u);
    EXPECT_EQ(session.window().m_jumpMessage, 3037);
    EXPECT_EQ(session.window().m_jumpParam, 0);
    bool logged = false;
    for (const Logger::Record& record : session.sink().Records()) {
        if (record.function == "SpaceMgmWnd::Notify" && record.message == "Upgrading Cloud Storage Space.") {
            logged = true;
            EXPECT_EQ(record.module, 7);
            EXPECT_EQ(record.severity, 2);
        }
    }
    EXPECT_TRUE(logged);
}

TEST(SpaceWindowFrame, TheCloseButtonLeavesTheFieldsAtZeroAndExitCodeOne)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    EXPECT_EQ(session.LeaveBy(L"btn_close"), 1u);
    EXPECT_EQ(session.window().m_jumpMessage, 0);
    EXPECT_EQ(session.window().m_jumpParam, 0);
    EXPECT_FALSE(session.window().m_hostFlag);
    EXPECT_EQ(session.window().m_hostValue, 64);
}

TEST(SpaceWindowFrame, AnyOtherMessageGoesThroughThePreMessageFiltersAndTheBase)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    RecordingFilter filter;
    filter.takes = WM_APP + 2;
    session.pm().AddPreMessageFilter(&filter);
    EXPECT_EQ(::SendMessageW(session.hwnd(), WM_APP + 1, 7, 8), 0);
    EXPECT_EQ(::SendMessageW(session.hwnd(), WM_APP + 2, 0, 0), 42);
    ASSERT_GE(filter.seen.size(), 2u);
    EXPECT_EQ(filter.seen[filter.seen.size() - 2], WM_APP + 1);
    EXPECT_EQ(filter.seen.back(), WM_APP + 2);
    // The window's own messages reach the filters as well.
    ::SendMessageW(session.hwnd(), WM_SPACE_LOAD_BEGIN, 0, 0);
    EXPECT_EQ(filter.seen.back(), WM_SPACE_LOAD_BEGIN);
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageLoading);
    session.pm().RemovePreMessageFilter(&filter);
}

TEST(SpaceWindowFrame, ALoadThatEndsWithTheWindowGonePostsNothingAndGivesUpItsTurn)
{
    SessionOptions options;
    options.faults = {LatencyRule("accountQuota", 2000)};
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.Open()) << session.CreateError();
    session.CloseWindow();
    ASSERT_FALSE(session.IsOpen());
    EXPECT_TRUE(uitest::PumpUntil([] { return LoadSequence::Instance().Idle(); }, 15000));
    // The load ran to its end...
    EXPECT_EQ(
        Count(session.LogLines("CloudSpaceManagementViewModel::GetCloudInfo"), "Getting cloud info ends."),
        1);
    EXPECT_FALSE(session.viewModel().model->items.empty());
    // ...and left nothing in this thread's queue.
    MSG msg{};
    bool endSeen = false;
    while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
        endSeen = endSeen || msg.message == WM_SPACE_LOAD_END || msg.message == WM_SPACE_SHOW_CLOUD;
    EXPECT_FALSE(endSeen);
}

TEST(SpaceWindowFrame, TheCloseButtonEndsTheWindowAtOnceWhileALoadIsBlocked)
{
    Json::Value hang;
    hang["service"] = "accountQuota";
    hang["kind"] = "hang";
    hang["hangMs"] = 4000;
    SessionOptions options;
    options.faults = {hang};
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.Open()) << session.CreateError();
    uitest::Pump(100);
    EXPECT_FALSE(LoadSequence::Instance().Idle());
    const auto start = Clock::now();
    session.CloseWindow();
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
    EXPECT_FALSE(session.IsOpen());
    EXPECT_LT(took, 1000);
    EXPECT_FALSE(LoadSequence::Instance().Idle());
}

TEST(SpaceWindowFrame, AMissingRowSkinFailsCreationNamingTheFile)
{
    const std::string root = CopyOfResources("missing-row-skin");
    std::filesystem::remove(root + "/Res/skin/SpaceMgm/SpaceItem.xml");
    const std::string error = CreationErrorWith(root);
    EXPECT_NE(error.find("SpaceMgm/SpaceItem.xml"), std::string::npos) << error;
}

TEST(SpaceWindowFrame, ABrokenWindowSkinFailsCreationNamingFileAndLine)
{
    const std::string root = CopyOfResources("broken-skin");
    std::ofstream(root + "/Res/skin/SpaceMgm/SpaceMgmWnd.xml", std::ios::trunc)
        << "<Window size=\"10,10\">\n<VerticalLayout>\n<Label text=\"x\" \n</Window>\n";
    const std::string error = CreationErrorWith(root);
    EXPECT_NE(error.find("SpaceMgm/SpaceMgmWnd.xml:"), std::string::npos) << error;
}

TEST(SpaceWindowFrame, AMissingRowIconFailsCreationNamingTheIcon)
{
    const std::string root = CopyOfResources("missing-icon");
    std::filesystem::remove(root + "/Res/skin/SpaceMgm/wifi.svg");
    const std::string error = CreationErrorWith(root);
    EXPECT_NE(error.find("SpaceMgm/wifi.svg"), std::string::npos) << error;
}

TEST(SpaceWindowFrame, ABrokenLanguageFileFailsCreationNamingFileAndLine)
{
    const std::string root = CopyOfResources("broken-language");
    std::ofstream(root + "/Res/lang/ru-RU.json", std::ios::trunc)
        << "{\n  \"IDS_A\": \"a\",\n  \"IDS_B\" \"b\"\n}\n";
    SessionOptions options;
    options.language = L"ru-RU";
    const std::string error = CreationErrorWith(root, options);
    EXPECT_NE(error.find("Res/lang/ru-RU.json:3:"), std::string::npos) << error;
}

TEST(SpaceWindowFrame, ItsLogLinesCarryModule7TheirSeverityAndFunction)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    ASSERT_TRUE(session.ClickRow(session.RowOf(Gallery)));
    struct Expected
    {
        const char* function;
        std::string messageStart;
        int severity;
        bool flush;
    };
    const Expected lines[] = {
        {"NetworkChecker::CheckNetwork", "Network status is OK.", 1, false},
        {"SpaceMgmWnd::UpdateProgress", "UpdateProgress", 2, true},
        {"SpaceMgmWnd::OnShowCloudSpace", "m_used = 120 GB, m_total = 200 GB", 2, true},
        {"SpaceMgmWnd::OnShowCloudSpace", "backup = ", 2, true},
        {"SpaceMgmWnd::OnShowCloudSpace", "other = 17179869184", 2, true},
        {"SpaceMgmWnd::ShowItemPage", "szItemName = ", 2, true},
    };
    for (const Expected& expected : lines) {
        bool found = false;
        for (const Logger::Record& record : session.sink().Records()) {
            if (record.function != expected.function || record.message.rfind(expected.messageStart, 0) != 0)
                continue;
            found = true;
            EXPECT_EQ(record.module, 7) << expected.messageStart;
            EXPECT_EQ(record.severity, expected.severity) << expected.messageStart;
            EXPECT_EQ(record.flush, expected.flush) << expected.messageStart;
        }
        EXPECT_TRUE(found) << expected.function << ": " << expected.messageStart;
    }
    const auto items = session.LogLines("SpaceMgmWnd::ShowItemPage");
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(items.back().find("szItemName = Gallery, szRemark = , szItemSize = "), 0u) << items.back();
}

TEST(SpaceWindowFrame, AQuotaOfZeroBytesLeavesTheBarAndTheLineAsTheyWereAndTheLoadGoesOn)
{
    SessionOptions options;
    options.faults = {
        ReplyRule("accountQuota", "",
                  "{\"retCode\":0,\"used\":0,\"available\":0,\"total\":0,\"backup\":0,\"drive\":0,"
                  "\"photos\":0,\"other\":0,\"family\":0}")};
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    const auto errors = session.LogLines("SpaceMgmWnd::UpdateProgress");
    EXPECT_NE(std::find(errors.begin(), errors.end(), "UpdateDisplayData Error!"), errors.end());
    EXPECT_TRUE(session.LogLines("SpaceMgmWnd::OnShowCloudSpace").empty());
    for (const BarSegment& segment : BarSegments())
        EXPECT_FALSE(session.Shown(segment.bar)) << segment.key;
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageContent);
    EXPECT_EQ(session.SpaceRowCount(), 12);
}

TEST(SpaceWindowFrame, ClosingWhileTheNetworkComesAndGoesNeverWaitsOnTheWatcher)
{
    SessionOptions options;
    options.networkMode = "file";
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    std::atomic<bool> flapping{true};
    std::thread flapper([&] {
        bool online = false;
        while (flapping) {
            session.SetNetwork(online);
            online = !online;
            std::this_thread::sleep_for(std::chrono::milliseconds(7));
        }
    });
    uitest::Pump(200);
    const auto start = Clock::now();
    session.CloseWindow();
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
    flapping = false;
    flapper.join();
    EXPECT_FALSE(session.IsOpen());
    EXPECT_LT(took, 2000);
}

TEST(SpaceWindowSkins, UseOnlyDuiLibElementsAndAttributes)
{
    uitest::UseOffscreenToolkit();
    CPaintManagerUI::SetResourcePath((CPaintManagerUI::GetInstancePath() + L"Res/skin").GetData());
    struct WindowElements : IDialogBuilderCallback
    {
        CControlUI* CreateControl(LPCTSTR name) override
        {
            if (CompareNoCase(name, L"ListViewS") == 0)
                return new CSpaceListViewUI;
            if (CompareNoCase(name, L"ListItemS") == 0)
                return new CSpaceItemUI;
            if (CompareNoCase(name, L"ListViewB") == 0)
                return new CBackupListViewUI;
            if (CompareNoCase(name, L"ListItemB") == 0)
                return new CBackupItemUI;
            return nullptr;
        }
    } elements;
    for (const wchar_t* skin : {L"SpaceMgm/SpaceMgmWnd.xml", L"SpaceMgm/SpaceItem.xml",
                                L"SpaceMgm/BackupItem.xml", L"Gallery/Error/ErrorWnd.xml"}) {
        CPaintManagerUI pm;
        CDialogBuilder builder;
        builder.SetDuiLibOnly(true);
        std::unique_ptr<CControlUI> root(builder.Create(skin, nullptr, &elements, &pm));
        EXPECT_NE(root, nullptr) << attr::Narrow(skin) << ": "
                                 << (builder.GetError() ? builder.GetError()->ToString() : "");
    }
}

TEST(SpaceWindowKeyboard, EscapeClosesTheWindowWithExitCodeOne)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    ::PostMessageW(session.hwnd(), WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ(session.window().ShowModal(), 1u);
    EXPECT_EQ(session.window().m_jumpMessage, 0);
}

TEST(SpaceWindowKeyboard, DownAndEndMoveTheSelectionAndFillThePanel)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    auto* list = session.Find<CListUI>(L"SpaceList");
    ASSERT_EQ(list->GetCurSel(), 0);
    uitest::PressKey(session.hwnd(), VK_DOWN);
    uitest::PumpPending();
    ASSERT_EQ(list->GetCurSel(), 1);
    const SpaceInfo second = dynamic_cast<CSpaceItemUI*>(list->GetItemAt(1))->GetSpaceInfo();
    EXPECT_EQ(session.TextOf(L"itemInfo1"), second.szInfo1);
    uitest::PressKey(session.hwnd(), VK_END);
    uitest::PumpPending();
    EXPECT_EQ(list->GetCurSel(), list->GetCount() - 1);
    EXPECT_EQ(list->GetItemAt(list->GetCount() - 1)->GetBkColor(), 0xFFE8F0FFu);
}

TEST(SpaceWindowKeyboard, TabReachesTheButtonsOfThePanelAndEnterPressesThem)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    ASSERT_TRUE(session.ClickRow(session.RowOf(Gallery)));
    CControlUI* button = session.Control(L"opr_btn");
    for (int i = 0; i < 10 && session.pm().GetFocus() != button; ++i)
        uitest::PressKey(session.hwnd(), VK_TAB);
    ASSERT_EQ(session.pm().GetFocus(), button);
    ::PostMessageW(session.hwnd(), WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(session.window().ShowModal(), 0u);
    EXPECT_EQ(session.window().m_jumpMessage, 3222);
    EXPECT_EQ(session.window().m_jumpParam, 2);
}
