#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <memory>
#include <vector>

#include "space_data/cloud_space_view_model.h"

namespace {

std::shared_ptr<CloudSpaceItem> Item(CloudSpaceType type, int64_t space, const std::string& count)
{
    auto item = std::make_shared<CloudSpaceItem>();
    item->type = type;
    item->sortType = type;
    item->space = space;
    item->count = count;
    return item;
}

} // namespace

TEST(CloudSpaceTypeTable, ValuesMatchTheCategories)
{
    struct Row
    {
        CloudSpaceType type;
        int value;
    };
    const Row rows[] = {
        {Contact, 0},  {Notepad, 1},     {Gallery, 2}, {CloudDisk, 3},
        {Recorder, 4}, {CloudBackUp, 5}, {Browser, 6}, {HarassmentInterception, 8},
        {Message, 9},  {Phone, 10},      {Wlan, 11},   {Calendar, 12},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(static_cast<int>(row.type), row.value);
    }
}

TEST(DeleteResultTable, ValuesMatchTheOutcomes)
{
    EXPECT_EQ(static_cast<int>(DeleteSuccess), 0);
    EXPECT_EQ(static_cast<int>(DeleteFailed), 1);
    EXPECT_EQ(static_cast<int>(DeletePartFailed), 2);
}

TEST(CloudSpaceItem, DefaultHasZeroNumbersAndEmptyCount)
{
    const CloudSpaceItem item;
    EXPECT_EQ(item.space, 0);
    EXPECT_EQ(item.recycle, 0);
    EXPECT_EQ(item.bookmarkCount, 0);
    EXPECT_EQ(item.infoflowCount, 0);
    EXPECT_TRUE(item.count.empty());
}

TEST(CloudSpaceDetailShow, DefaultHasButtonKindTwoBlueButtonAndVisibleStates)
{
    const CloudSpaceDetailShow detail;
    EXPECT_EQ(detail.buttonKind, 2);
    EXPECT_EQ(detail.buttonColor, "#226BFF");
    EXPECT_EQ(detail.itemInfo2State, 0);
    EXPECT_EQ(detail.buttonState, 0);
    EXPECT_TRUE(detail.buttonText.empty());
}

TEST(CloudSpaceDetailShow, CategoryNamesAreTheSameRecord)
{
    std::shared_ptr<CloudSpaceDetailShow> detail = std::make_shared<HarassmentInterceptionDetailShow>();
    detail->buttonColor = "#FA2A2D";
    EXPECT_EQ(detail->buttonKind, 2);
    EXPECT_EQ(sizeof(WlanDetailShow), sizeof(CloudSpaceDetailShow));
}

TEST(CloudSpaceManagementViewModel, NewOneHasEmptyModelDefaultDetailAndTypeOne)
{
    CloudSpaceManagementViewModel viewModel;
    ASSERT_NE(viewModel.model, nullptr);
    EXPECT_TRUE(viewModel.model->items.empty());
    EXPECT_TRUE(viewModel.model->backups.empty());
    ASSERT_NE(viewModel.model->detail, nullptr);
    EXPECT_EQ(viewModel.model->detail->buttonKind, 2);
    EXPECT_EQ(viewModel.model->detail->buttonColor, "#226BFF");
    EXPECT_EQ(viewModel.defaultType, 1);
    EXPECT_FALSE(viewModel.backupIsV3);
    EXPECT_EQ(viewModel.deviceList, nullptr);
    EXPECT_TRUE(viewModel.backupDeviceIds.empty());
    EXPECT_EQ(viewModel.backupRootPath, "/Backup/CloudBackup/");
    EXPECT_EQ(viewModel.cloudBackupPath, "/CloudBackup/");
}

TEST(CloudSpaceManagementViewModel, SetCloudbackupTipParamStoresTheFourValues)
{
    CloudSpaceManagementViewModel viewModel;
    int anchor = 0;
    HWND window = reinterpret_cast<HWND>(&anchor);
    viewModel.SetCloudbackupTipParam(window, 0x8001, 0x8002, 0x8003);
    EXPECT_EQ(viewModel.tipWindow, window);
    EXPECT_EQ(viewModel.tipVersionMessage, 0x8001u);
    EXPECT_EQ(viewModel.tipDeviceListMessage, 0x8002u);
    EXPECT_EQ(viewModel.tipDeleteMessage, 0x8003u);
    EXPECT_EQ(viewModel.defaultType, 1);
}

TEST(ModelWriteLock, SecondWriterIsNotHeldWithoutReaders)
{
    ModelWriteLock lock;
    lock.Enter();
    EXPECT_TRUE(lock.WriterEntered());
    auto second = std::async(std::launch::async, [&lock] {
        lock.Enter();
        return true;
    });
    ASSERT_EQ(second.wait_for(std::chrono::seconds(5)), std::future_status::ready);
    EXPECT_TRUE(second.get());
    lock.Leave();
    EXPECT_FALSE(lock.WriterEntered());
}

TEST(ModelWriteGuard, LeavesWhenTheScopeEnds)
{
    ModelWriteLock lock;
    {
        ModelWriteGuard guard(lock);
        EXPECT_TRUE(lock.WriterEntered());
    }
    EXPECT_FALSE(lock.WriterEntered());
}

TEST(ItemOrdering, BackupLeadsThenBytesLargestFirstThenCounts)
{
    std::vector<std::shared_ptr<CloudSpaceItem>> items = {
        Item(Message, 0, "3"),    Item(Gallery, 100, ""), Item(CloudBackUp, 5, "1"),
        Item(CloudDisk, 900, ""), Item(Phone, 0, "40"),   Item(Recorder, 1, "2"),
    };
    std::sort(items.begin(), items.end(), CloudSpaceItemComesFirst);
    std::vector<CloudSpaceType> order;
    for (const auto& item : items) {
        order.push_back(item->type);
    }
    EXPECT_EQ(order,
              (std::vector<CloudSpaceType>{CloudBackUp, CloudDisk, Gallery, Recorder, Phone, Message}));
}

TEST(ItemOrdering, EqualSpaceGivesNeitherPrecedence)
{
    const auto a = Item(Gallery, 500, "");
    const auto b = Item(CloudDisk, 500, "");
    EXPECT_FALSE(CloudSpaceItemComesFirst(a, b));
    EXPECT_FALSE(CloudSpaceItemComesFirst(b, a));
}

TEST(ItemOrdering, ZeroSpaceAndEmptyCountSortsLast)
{
    std::vector<std::shared_ptr<CloudSpaceItem>> items = {
        Item(Wlan, 0, ""),
        Item(Calendar, 0, "1"),
        Item(Notepad, 1, "0"),
    };
    std::sort(items.begin(), items.end(), CloudSpaceItemComesFirst);
    EXPECT_EQ(items.back()->type, Wlan);
    EXPECT_EQ(items.front()->type, Notepad);
}

TEST(ItemOrdering, BackupRowBeatsLargerBytes)
{
    const auto backup = Item(CloudBackUp, 1, "1");
    const auto drive = Item(CloudDisk, 1LL << 40, "");
    EXPECT_TRUE(CloudSpaceItemComesFirst(backup, drive));
    EXPECT_FALSE(CloudSpaceItemComesFirst(drive, backup));
    EXPECT_FALSE(CloudSpaceItemComesFirst(backup, backup));
}
