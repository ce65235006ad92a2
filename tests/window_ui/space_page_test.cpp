// The category list and its panel in the window: rows, selection, the
// panel's lines and button, jumps and the deletion of all records.
#include <gtest/gtest.h>

#include "foundation/utilities.h"
#include "space_window_session.h"
#include "window/operation_records.h"
#include "window/size_texts.h"
#include "window/space_list_ui.h"
#include "window/toolkit_texts.h"

namespace {

using namespace window_ui;

std::wstring T(const wchar_t* key)
{
    return ToolkitText(key);
}

std::shared_ptr<CloudSpaceItem> ItemOf(SpaceWindowSession& session, CloudSpaceType type)
{
    for (const auto& item : session.viewModel().model->items) {
        if (item->type == type)
            return item;
    }
    return nullptr;
}

const SpaceInfo& InfoOfRow(SpaceWindowSession& session, int index)
{
    auto* list = session.Find<CListUI>(L"SpaceList");
    return dynamic_cast<CSpaceItemUI*>(list->GetItemAt(index))->GetSpaceInfo();
}

CControlUI* RowPart(SpaceWindowSession& session, int index, const wchar_t* name)
{
    auto* list = session.Find<CListUI>(L"SpaceList");
    return static_cast<CContainerUI*>(list->GetItemAt(index))->FindSubControl(name);
}

bool RequestSent(SpaceWindowSession& session, const std::string& bodyPart)
{
    for (const Json::Value& request : session.cloud().RequestLog()) {
        if (request["body"].asString().find(bodyPart) != std::string::npos)
            return true;
    }
    return false;
}

std::string OnlyMessagesAccount()
{
    return MakeFixture("only-messages", [](Json::Value& account) {
        Json::Value device;
        device["device"]["deviceId"] = "dev-0100";
        device["device"]["devDisplayName"] = "Phone 1";
        device["sms"] = 1200;
        device["callLog"] = 0;
        account["messages"]["devices"].append(device);
    });
}

} // namespace

TEST(SpacePage, EveryRowShowsItsIconNameCountAndSize)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    const int backup = session.RowOf(CloudBackUp);
    ASSERT_GE(backup, 0);
    EXPECT_EQ(RowPart(session, backup, L"itemName")->GetText().str(), T(L"IDS_MAIN_PAGE_PanCapacity_Backup"));
    EXPECT_EQ(RowPart(session, backup, L"itemPic")->GetBkImage().str(), L"SpaceMgm/cloudBackup.svg");
    EXPECT_EQ(RowPart(session, backup, L"itemRemark")->GetText().str(),
              L"2" + BareUnit(L"IDS_SPACEMANAGEMENT_NUMUNITS_OTHER"));
    EXPECT_TRUE(RowPart(session, backup, L"itemRemark")->IsVisible());
    // Two devices of 20 + 8 and 6 GiB.
    EXPECT_EQ(ItemOf(session, CloudBackUp)->space, 34LL << 30);
    EXPECT_EQ(RowPart(session, backup, L"itemSize")->GetText().str(), L"34 GB");

    const int gallery = session.RowOf(Gallery);
    ASSERT_GE(gallery, 0);
    EXPECT_EQ(RowPart(session, gallery, L"itemSize")->GetText().str(),
              SizeDisplayText(static_cast<double>(ItemOf(session, Gallery)->space), L"en-US"));
    EXPECT_FALSE(RowPart(session, gallery, L"itemRemark")->IsVisible());
    EXPECT_EQ(RowPart(session, gallery, L"itemPic")->GetBkImage().str(), L"SpaceMgm/gallery.svg");
}

TEST(SpacePage, ARowWithOnlyACountShowsItInTheSizeColumn)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    const int messages = session.RowOf(Message);
    ASSERT_GE(messages, 0);
    const SpaceInfo& info = InfoOfRow(session, messages);
    EXPECT_TRUE(info.szItemSize.empty());
    EXPECT_EQ(info.szRemark, WidenUtf8(ItemOf(session, Message)->count) +
                                 BareUnit(L"IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS_OTHER"));
    EXPECT_EQ(RowPart(session, messages, L"itemSize")->GetText().str(), info.szRemark);
    EXPECT_FALSE(RowPart(session, messages, L"itemRemark")->IsVisible());
}

