// One whole session with the window against spacemgm-cloud's sample account,
// as a user would have it: the network missing at first, every row looked
// at, deletions confirmed, failed and cancelled, the network lost and back,
// and every way out of the window.
#include <gtest/gtest.h>

#include <chrono>

#include "space_window_session.h"
#include "window/error_wnd.h"
#include "window/space_list_ui.h"
#include "window/toolkit_texts.h"

namespace {

using namespace window_ui;
using Clock = std::chrono::steady_clock;

// The event each row's selection writes.
const std::map<int, int> kSelectionEvents = {
    {CloudBackUp, 209}, {Gallery, 210},  {CloudDisk, 211},
    {Notepad, 212},     {Recorder, 213}, {HarassmentInterception, 214},
    {Contact, 215},     {Wlan, 216},     {Browser, 217},
    {Calendar, 218},    {Message, 219},  {Phone, 220}};

SpaceInfo RowInfo(SpaceWindowSession& session, int index)
{
    auto* list = session.Find<CListUI>(L"SpaceList");
    return dynamic_cast<CSpaceItemUI*>(list->GetItemAt(index))->GetSpaceInfo();
}

void ExpectPanelShows(SpaceWindowSession& session, const SpaceInfo& info)
{
    const std::string what = attr::Narrow(info.szItemName);
    if (info.type == CloudBackUp) {
        EXPECT_TRUE(session.Shown(L"BackupList")) << what;
        EXPECT_FALSE(session.Shown(L"UseSpaceSizeInfo")) << what;
    } else {
        EXPECT_FALSE(session.Shown(L"BackupList")) << what;
        EXPECT_TRUE(session.Shown(L"UseSpaceSizeInfo")) << what;
        EXPECT_EQ(session.Shown(L"itemInfo1"), !info.szInfo1.empty()) << what;
        EXPECT_EQ(session.TextOf(L"itemInfo1"), info.szInfo1) << what;
        EXPECT_EQ(session.Shown(L"itemInfo2"), !info.szInfo2.empty()) << what;
        if (!info.szInfo2.empty()) {
            EXPECT_EQ(session.TextOf(L"itemInfo2"), info.szInfo2) << what;
        }
    }
    EXPECT_EQ(session.Shown(L"opr_btn"), !info.szBtnText.empty()) << what;
    if (!info.szBtnText.empty()) {
        EXPECT_EQ(session.TextOf(L"opr_btn"), info.szBtnText) << what;
    }
    EXPECT_FALSE(info.szInfo1.empty()) << what;
}

Json::Value DeleteFault()
{
    Json::Value rule;
    rule["service"] = "cbs";
    rule["bodyContains"] = "DeleteBackupReq";
    rule["kind"] = "status";
    rule["status"] = 500;
    return rule;
}

bool Confirm(SpaceWindowSession& session, bool confirm, const wchar_t* button)
{
    ModalDriver driver;
    driver.Add([confirm] { return AnswerConfirmation(confirm); });
    const bool clicked = session.ClickControl(button);
    return clicked && driver.Done();
}

// The first load offline ends on the failed page; back online, the list
// comes by itself and the window is centred again.
void OfflineThenOnline(SpaceWindowSession& session, RECT& centred)
{
    session.SetNetwork(false);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageFailed);
    centred = session.window().GetWindowRect();
    ::MoveWindow(session.hwnd(), 0, 0, centred.right - centred.left, centred.bottom - centred.top, TRUE);
    session.SetNetwork(true);
    ASSERT_TRUE(uitest::PumpUntil([&] { return session.TabPage(L"tab_switch") == PageContent; }, 15000));
    ASSERT_TRUE(session.WaitUntilSettled());
    EXPECT_EQ(session.window().GetWindowRect().left, centred.left);
    EXPECT_EQ(session.window().GetWindowRect().top, centred.top);
    ASSERT_EQ(session.SpaceRowCount(), 12);
}

