// The detail table: one page record per category, made from a row's item.
#include <gtest/gtest.h>

#include "window/detail_pages.h"
#include "window_test_texts.h"

namespace {

using window_test::Texts;

CloudSpaceItem Item(CloudSpaceType type, int64_t space, std::string count, int64_t recycle = 0)
{
    CloudSpaceItem item;
    item.type = type;
    item.sortType = type;
    item.space = space;
    item.count = std::move(count);
    item.recycle = recycle;
    return item;
}

constexpr int64_t kMiB = 1024 * 1024;

} // namespace

TEST(DetailPages, ContactShowsItsCountAndTheRecycleBin)
{
    const auto detail = MakeDetailShow(Item(Contact, 0, "812", 5), Texts());
    ASSERT_NE(detail, nullptr);
    EXPECT_EQ(detail->type, Contact);
    EXPECT_EQ(detail->itemName, L"<IDS_MAIN_PAGE_Plugin_Contacts>");
    EXPECT_EQ(detail->remarkTitle, L"<IDS_GALLERY_ALBUM_DELETE>");
    EXPECT_EQ(detail->buttonText, L"<IDS_SPACEMANAGEMENT_CONTACTBUTTONTEXT>");
    EXPECT_EQ(detail->itemInfo1, L"<IDS_MAIN_PAGE_Plugin_Contacts> 812");
    EXPECT_EQ(detail->itemInfo2, L"<IDS_GALLERY_ALBUM_DELETE> 5");
    EXPECT_EQ(detail->itemInfo2State, kDetailShown);
    EXPECT_EQ(detail->buttonState, kDetailShown);
    EXPECT_EQ(detail->buttonColor, "#226BFF");
}

TEST(DetailPages, ContactWithAnEmptyRecycleBinHidesTheSecondLine)
{
    const auto detail = MakeDetailShow(Item(Contact, 0, "812", 0), Texts());
    EXPECT_EQ(detail->itemInfo2State, kDetailHidden);
    EXPECT_EQ(detail->itemInfo2, L"<IDS_GALLERY_ALBUM_DELETE> 0");
}

TEST(DetailPages, NotepadWithAnEmptyRecycleBinShowsTheTitleAndZero)
{
    const auto detail = MakeDetailShow(Item(Notepad, 0, "57", 0), Texts());
    EXPECT_EQ(detail->type, Notepad);
    EXPECT_EQ(detail->itemInfo1, L"<IDS_SPACEMANAGEMENT_BACKUP_HEADER2> 57");
    EXPECT_EQ(detail->itemInfo2, L"<IDS_GALLERY_ALBUM_DELETE> 0");
    EXPECT_EQ(detail->itemInfo2State, kDetailShown);
    EXPECT_EQ(detail->buttonText, L"<IDS_SPACEMANAGEMENT_NOTEPADBUTTONTEXT>");
}

TEST(DetailPages, GalleryAndDriveShowSizesAndCarryTypeFive)
{
    const auto gallery = MakeDetailShow(Item(Gallery, 40 * 1024 * kMiB, "", 2 * 1024 * kMiB), Texts());
    EXPECT_EQ(gallery->type, CloudBackUp);
    EXPECT_EQ(gallery->itemInfo1, L"<IDS_SPACEMANAGEMENT_BACKUP_HEADER2> 40 GB");
    EXPECT_EQ(gallery->itemInfo2, L"<IDS_GALLERY_ALBUM_DELETE> 2 GB");
    EXPECT_EQ(gallery->buttonText, L"<IDS_SPACEMANAGEMENT_GalleryButtonText>");

    const auto drive = MakeDetailShow(Item(CloudDisk, 1536 * kMiB, "", 0), Texts());
    EXPECT_EQ(drive->type, CloudBackUp);
    EXPECT_EQ(drive->itemInfo1, L"<IDS_SPACEMANAGEMENT_BACKUP_HEADER2> 1.5 GB");
    EXPECT_EQ(drive->itemInfo2, L"<IDS_GALLERY_ALBUM_DELETE> 0 B");
    EXPECT_EQ(drive->itemInfo2State, kDetailShown);
    EXPECT_EQ(drive->buttonText, L"<IDS_SPACEMANAGEMENT_COLLECTIONBUTTONTEXT>");
}

TEST(DetailPages, RecorderShowsItsSizeAndItsCountWithTheRecordUnit)
{
    const auto detail = MakeDetailShow(Item(Recorder, 3 * kMiB, "4"), Texts());
    EXPECT_EQ(detail->type, Recorder);
    EXPECT_EQ(detail->remarkTitle, L"<IDS_SPACEMANAGEMENT_RECORDERSECTITLE>");
    EXPECT_EQ(detail->itemInfo1, L"<IDS_SPACEMANAGEMENT_BACKUP_HEADER2> 3 MB");
    EXPECT_EQ(detail->itemInfo2,
              L"<IDS_SPACEMANAGEMENT_RECORDERSECTITLE> 4<IDS_SPACEMANAGEMENT_CLOUDBACKNUMUNITS_OTHER>");
    EXPECT_EQ(detail->buttonText, L"<IDS_SPACEMANAGEMENT_RECORDERBUUTONTEXT>");
}