TEST(SpacePage, SelectingARowFillsThePanelHighlightsItAndWritesItsRecord)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    const int gallery = session.RowOf(Gallery);
    ASSERT_TRUE(session.ClickRow(gallery));
    const auto item = ItemOf(session, Gallery);
    const std::wstring size = SizeDisplayText(static_cast<double>(item->space), L"en-US");
    EXPECT_EQ(session.TextOf(L"itemInfo1"), T(L"IDS_SPACEMANAGEMENT_BACKUP_HEADER2") + L" " + size);
    EXPECT_EQ(session.TextOf(L"itemInfo2"),
              T(L"IDS_GALLERY_ALBUM_DELETE") + L" " +
                  SizeDisplayText(static_cast<double>(item->recycle), L"en-US"));
    EXPECT_TRUE(session.Shown(L"UseSpaceSizeInfo"));
    EXPECT_FALSE(session.Shown(L"BackupList"));
    EXPECT_TRUE(session.Shown(L"opr_btn"));
    EXPECT_EQ(session.TextOf(L"opr_btn"), T(L"IDS_SPACEMANAGEMENT_GalleryButtonText"));
    EXPECT_EQ(session.Find<CLabelUI>(L"opr_btn")->GetTextColor(), 0x226BFFu);
    auto* list = session.Find<CListUI>(L"SpaceList");
    EXPECT_EQ(list->GetItemAt(gallery)->GetBkColor(), 0xFFE8F0FFu);
    EXPECT_EQ(list->GetItemAt(0)->GetBkColor(), 0xFFFFFFFFu);
    const auto records = session.Records(210);
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].operationType, 1);
    EXPECT_EQ(records[0].actionType, 3);
    EXPECT_EQ(records[0].values, (std::map<std::wstring, std::wstring>{{L"size", size}}));
}

TEST(SpacePage, ContactWithoutDeletedEntriesHidesTheSecondLineAndNotepadShowsZero)
{
    SessionOptions options;
    options.fixture = MakeFixture("no-recycle", [](Json::Value& account) {
        AddStatistic(account, "contact", "contact", 812);
        AddStatistic(account, "notepad", "notepad", 57);
    });
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    ASSERT_TRUE(session.ClickRow(session.RowOf(Contact)));
    EXPECT_EQ(session.TextOf(L"itemInfo1"), T(L"IDS_MAIN_PAGE_Plugin_Contacts") + L" 812");
    EXPECT_FALSE(session.Shown(L"itemInfo2"));
    ASSERT_TRUE(session.ClickRow(session.RowOf(Notepad)));
    EXPECT_TRUE(session.Shown(L"itemInfo2"));
    EXPECT_EQ(session.TextOf(L"itemInfo2"), T(L"IDS_GALLERY_ALBUM_DELETE") + L" 0");
}

TEST(SpacePage, RussianTakesTheOneFormFor21AndTheOtherFormFor11)
{
    SessionOptions options;
    options.language = L"ru-RU";
    options.fixture = MakeFixture("plural-counts", [](Json::Value& account) {
        AddStatistic(account, "notepad", "notepad", 21);
        AddStatistic(account, "wlan", "wlan", 11);
    });
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    EXPECT_EQ(InfoOfRow(session, session.RowOf(Notepad)).szRemark,
              L"21" + BareUnit(L"IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS_ONE"));
    EXPECT_EQ(InfoOfRow(session, session.RowOf(Wlan)).szRemark,
              L"11" + BareUnit(L"IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS_OTHER"));
    ASSERT_TRUE(session.ClickRow(session.RowOf(Wlan)));
    EXPECT_EQ(session.TextOf(L"itemInfo1"),
              T(L"IDS_SPACEMANAGEMENT_Wlan") + L" 11" + BareUnit(L"IDS_SPACEMANAGEMENT_UNIT_STRIPES_OTHER"));
}