// Every row in turn: its panel and its record.
void EveryRow(SpaceWindowSession& session)
{
    for (int i = 0; i < session.SpaceRowCount(); ++i) {
        const SpaceInfo info = RowInfo(session, i);
        const std::size_t before = session.Records(kSelectionEvents.at(info.type)).size();
        if (i != 0) {
            ASSERT_TRUE(session.ClickRow(i));
        }
        ExpectPanelShows(session, info);
        const auto records = session.Records(kSelectionEvents.at(info.type));
        ASSERT_EQ(records.size(), i == 0 ? before : before + 1) << attr::Narrow(info.szItemName);
        const std::wstring size = !info.szItemSize.empty() ? info.szItemSize : info.szRemark;
        EXPECT_EQ(records.back().values, (std::map<std::wstring, std::wstring>{{L"size", size}}));
        EXPECT_EQ(records.back().operationType, 1);
        EXPECT_EQ(records.back().actionType, 3);
    }
}

// One device's backup, deleted through the confirmation box.
void DeleteOneDevice(SpaceWindowSession& session)
{
    ASSERT_TRUE(session.ClickRow(session.RowOf(CloudBackUp)));
    const BackUpModel device = session.viewModel().model->backups[0];
    const int devicesBefore = static_cast<int>(session.cloud().Account()["backup"]["devices"].size());
    ModalDriver driver;
    driver.Add([] { return AnswerConfirmation(true); });
    ASSERT_TRUE(session.ClickBackupDelete(0));
    EXPECT_TRUE(driver.Done());
    EXPECT_EQ(session.Find<CListUI>(L"BackupList")->GetCount(), 1);
    EXPECT_EQ(static_cast<int>(session.cloud().Account()["backup"]["devices"].size()), devicesBefore - 1);
    ASSERT_EQ(session.Records(222).size(), 1u);
    EXPECT_EQ(session.Records(222)[0].values.at(L"device"), attr::Widen(device.deviceName));
    EXPECT_EQ(RowInfo(session, session.RowOf(CloudBackUp)).szRemark.substr(0, 1), L"1");
}

// All messages, deleted; the row goes.
void DeleteAllMessages(SpaceWindowSession& session)
{
    ASSERT_TRUE(session.ClickRow(session.RowOf(Message)));
    ASSERT_TRUE(Confirm(session, true, L"opr_btn"));
    EXPECT_EQ(session.RowOf(Message), -1);
    EXPECT_EQ(session.Records(223).size(), 1u);
    EXPECT_EQ(session.SpaceRowCount(), 11);
}

// A deletion that fails: the toast, gone by itself after about 3 s.
void AFailedDeletion(SpaceWindowSession& session)
{
    session.cloud().AddFault(DeleteFault());
    ASSERT_TRUE(session.ClickRow(session.RowOf(Phone)));
    ModalDriver driver;
    std::wstring toastText;
    Clock::time_point toastSeen;
    driver.Add([] { return AnswerConfirmation(true); });
    driver.Add([&] {
        const HWND toast = ErrorWnd::GetActiveToast();
        if (toast == nullptr)
            return false;
        toastSeen = Clock::now();
        auto* window = dynamic_cast<WindowImplBase*>(CWindowWnd::FromHandle(toast));
        toastText = window->GetPaintManager().FindControl(L"label")->GetText().str();
        return true;
    });
    driver.Add([] { return ErrorWnd::GetActiveToast() == nullptr; });
    ASSERT_TRUE(session.ClickControl(L"opr_btn"));
    // The click returns once the toast has closed and its engine stopped.
    const auto toastGone = Clock::now();
    EXPECT_TRUE(uitest::PumpUntil([&] { return driver.Done(); }, 1000));
    EXPECT_EQ(toastText, ToolkitText(L"IDS_SPACEMANAGEMENT_DELETE_FAILED"));
    const auto shown = std::chrono::duration_cast<std::chrono::milliseconds>(toastGone - toastSeen).count();
    EXPECT_GE(shown, 2700);
    EXPECT_LT(shown, 5000);
    EXPECT_GE(session.RowOf(Phone), 0);
    EXPECT_EQ(session.Records(223).size(), 1u);
    session.cloud().ClearFaults();
}

