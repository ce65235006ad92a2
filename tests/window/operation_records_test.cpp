// The operation records, the action of opr_btn, and the pages the window picks.
#include <gtest/gtest.h>

#include "window/operation_records.h"
#include "window/page_logic.h"

TEST(OperationRecords, SelectingARowSendsItsPageEvent)
{
    EXPECT_EQ(SelectionEvent(CloudBackUp), 209);
    EXPECT_EQ(SelectionEvent(Gallery), 210);
    EXPECT_EQ(SelectionEvent(CloudDisk), 211);
    EXPECT_EQ(SelectionEvent(Notepad), 212);
    EXPECT_EQ(SelectionEvent(Recorder), 213);
    EXPECT_EQ(SelectionEvent(HarassmentInterception), 214);
    EXPECT_EQ(SelectionEvent(Contact), 215);
    EXPECT_EQ(SelectionEvent(Wlan), 216);
    EXPECT_EQ(SelectionEvent(Browser), 217);
    EXPECT_EQ(SelectionEvent(Calendar), 218);
    EXPECT_EQ(SelectionEvent(Message), 219);
    EXPECT_EQ(SelectionEvent(Phone), 220);
}

TEST(OperationRecords, AnyOtherTypeSendsTheOtherPageEvent)
{
    EXPECT_EQ(SelectionEvent(7), 221);
    EXPECT_EQ(SelectionEvent(13), 221);
    EXPECT_EQ(SelectionEvent(-1), 221);
}

TEST(OperationRecords, TheSelectionRecordCarriesTheSizeOrElseTheCount)
{
    SpaceInfo info;
    info.szRemark = L"2 devices";
    info.szItemSize = L"36 GB";
    EXPECT_EQ(SelectionValues(info), (std::map<std::wstring, std::wstring>{{L"size", L"36 GB"}}));
    info.szItemSize.clear();
    EXPECT_EQ(SelectionValues(info), (std::map<std::wstring, std::wstring>{{L"size", L"2 devices"}}));
}

TEST(OperationRecords, JumpsCarryTheirHostPageParameter)
{
    struct Row
    {
        CloudSpaceType type;
        const char* log;
        int64_t param;
    };
    const Row rows[] = {{Contact, "go to contacts.", 1},
                        {Notepad, "go to notepad.", 3},
                        {Gallery, "go to photo.", 2},
                        {CloudDisk, "go to drive.", 4},
                        {Recorder, "go to recorder.", 5}};
    for (const Row& row : rows) {
        const PanelAction action = PanelActionFor(row.type);
        EXPECT_EQ(action.kind, PanelAction::Kind::Jump) << row.log;
        EXPECT_STREQ(action.logText, row.log);
        EXPECT_EQ(action.jumpParam, row.param);
    }
    EXPECT_EQ(JumpValues(Recorder), (std::map<std::wstring, std::wstring>{{L"module", L"4"}}));
}

TEST(OperationRecords, ThreeCategoriesDeleteEverything)
{
    EXPECT_EQ(PanelActionFor(HarassmentInterception).kind, PanelAction::Kind::DeleteAll);
    EXPECT_STREQ(PanelActionFor(HarassmentInterception).logText, "delete all harassments success.");
    EXPECT_EQ(PanelActionFor(Message).kind, PanelAction::Kind::DeleteAll);
    EXPECT_STREQ(PanelActionFor(Message).logText, "delete all messages success.");
    EXPECT_EQ(PanelActionFor(Phone).kind, PanelAction::Kind::DeleteAll);
    EXPECT_STREQ(PanelActionFor(Phone).logText, "delete all call records success.");
    SpaceInfo info;
    info.type = Message;
    info.szItemSize = L"";
    EXPECT_EQ(DeleteAllValues(info),
              (std::map<std::wstring, std::wstring>{{L"size", L""}, {L"module", L"9"}}));
}

TEST(OperationRecords, TheOtherCategoriesHaveNoAction)
{
    for (int type : {5, 6, 7, 11, 12, 13}) {
        EXPECT_EQ(PanelActionFor(type).kind, PanelAction::Kind::None) << type;
    }
}

TEST(OperationRecords, CodesLeftForTheHost)
{
    EXPECT_EQ(kJumpUpgrade, 3037);
    EXPECT_EQ(kJumpModule, 3222);
    EXPECT_EQ(kExitJump, 0u);
    EXPECT_EQ(kExitClosed, 1u);
    EXPECT_EQ(kExitToast, 2u);
    EXPECT_EQ(kEventDeleteBackup, 222);
    EXPECT_EQ(kEventDeleteAll, 223);
    EXPECT_EQ(kEventGoToModule, 224);
}

TEST(PageChoice, AFailedNetworkShowsTheFailedPageWhateverTheLoadFound)
{
    EXPECT_EQ(PageAfterLoad(false, true), PageFailed);
    EXPECT_EQ(PageAfterLoad(false, false), PageFailed);
}

TEST(PageChoice, ALoadWithoutItemsShowsTheEmptyPageAndOneWithItemsTheList)
{
    EXPECT_EQ(PageAfterLoad(true, false), PageEmpty);
    EXPECT_EQ(PageAfterLoad(true, true), PageContent);
}

TEST(PageChoice, TheRightTabShowsTheFailedPanelOnlyForTheFailedPage)
{
    EXPECT_EQ(RightPageIndex(PageFailed), 1);
    EXPECT_EQ(RightPageIndex(PageContent), 0);
    EXPECT_EQ(RightPageIndex(PageLoading), 0);
    EXPECT_EQ(RightPageIndex(PageEmpty), 0);
}

TEST(PageChoice, LosingTheNetworkKeepsABuiltListAndReplacesAnythingElse)
{
    EXPECT_EQ(FailureViewFor(true), FailureView::RightPanel);
    EXPECT_EQ(FailureViewFor(false), FailureView::WholePage);
}

TEST(PageChoice, PageValuesAreTheTabIndexes)
{
    EXPECT_EQ(PageLoading, 0);
    EXPECT_EQ(PageContent, 1);
    EXPECT_EQ(PageEmpty, 2);
    EXPECT_EQ(PageFailed, 3);
    EXPECT_EQ(WM_SPACE_LOAD_END, 0x464u);
    EXPECT_EQ(WM_SPACE_LOAD_BEGIN, 0x465u);
    EXPECT_EQ(WM_SPACE_SHOW_CLOUD, 0x4C8u);
    EXPECT_EQ(SPACE_BAR_TIMER, 0x66u);
}
