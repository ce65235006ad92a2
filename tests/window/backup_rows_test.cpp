// The device rows and the correction of the cloud backup row after a deletion.
#include <gtest/gtest.h>

#include "window/backup_rows.h"
#include "window_test_texts.h"

using window_test::Texts;

namespace {

constexpr int64_t kGiB = 1024LL * 1024 * 1024;

CloudSpaceItem BackupItem(int64_t space, std::string count)
{
    CloudSpaceItem item;
    item.type = item.sortType = CloudBackUp;
    item.space = space;
    item.count = std::move(count);
    return item;
}

SpaceInfo BackupRow()
{
    SpaceInfo row;
    row.type = CloudBackUp;
    row.szItemName = L"Cloud backup";
    row.szItemPic = L"SpaceMgm/cloudBackup.svg";
    row.szInfo2 = L"second";
    row.szBtnText = L"button";
    row.szBtnColor = L"#226BFF";
    return row;
}

} // namespace

TEST(BackupRows, ShowTheDeviceNameAndTheSizeTextAsItStands)
{
    BackUpModel model;
    model.deviceName = "Nuvo P60 Pro";
    model.sizeText = "30,720.00 MB";
    EXPECT_EQ(BackupRowName(model, Texts()), L"Nuvo P60 Pro");
    EXPECT_EQ(BackupRowSize(model), L"30,720.00 MB");
}

TEST(BackupRows, ADeviceWithoutANameIsShownUnderTheAppText)
{
    BackUpModel model;
    EXPECT_EQ(BackupRowName(model, Texts({{L"IDS_MAIN_PAGE_PanCapacity_App", L"Unknown device"}})),
              L"Unknown device");
}

TEST(RefreshBackupInfo, TwoDevicesOneDeletedLeavesOneAndTheSizeFallsByTheDeletedSize)
{
    CloudSpaceItem item = BackupItem(36 * kGiB, "2");
    SpaceInfo row = BackupRow();
    RefreshBackupRow(item, row, 30 * kGiB, Texts());
    EXPECT_EQ(item.count, "1");
    EXPECT_EQ(item.space, 6 * kGiB);
    EXPECT_EQ(row.szRemark, L"1<IDS_SPACEMANAGEMENT_NUMUNITS_ONE>");
    EXPECT_EQ(row.szItemSize, L"6 GB");
    EXPECT_EQ(row.szInfo1, L"<IDS_SPACEMANAGEMENT_BACKUP_HEADER2> 6 GB");
}

TEST(RefreshBackupInfo, KeepsTheRowsOtherTexts)
{
    CloudSpaceItem item = BackupItem(36 * kGiB, "2");
    SpaceInfo row = BackupRow();
    RefreshBackupRow(item, row, kGiB, Texts());
    EXPECT_EQ(row.szItemName, L"Cloud backup");
    EXPECT_EQ(row.szItemPic, L"SpaceMgm/cloudBackup.svg");
    EXPECT_EQ(row.szInfo2, L"second");
    EXPECT_EQ(row.szBtnText, L"button");
    EXPECT_EQ(row.szBtnColor, L"#226BFF");
}

TEST(RefreshBackupInfo, ADeviceLargerThanTheCategoryLeavesZeroBytesShownAsZeroB)
{
    CloudSpaceItem item = BackupItem(kGiB, "2");
    SpaceInfo row = BackupRow();
    RefreshBackupRow(item, row, 2 * kGiB, Texts());
    EXPECT_EQ(item.space, 0);
    EXPECT_EQ(row.szItemSize, L"0 B");
}

TEST(RefreshBackupInfo, AnEmptyCountBecomesZero)
{
    CloudSpaceItem item = BackupItem(kGiB, "");
    SpaceInfo row = BackupRow();
    RefreshBackupRow(item, row, 1, Texts());
    EXPECT_EQ(item.count, "0");
    EXPECT_EQ(row.szRemark, L"0<IDS_SPACEMANAGEMENT_NUMUNITS_ONE>");
}

TEST(RefreshBackupInfo, ASecondDeletionCountsOnFromTheFirst)
{
    CloudSpaceItem item = BackupItem(10 * kGiB, "3");
    SpaceInfo row = BackupRow();
    RefreshBackupRow(item, row, kGiB, Texts());
    RefreshBackupRow(item, row, 2 * kGiB, Texts());
    EXPECT_EQ(item.count, "1");
    EXPECT_EQ(item.space, 7 * kGiB);
    EXPECT_EQ(row.szItemSize, L"7 GB");
}

TEST(DeletedBackupRecord, HoldsTheSizeInDigitsAndTheDeviceName)
{
    const auto values = DeletedBackupValues(30 * kGiB, "Nuvo P60 Pro");
    ASSERT_EQ(values.size(), 2u);
    EXPECT_EQ(values.at(L"size"), L"32212254720");
    EXPECT_EQ(values.at(L"device"), L"Nuvo P60 Pro");
}

TEST(DeletedBackupRecord, WidensTheDeviceNameWithTheSystemCodePage)
{
    // Everywhere else names are widened from UTF-8; here the system's ANSI
    // code page is used, which on Linux is UTF-8 as well.
    EXPECT_EQ(kDeletedDeviceNameCodePage, kCodePageSystem);
    EXPECT_NE(kDeletedDeviceNameCodePage, kCodePageUtf8);
    EXPECT_EQ(DeletedBackupValues(1, "Телефон").at(L"device"), L"Телефон");
    EXPECT_EQ(DeletedBackupValues(1, "").at(L"device"), L"");
}