// Cancel in the box changes nothing.
void CancelChangesNothing(SpaceWindowSession& session)
{
    ASSERT_TRUE(session.ClickRow(session.RowOf(HarassmentInterception)));
    const std::size_t recordsBefore = session.sink().OperationRecords().size();
    session.cloud().ClearLog();
    ASSERT_TRUE(Confirm(session, false, L"opr_btn"));
    EXPECT_EQ(session.sink().OperationRecords().size(), recordsBefore);
    EXPECT_EQ(session.cloud().RequestLog().size(), 0u);
    EXPECT_GE(session.RowOf(HarassmentInterception), 0);
}

// The network lost after the list: the failed panel; back: a new load that
// shows what the account holds now, in a window centred again.
void NetworkLostAndBack(SpaceWindowSession& session, const RECT& centred)
{
    session.SetNetwork(false);
    ASSERT_TRUE(uitest::PumpUntil([&] { return session.TabPage(L"tab_right") == 1; }, 3000));
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageContent);
    ::MoveWindow(session.hwnd(), 5, 5, centred.right - centred.left, centred.bottom - centred.top, TRUE);
    session.SetNetwork(true);
    ASSERT_TRUE(uitest::PumpUntil([&] { return session.TabPage(L"tab_right") == 0; }, 15000));
    ASSERT_TRUE(session.WaitUntilSettled());
    EXPECT_EQ(session.window().GetWindowRect().left, centred.left);
    EXPECT_EQ(session.window().GetWindowRect().top, centred.top);
    EXPECT_EQ(session.RowOf(Message), -1);
}

void ExpectAnswer(SpaceWindowSession& session, int32_t message, int64_t param)
{
    EXPECT_EQ(session.window().m_jumpMessage, message);
    EXPECT_EQ(session.window().m_jumpParam, param);
}

// Every way out: each jump, the upgrade button and the close button.
void EveryWayOut(SpaceWindowSession& session)
{
    const std::pair<CloudSpaceType, int64_t> jumps[] = {
        {Gallery, 2}, {Contact, 1}, {Notepad, 3}, {CloudDisk, 4}, {Recorder, 5}};
    bool first = true;
    for (const auto& jump : jumps) {
        if (!first) {
            ASSERT_TRUE(session.Reopen());
        }
        first = false;
        ASSERT_TRUE(session.ClickRow(session.RowOf(jump.first)));
        EXPECT_EQ(session.LeaveBy(L"opr_btn"), 0u) << jump.first;
        ExpectAnswer(session, 3222, jump.second);
    }
    ASSERT_TRUE(session.Reopen());
    EXPECT_EQ(session.LeaveBy(L"update_btn"), 0u);
    ExpectAnswer(session, 3037, 0);
    ASSERT_TRUE(session.Reopen());
    EXPECT_EQ(session.LeaveBy(L"btn_close"), 1u);
    ExpectAnswer(session, 0, 0);
    EXPECT_EQ(session.Records(224).size(), 5u);
}

} // namespace

TEST(SpaceWindowSessionEndToEnd, ASessionWithTheSampleAccount)
{
    SessionOptions options;
    options.networkMode = "file";
    SpaceWindowSession session(options);
    RECT centred{};
    ASSERT_NO_FATAL_FAILURE(OfflineThenOnline(session, centred));
    ASSERT_NO_FATAL_FAILURE(EveryRow(session));
    ASSERT_NO_FATAL_FAILURE(DeleteOneDevice(session));
    ASSERT_NO_FATAL_FAILURE(DeleteAllMessages(session));
    ASSERT_NO_FATAL_FAILURE(AFailedDeletion(session));
    ASSERT_NO_FATAL_FAILURE(CancelChangesNothing(session));
    ASSERT_NO_FATAL_FAILURE(NetworkLostAndBack(session, centred));
    ASSERT_NO_FATAL_FAILURE(EveryWayOut(session));
}
