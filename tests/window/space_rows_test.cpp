// The rows of the category list: templates, content, and the two number columns.
#include <gtest/gtest.h>

#include "window/detail_pages.h"
#include "window/space_rows.h"
#include "window_test_texts.h"

using window_test::Texts;

TEST(InitMap, HoldsTheTwelveTemplatesInTheirOrderWithTheirIcons)
{
    const std::vector<std::pair<CloudSpaceType, std::wstring>> expected = {
        {Wlan, L"SpaceMgm/wifi.svg"},
        {Phone, L"SpaceMgm/callRecord.svg"},
        {Browser, L"SpaceMgm/browser.svg"},
        {Message, L"SpaceMgm/mms.svg"},
        {Calendar, L"SpaceMgm/calendar.svg"},
        {Contact, L"SpaceMgm/contacts.svg"},
        {CloudBackUp, L"SpaceMgm/cloudBackup.svg"},
        {Gallery, L"SpaceMgm/gallery.svg"},
        {CloudDisk, L"SpaceMgm/cloudDisk.svg"},
        {Notepad, L"SpaceMgm/notes.svg"},
        {Recorder, L"SpaceMgm/soundRecording.svg"},
        {HarassmentInterception, L"SpaceMgm/harassmentFilter.svg"},
    };
    const auto& rows = SpaceRowTemplates();
    ASSERT_EQ(rows.size(), expected.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].type, expected[i].first) << i;
        EXPECT_EQ(rows[i].picture, expected[i].second) << i;
    }
}

TEST(InitMap, StoresEachTemplateUnderItsTypeWithItsNameLookedUp)
{
    const auto map = BuildSpaceInfoMap(Texts({{L"IDS_SPACEMANAGEMENT_PHONE", L"Calls"}}));
    ASSERT_EQ(map.size(), 12u);
    EXPECT_EQ(map.count(static_cast<CloudSpaceType>(7)), 0u);
    const SpaceInfo& phone = map.at(Phone);
    EXPECT_EQ(phone.type, Phone);
    EXPECT_EQ(phone.szItemName, L"Calls");
    EXPECT_EQ(phone.szItemPic, L"SpaceMgm/callRecord.svg");
    EXPECT_TRUE(phone.szRemark.empty());
    EXPECT_TRUE(phone.szItemSize.empty());
    EXPECT_TRUE(phone.szInfo1.empty());
    EXPECT_TRUE(phone.szBtnText.empty());
    EXPECT_EQ(map.at(CloudBackUp).szItemName, L"<IDS_MAIN_PAGE_PanCapacity_Backup>");
    EXPECT_EQ(map.at(HarassmentInterception).szItemName, L"<IDS_SPACEMANAGEMENT_HARASSMENTINTERCEPTION>");
}

TEST(RowInfo, ARowWithBytesAndACountShowsBoth)
{
    const auto texts = Texts();
    CloudSpaceItem item;
    item.type = item.sortType = CloudBackUp;
    item.space = 3LL * 1024 * 1024 * 1024;
    item.count = "2";
    const auto detail = MakeDetailShow(item, texts);
    const SpaceInfo info = MakeRowInfo(BuildSpaceInfoMap(texts).at(CloudBackUp), item, *detail, texts);
    EXPECT_EQ(info.szRemark, L"2<IDS_SPACEMANAGEMENT_NUMUNITS_OTHER>");
    EXPECT_EQ(info.szItemSize, L"3 GB");
    EXPECT_EQ(info.szInfo1, L"<IDS_SPACEMANAGEMENT_BACKUP_HEADER2> 3 GB");
    EXPECT_EQ(info.szInfo2, L"");
    EXPECT_EQ(info.szBtnText, L"");
    EXPECT_EQ(info.szBtnColor, L"");
    const RowColumns columns = ColumnsOf(info);
    EXPECT_TRUE(columns.remarkVisible);
    EXPECT_EQ(columns.remarkText, info.szRemark);
    EXPECT_EQ(columns.sizeText, L"3 GB");
}

TEST(RowInfo, ARowWithOnlyACountShowsItInTheSizeColumn)
{
    const auto texts = Texts();
    CloudSpaceItem item;
    item.type = item.sortType = Message;
    item.count = "2407";
    const auto detail = MakeDetailShow(item, texts);
    const SpaceInfo info = MakeRowInfo(BuildSpaceInfoMap(texts).at(Message), item, *detail, texts);
    EXPECT_EQ(info.szRemark, L"2407<IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS_OTHER>");
    EXPECT_EQ(info.szItemSize, L"");
    EXPECT_EQ(info.szBtnText, L"<IDS_SPACEMANAGEMENT_DELETEALL_TITLE>");
    EXPECT_EQ(info.szBtnColor, L"#FA2A2D");
    const RowColumns columns = ColumnsOf(info);
    EXPECT_FALSE(columns.remarkVisible);
    EXPECT_FALSE(columns.remarkTextSet);
    EXPECT_EQ(columns.sizeText, info.szRemark);
}

TEST(RowInfo, ARowWithBytesAndNoCountHidesTheRemark)
{
    SpaceInfo info;
    info.szItemSize = L"40 GB";
    const RowColumns columns = ColumnsOf(info);
    EXPECT_FALSE(columns.remarkVisible);
    EXPECT_TRUE(columns.remarkTextSet);
    EXPECT_EQ(columns.remarkText, L"");
    EXPECT_EQ(columns.sizeText, L"40 GB");
}

TEST(RowInfo, AZeroCountAndZeroBytesLeaveBothTextsEmpty)
{
    const auto texts = Texts();
    CloudSpaceItem item;
    item.type = item.sortType = Wlan;
    item.count = "0";
    const auto detail = MakeDetailShow(item, texts);
    const SpaceInfo info = MakeRowInfo(BuildSpaceInfoMap(texts).at(Wlan), item, *detail, texts);
    EXPECT_EQ(info.szRemark, L"");
    EXPECT_EQ(info.szItemSize, L"");
}

TEST(RowInfo, TheSecondLineAndTheButtonFollowTheirStates)
{
    const auto texts = Texts();
    CloudSpaceItem item;
    item.type = item.sortType = Contact;
    item.count = "12";
    CloudSpaceDetailShow detail;
    detail.itemInfo1 = L"one";
    detail.itemInfo2 = L"two";
    detail.buttonText = L"go";
    detail.itemInfo2State = kDetailHidden;
    SpaceInfo info = MakeRowInfo(SpaceInfo(), item, detail, texts);
    EXPECT_EQ(info.szInfo1, L"one");
    EXPECT_EQ(info.szInfo2, L"");
    EXPECT_EQ(info.szBtnText, L"go");
    EXPECT_EQ(info.szBtnColor, L"#226BFF");
    detail.itemInfo2State = kDetailShown;
    detail.buttonState = kDetailHidden;
    info = MakeRowInfo(SpaceInfo(), item, detail, texts);
    EXPECT_EQ(info.szInfo2, L"two");
    EXPECT_EQ(info.szBtnText, L"");
    EXPECT_EQ(info.szBtnColor, L"");
}
