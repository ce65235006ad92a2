// The row every category yields from each account of spacemgm-cloud. The
// numbers were worked out from the fixture files by hand (sums of the files
// under each folder, of the statistics and of the records), not taken from a
// run of the module.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "host/host_config.h"
#include "space_fixture.h"

namespace {

using spacemgm_test::CloudEmulator;

struct ExpectedRow
{
    CloudSpaceType type;
    int64_t space;
    const char* count;
    int64_t recycle;
    int32_t bookmarkCount;
    int32_t infoflowCount;
};

struct ExpectedBackup
{
    const char* deviceId;
    const char* deviceName;
    int64_t size;
};

struct FixtureCase
{
    const char* fixture;
    std::vector<ExpectedRow> rows;
    std::vector<ExpectedBackup> backups;
};

// Sample and cn differ only in the country, and so in the folders that hold
// recordings and harassment records; the totals are the same.
const std::vector<ExpectedRow> kVersionOneRows = {
    {CloudBackUp, 36507222016, "2", 0, 0, 0},
    {Gallery, 45097156608, "", 2147483648, 0, 0},
    {CloudDisk, 26843545600, "", 1610612736, 0, 0},
    {Contact, 0, "812", 5, 0, 0},
    {Notepad, 280212, "57", 2, 0, 0},
    {Calendar, 0, "152", 0, 0, 0},
    {Wlan, 0, "23", 0, 0, 0},
    {Browser, 0, "354", 0, 310, 44},
    {Recorder, 1305000, "6", 0, 0, 0},
    {HarassmentInterception, 1314816, "", 0, 0, 0},
    {Message, 0, "3621", 0, 0, 0},
    {Phone, 0, "1029", 0, 0, 0},
};

const std::vector<ExpectedBackup> kVersionOneBackups = {
    {"bk-0001-a1f3", "Nuvo P60 Pro", 30064771072},
    {"bk-0002-a1f3", "Nuvo Pad 11", 6442450944},
};

#ifdef SPACE_TEST_COUNTRY_CN
// The request layer fills the country header once per process, so the
// account of country CN is loaded by a program of its own.
const FixtureCase kCases[] = {{"cn", kVersionOneRows, kVersionOneBackups}};
#else
const FixtureCase kCases[] = {
    {"sample", kVersionOneRows, kVersionOneBackups},
    {"v2",
     {
         {CloudBackUp, 36507222016, "2", 0, 0, 0},
         {Gallery, 45097156608, "", 2147483648, 0, 0},
         {CloudDisk, 26843545600, "", 1610612736, 0, 0},
         {Contact, 100663296, "1203", 14, 0, 0},
         {Notepad, 325058560, "88", 3, 0, 0},
         {Calendar, 3145728, "402", 9, 0, 0},
         {Wlan, 65536, "31", 0, 0, 0},
         {Browser, 0, "587", 0, 512, 75},
         {Recorder, 1305000, "6", 0, 0, 0},
         {HarassmentInterception, 1314816, "", 0, 0, 0},
         {Message, 0, "3621", 0, 0, 0},
         {Phone, 0, "1029", 0, 0, 0},
     },
     {
         {"dev-0001", "Nuvo P60 Pro", 30064771072},
         {"dev-0002", "Nuvo Pad 11", 6442450944},
     }},
    {"empty", {}, {}},
};
#endif

class FixtureRows : public ::testing::TestWithParam<FixtureCase>
{
};

std::string CaseName(const ::testing::TestParamInfo<FixtureCase>& info)
{
    return info.param.fixture;
}

} // namespace

TEST_P(FixtureRows, EveryCategoryYieldsExactlyItsRow)
{
    const FixtureCase& expected = GetParam();
    CloudEmulator::Options options;
    options.fixture = expected.fixture;
    CloudEmulator cloud(options);
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    wired.viewModel.GetCloudInfo();

    std::map<CloudSpaceType, std::shared_ptr<CloudSpaceItem>> rows;
    for (const auto& item : wired.viewModel.model->items) {
        EXPECT_TRUE(rows.emplace(item->type, item).second) << "two rows of type " << item->type;
    }
    EXPECT_EQ(rows.size(), expected.rows.size());
    for (const ExpectedRow& row : expected.rows) {
        SCOPED_TRACE("type " + std::to_string(row.type));
        ASSERT_TRUE(rows.count(row.type));
        const CloudSpaceItem& item = *rows.at(row.type);
        EXPECT_EQ(item.sortType, row.type);
        EXPECT_EQ(item.space, row.space);
        EXPECT_EQ(item.count, row.count);
        EXPECT_EQ(item.recycle, row.recycle);
        EXPECT_EQ(item.bookmarkCount, row.bookmarkCount);
        EXPECT_EQ(item.infoflowCount, row.infoflowCount);
    }

    // The version 1 road asks for the devices in the order of a hash set, so
    // the rows are compared by device id.
    auto backups = wired.viewModel.model->backups;
    std::sort(backups.begin(), backups.end(),
              [](const BackUpModel& a, const BackUpModel& b) { return a.deviceId < b.deviceId; });
    ASSERT_EQ(backups.size(), expected.backups.size());
    for (size_t i = 0; i < backups.size(); ++i) {
        EXPECT_EQ(backups[i].deviceId, expected.backups[i].deviceId);
        EXPECT_EQ(backups[i].deviceName, expected.backups[i].deviceName);
        EXPECT_EQ(backups[i].size, expected.backups[i].size);
        EXPECT_FALSE(backups[i].sizeText.empty());
    }
    EXPECT_EQ(wired.viewModel.defaultType, expected.rows.empty() ? 1 : 5);
}

INSTANTIATE_TEST_SUITE_P(Fixtures, FixtureRows, ::testing::ValuesIn(kCases), CaseName);

#ifndef SPACE_TEST_COUNTRY_CN
// Rows come out sorted: the backup first, then bytes, largest first, then
// counts, largest first.
TEST(FixtureRowsOrder, SampleRowsAreInDisplayOrder)
{
    CloudEmulator cloud;
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    wired.viewModel.GetCloudInfo();
    std::vector<CloudSpaceType> order;
    for (const auto& item : wired.viewModel.model->items) {
        order.push_back(item->type);
    }
    EXPECT_EQ(order,
              (std::vector<CloudSpaceType>{CloudBackUp, Gallery, CloudDisk, HarassmentInterception, Recorder,
                                           Notepad, Message, Phone, Contact, Browser, Calendar, Wlan}));
}
#endif