TEST(SpacePage, EachJumpLeavesItsCodeAndParameterWithExitCodeZero)
{
    const std::pair<CloudSpaceType, int64_t> jumps[] = {
        {Contact, 1}, {Gallery, 2}, {Notepad, 3}, {CloudDisk, 4}, {Recorder, 5}};
    for (const auto& jump : jumps) {
        SpaceWindowSession session;
        ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
        ASSERT_TRUE(session.ClickRow(session.RowOf(jump.first))) << jump.first;
        EXPECT_EQ(session.LeaveBy(L"opr_btn"), 0u) << jump.first;
        EXPECT_EQ(session.window().m_jumpMessage, 3222) << jump.first;
        EXPECT_EQ(session.window().m_jumpParam, jump.second) << jump.first;
        const auto records = session.Records(224);
        ASSERT_EQ(records.size(), 1u) << jump.first;
        EXPECT_EQ(records[0].actionType, 1);
        EXPECT_EQ(records[0].values, (std::map<std::wstring, std::wstring>{
                                         {L"module", std::to_wstring(static_cast<int>(jump.first))}}));
    }
}

TEST(SpacePage, CategoriesWithoutAnActionShowNoButton)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    for (CloudSpaceType type : {Wlan, Calendar, Browser, CloudBackUp}) {
        ASSERT_TRUE(session.ClickRow(session.RowOf(type))) << type;
        EXPECT_FALSE(session.Shown(L"opr_btn")) << type;
    }
}

TEST(SpacePage, DeletingARowOtherThanTheLastSelectsTheFirstRowAndWritesOneMoreRecord)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    const int messages = session.RowOf(Message);
    ASSERT_TRUE(session.ClickRow(messages));
    EXPECT_EQ(session.Find<CLabelUI>(L"opr_btn")->GetTextColor(), 0xFA2A2Du);
    const std::size_t firstRowRecords = session.Records(209).size();
    ModalDriver driver;
    std::wstring title;
    std::wstring detail;
    driver.Add([&] { return AnswerConfirmation(true, &title, &detail); });
    ASSERT_TRUE(session.ClickControl(L"opr_btn"));
    EXPECT_TRUE(driver.Done());
    EXPECT_EQ(title, T(L"IDS_SPACEMANAGEMENT_DELETEALL_TITLE"));
    EXPECT_EQ(detail, T(L"IDS_SPACEMANAGEMENT_DELETEALL_DETAIL"));
    EXPECT_EQ(session.SpaceRowCount(), 11);
    EXPECT_EQ(session.RowOf(Message), -1);
    EXPECT_EQ(session.Find<CListUI>(L"SpaceList")->GetCurSel(), 0);
    EXPECT_EQ(session.Records(209).size(), firstRowRecords + 1);
    const auto deleted = session.Records(223);
    ASSERT_EQ(deleted.size(), 1u);
    EXPECT_EQ(deleted[0].actionType, 0);
    EXPECT_EQ(deleted[0].values, (std::map<std::wstring, std::wstring>{{L"size", L""}, {L"module", L"9"}}));
    EXPECT_TRUE(RequestSent(session, "DeleteBackupReq"));
    const auto lines = session.LogLines("SpaceMgmWnd::Notify");
    EXPECT_NE(std::find(lines.begin(), lines.end(), "delete all messages success."), lines.end());
}

TEST(SpacePage, DeletingTheOnlyRowEndsOnTheEmptyPage)
{
    SessionOptions options;
    options.fixture = OnlyMessagesAccount();
    SpaceWindowSession session(options);
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    ASSERT_EQ(session.SpaceRowCount(), 1);
    ModalDriver driver;
    driver.Add([] { return AnswerConfirmation(true); });
    ASSERT_TRUE(session.ClickControl(L"opr_btn"));
    EXPECT_EQ(session.SpaceRowCount(), 0);
    EXPECT_EQ(session.TabPage(L"tab_switch"), PageEmpty);
}

TEST(SpacePage, CancellingTheBoxWritesNothingAndCallsNothing)
{
    SpaceWindowSession session;
    ASSERT_TRUE(session.OpenAndSettle()) << session.CreateError();
    ASSERT_TRUE(session.ClickRow(session.RowOf(Phone)));
    const std::size_t records = session.sink().OperationRecords().size();
    session.cloud().ClearLog();
    ModalDriver driver;
    driver.Add([] { return AnswerConfirmation(false); });
    ASSERT_TRUE(session.ClickControl(L"opr_btn"));
    EXPECT_TRUE(driver.Done());
    EXPECT_EQ(session.sink().OperationRecords().size(), records);
    EXPECT_EQ(session.cloud().RequestLog().size(), 0u);
    EXPECT_GE(session.RowOf(Phone), 0);
    EXPECT_EQ(session.SpaceRowCount(), 12);
}