TEST(DetailPages, CloudBackupShowsOnlyItsSize)
{
    const auto detail = MakeDetailShow(Item(CloudBackUp, 1536 * kMiB, "2"), Texts());
    EXPECT_EQ(detail->type, CloudBackUp);
    EXPECT_EQ(detail->itemInfo1, L"<IDS_SPACEMANAGEMENT_BACKUP_HEADER2> 1.5 GB");
    EXPECT_EQ(detail->remarkTitle, L"");
    EXPECT_EQ(detail->itemInfo2, L"");
    EXPECT_EQ(detail->buttonText, L"");
    EXPECT_EQ(detail->itemInfo2State, kDetailHidden);
    EXPECT_EQ(detail->buttonState, kDetailHidden);
}

TEST(DetailPages, BrowserCountsBookmarksAndInfoflowsWithTheStripesUnit)
{
    CloudSpaceItem item = Item(Browser, 0, "");
    item.bookmarkCount = 1;
    item.infoflowCount = 12;
    const auto detail = MakeDetailShow(item, Texts());
    EXPECT_EQ(detail->itemInfo1,
              L"<IDS_SPACEMANAGEMENT_BROWSERFIRTITLE> 1<IDS_SPACEMANAGEMENT_UNIT_STRIPES_ONE>");
    EXPECT_EQ(detail->itemInfo2,
              L"<IDS_SPACEMANAGEMENT_BROWSERSECTITLE> 12<IDS_SPACEMANAGEMENT_UNIT_STRIPES_OTHER>");
    EXPECT_EQ(detail->itemInfo2State, kDetailShown);
    EXPECT_EQ(detail->buttonState, kDetailHidden);
    EXPECT_EQ(detail->buttonText, L"");
}

TEST(DetailPages, HarassmentShowsItsSizeAndARedDeleteAllButton)
{
    const auto detail = MakeDetailShow(Item(HarassmentInterception, 20 * kMiB, ""), Texts());
    EXPECT_EQ(detail->type, HarassmentInterception);
    EXPECT_EQ(detail->itemInfo1, L"<IDS_SPACEMANAGEMENT_BACKUP_HEADER2> 20 MB");
    EXPECT_EQ(detail->itemInfo2State, kDetailHidden);
    EXPECT_EQ(detail->buttonText, L"<IDS_SPACEMANAGEMENT_DELETEALL_TITLE>");
    EXPECT_EQ(detail->buttonColor, "#FA2A2D");
}

TEST(DetailPages, MessagesAndCallRecordsCountWithARedDeleteAllButton)
{
    const auto messages = MakeDetailShow(Item(Message, 0, "2407"), Texts());
    EXPECT_EQ(messages->type, Message);
    EXPECT_EQ(messages->itemInfo1,
              L"<IDS_SPACEMANAGEMENT_MESSAGEFIRTITLE> 2407<IDS_SPACEMANAGEMENT_UNIT_STRIPES_OTHER>");
    EXPECT_EQ(messages->itemInfo2State, kDetailHidden);
    EXPECT_EQ(messages->buttonColor, "#FA2A2D");

    const auto calls = MakeDetailShow(Item(Phone, 0, "1"), Texts());
    // The call records' page carries type 1, as the system has it.
    EXPECT_EQ(calls->type, Notepad);
    EXPECT_EQ(calls->itemInfo1, L"<IDS_SPACEMANAGEMENT_PHONE> 1<IDS_SPACEMANAGEMENT_UNIT_STRIPES_ONE>");
    EXPECT_EQ(calls->buttonText, L"<IDS_SPACEMANAGEMENT_DELETEALL_TITLE>");
    EXPECT_EQ(calls->buttonColor, "#FA2A2D");
}

TEST(DetailPages, WlanAndCalendarCountWithNoButton)
{
    const auto wlan = MakeDetailShow(Item(Wlan, 0, "36"), Texts());
    EXPECT_EQ(wlan->itemInfo1, L"<IDS_SPACEMANAGEMENT_Wlan> 36<IDS_SPACEMANAGEMENT_UNIT_STRIPES_OTHER>");
    EXPECT_EQ(wlan->itemInfo2State, kDetailHidden);
    EXPECT_EQ(wlan->buttonState, kDetailHidden);
    EXPECT_EQ(wlan->buttonColor, "#226BFF");

    const auto calendar = MakeDetailShow(Item(Calendar, 0, "152"), Texts());
    EXPECT_EQ(calendar->itemInfo1,
              L"<IDS_SPACEMANAGEMENT_CALENDARFIRTITLE> 152<IDS_SPACEMANAGEMENT_UNIT_STRIPES_OTHER>");
    EXPECT_EQ(calendar->buttonState, kDetailHidden);
}

TEST(DetailPages, ASortTypeWithoutAPageGivesNoRecord)
{
    CloudSpaceItem item = Item(Contact, 0, "1");
    item.sortType = static_cast<CloudSpaceType>(7);
    EXPECT_EQ(MakeDetailShow(item, Texts()), nullptr);
    item.sortType = static_cast<CloudSpaceType>(13);
    EXPECT_EQ(MakeDetailShow(item, Texts()), nullptr);
}

TEST(DetailPages, ThePageFollowsTheSortTypeNotTheType)
{
    CloudSpaceItem item = Item(Message, 0, "3");
    item.sortType = Wlan;
    const auto detail = MakeDetailShow(item, Texts());
    EXPECT_EQ(detail->type, Wlan);
    EXPECT_EQ(detail->itemName, L"<IDS_SPACEMANAGEMENT_Wlan>");
    EXPECT_EQ(detail->buttonState, kDetailHidden);
}
