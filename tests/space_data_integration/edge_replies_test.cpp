// Edge cases of the category roads that no fixture holds: spacemgm-cloud
// answers one request with a reply written here, everything else as the
// sample account has it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "foundation/request_catalogue.h"
#include "host/host_config.h"
#include "host/logger_sink.h"
#include "request/records/quota_records.h"
#include "space_fixture.h"

namespace {

using spacemgm_test::CloudEmulator;
using Items = std::vector<std::shared_ptr<CloudSpaceItem>>;

class EdgeReplies : public ::testing::Test
{
protected:
    void SetUp() override { host::SetCurrentHostConfig(space_test::ConfigFor(cloud_)); }

    // The next request to `endpoint` whose body holds `bodyContains` gets
    // `reply` with status 200.
    void Answer(const std::string& endpoint, const std::string& bodyContains, const std::string& reply)
    {
        Json::Value rule;
        rule["kind"] = "status";
        rule["status"] = 200;
        rule["endpoint"] = endpoint;
        if (!bodyContains.empty()) {
            rule["bodyContains"] = bodyContains;
        }
        rule["body"] = reply;
        rule["limit"] = 1;
        cloud_.AddFault(rule);
    }

    std::shared_ptr<CloudSpaceItem> Category(CloudSpaceType type)
    {
        Items items;
        return wired_.viewModel.GetItemSpace(type, items);
    }

    int RequestsWith(const std::string& text)
    {
        int count = 0;
        for (const Json::Value& request : cloud_.RequestLog()) {
            count += request["body"].asString().find(text) != std::string::npos ? 1 : 0;
        }
        return count;
    }

    CloudEmulator cloud_;
    space_test::WiredViewModel wired_;
};

std::vector<std::string> Messages(const Logger::ScopedMemorySink& sink)
{
    std::vector<std::string> messages;
    for (const Logger::Record& record : sink.Records()) {
        messages.push_back(record.message);
    }
    return messages;
}

} // namespace

TEST_F(EdgeReplies, GalleryWithEverythingInTheBinStillHasARow)
{
    Answer("/family/rest.php", "collection%3dphoto",
           R"({"retCode":0,"used":500,"quotaDetails":[{"trashed":true,"assetsQuotadSpace":500}]})");
    const auto item = Category(Gallery);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->space, 500);
    EXPECT_EQ(item->recycle, 500);
}

TEST_F(EdgeReplies, GalleryWithZeroTotalsHasNoRowButLogsSuccess)
{
    Answer("/family/rest.php", "collection%3dphoto",
           R"({"retCode":0,"used":0,"quotaDetails":[{"trashed":false,"assetsQuotadSpace":0},)"
           R"({"trashed":true,"assetsQuotadSpace":0}]})");
    Logger::ScopedMemorySink sink;
    EXPECT_EQ(Category(Gallery), nullptr);
    EXPECT_EQ(Messages(sink),
              (std::vector<std::string>{"Getting Item Space: Gallery starts.",
                                        "Getting quota used info of recycle space successfully.",
                                        "Getting Item Space: Gallery ends."}));
}

TEST_F(EdgeReplies, CloudDiskWithNothingUsedAsksNoRecycleQuery)
{
    // The sample drive's bin holds 1.5 GiB; it is never asked about.
    Answer("/family/user/v1/quota/drive", "", R"({"retCode":0,"used":0})");
    cloud_.ClearLog();
    EXPECT_EQ(Category(CloudDisk), nullptr);
    EXPECT_EQ(RequestsWith("collection%3ddrive"), 0);
}

TEST_F(EdgeReplies, RecorderWithBytesButNoFilesHasNoRow)
{
    Answer(
        "/nsp", "getattr",
        R"({"successList":[{"name":"/RecordBackup/A","type":"Directory","space":"1000000","fileCount":0}]})");
    EXPECT_EQ(Category(Recorder), nullptr);
}

TEST_F(EdgeReplies, RecorderIgnoresEntriesThatAreNotDirectories)
{
    Answer("/nsp", "getattr",
           R"({"successList":[{"name":"/RecordBackup/A","type":"File","space":"900000","fileCount":50},)"
           R"({"name":"/RecordBackup/B","type":"directory","space":"800000","fileCount":40},)"
           R"({"name":"/RecordBackup/C","type":"Directory","space":"1000","fileCount":2}]})");
    const auto item = Category(Recorder);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->space, 1000);
    EXPECT_EQ(item->count, "2");
}

TEST_F(EdgeReplies, VersionOtherThanOneOrTwoIsTheCategoryError)
{
    Answer("/syncdrive/dataSync/v1/service/1000/about", "", R"({"dataVersion":"v3.0"})");
    EXPECT_EQ(wired_.viewModel.GetPimDataVersion(kPimDataVerionType0), "v3.0");
    Answer("/syncdrive/dataSync/v1/service/1000/about", "", R"({"dataVersion":"v3.0"})");
    Logger::ScopedMemorySink sink;
    EXPECT_EQ(Category(Contact), nullptr);
    const auto messages = Messages(sink);
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages.back(), "Getting Contact Version Error.");
}

TEST_F(EdgeReplies, EmptyVersionIsTheOldStore)
{
    Answer("/syncdrive/dataSync/v1/service/1000/about", "", R"({"dataVersion":""})");
    EXPECT_EQ(wired_.viewModel.GetPimDataVersion(kPimDataVerionType0), "v1.0");
}

TEST_F(EdgeReplies, ContactsAllInTheBinHaveNoRow)
{
    Answer("/pimds/Statistic/Contact", "",
           R"({"result":{"errorNo":0,"info":"ok"},"data":[{"source":"contact","sumNum":0},)"
           R"({"source":"recycleContact","sumNum":5}]})");
    EXPECT_EQ(Category(Contact), nullptr);
}

TEST_F(EdgeReplies, NewStoreRecordsAllInTheBinHaveNoRow)
{
    std::shared_ptr<CloudSpaceItem> item;
    Answer("/family/rest.php", "%5bcalendar%5d",
           R"({"retCode":0,"used":9,"quotaDetails":[{"kind":"calendar","trashed":"true","recordsCount":9,)"
           R"("assetsQuotadSpace":9}]})");
    wired_.viewModel.GetSpaceFromPim("[calendar]", "1002", item, "sample-token/+= 1%41", Calendar);
    EXPECT_EQ(item, nullptr);
}

TEST_F(EdgeReplies, NewStoreLastLiveEntryWinsAndOtherCaseIsTheBin)
{
    std::shared_ptr<CloudSpaceItem> item;
    Answer("/family/rest.php", "%5bwlan%5d",
           R"({"retCode":0,"used":9,"quotaDetails":[)"
           R"({"kind":"wlan","trashed":"false","recordsCount":10,"assetsQuotadSpace":100},)"
           R"({"kind":"wlan","trashed":"false","recordsCount":3,"assetsQuotadSpace":30},)"
           R"({"kind":"wlan","trashed":"False","recordsCount":7,"assetsQuotadSpace":70}]})");
    wired_.viewModel.GetSpaceFromPim("[wlan]", "1004", item, "sample-token/+= 1%41", Wlan);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->count, "3");
    EXPECT_EQ(item->space, 30);
    EXPECT_EQ(item->recycle, 7);
}

TEST_F(EdgeReplies, OldBrowserStoreWithOnlyBrowserEntryHasNoRow)
{
    Answer("/pimds/Statistic/Browser", "",
           R"({"result":{"errorNo":0,"info":"ok"},"data":[{"source":"browser","sumNum":12}]})");
    std::shared_ptr<CloudSpaceItem> item;
    wired_.viewModel.GetV1BrowserData(item);
    EXPECT_EQ(item, nullptr);
}

TEST_F(EdgeReplies, OldBrowserStoreCountsAnUnknownSource)
{
    Answer("/pimds/Statistic/Browser", "",
           R"({"result":{"errorNo":0,"info":"ok"},"data":[{"source":"reading","sumNum":7}]})");
    std::shared_ptr<CloudSpaceItem> item;
    wired_.viewModel.GetV1BrowserData(item);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->count, "7");
    EXPECT_EQ(item->bookmarkCount, 0);
    EXPECT_EQ(item->infoflowCount, 0);
}

TEST_F(EdgeReplies, NotepadWithTwoAttributeEntriesHasNoBytes)
{
    Answer("/nsp", "getattr",
           R"({"successList":[{"name":"/Sync/note","type":"Directory","space":"5000"},)"
           R"({"name":"/Sync/note2","type":"Directory","space":"6000"}]})");
    std::shared_ptr<CloudSpaceItem> item;
    wired_.viewModel.GetV1NotepadData(item, "sample-token/+= 1%41");
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->space, 0);
    EXPECT_EQ(item->count, "57");
}

TEST_F(EdgeReplies, BackupDeviceWithoutBytesGetsNoRowButTheTotalStands)
{
    Answer("/family/rest.php", "deviceId%20in",
           R"({"retCode":0,"used":700,"quotaDetails":[{"deviceId":"bk-0001-a1f3","assetsQuotadSpace":0},)"
           R"({"deviceId":"bk-0002-a1f3","assetsQuotadSpace":600}]})");
    const auto result = wired_.viewModel.GetBackUpData();
    ASSERT_NE(result->item, nullptr);
    EXPECT_EQ(result->item->count, "1");
    EXPECT_EQ(result->item->space, 700);
    ASSERT_EQ(result->models.size(), 1u);
    EXPECT_EQ(result->models[0].deviceId, "bk-0002-a1f3");
}

TEST_F(EdgeReplies, BackupWithNothingUsedHasNoRowAtAll)
{
    Answer("/family/rest.php", "deviceId%20in",
           R"({"retCode":0,"used":0,"quotaDetails":[{"deviceId":"bk-0001-a1f3","assetsQuotadSpace":600}]})");
    const auto result = wired_.viewModel.GetBackUpData();
    EXPECT_EQ(result->item, nullptr);
    EXPECT_TRUE(result->models.empty());
}

TEST_F(EdgeReplies, BackupDetailOfAnUnknownDeviceHasAnEmptyName)
{
    Answer("/family/rest.php", "deviceId%20in",
           R"({"retCode":0,"used":600,"quotaDetails":[{"deviceId":"bk-stranger","assetsQuotadSpace":600}]})");
    const auto result = wired_.viewModel.GetBackUpData();
    ASSERT_EQ(result->models.size(), 1u);
    EXPECT_EQ(result->models[0].deviceId, "bk-stranger");
    EXPECT_EQ(result->models[0].deviceName, "");
}

// Every category but the backup fails: the load has the backup row alone,
// and it replaces the twelve rows of the load before.
TEST_F(EdgeReplies, BackupRowAloneReplacesTheLoadBefore)
{
    wired_.viewModel.GetCloudInfo();
    ASSERT_EQ(wired_.viewModel.model->items.size(), 12u);
    for (const char* service : {"pimds", "cloudSyncDrive", "nsp", "cloudPhoto"}) {
        Json::Value rule;
        rule["kind"] = "empty";
        rule["service"] = service;
        cloud_.AddFault(rule);
    }
    const std::pair<const char*, const char*> others[] = {
        {"/family/user/v1/quota/drive", ""},
        {"/family/rest.php", "collection%3dphoto"},
        {"/cbs/CloudBackup/ClientServlet", "CountByDeviceReq"}};
    for (const auto& other : others) {
        Json::Value rule;
        rule["kind"] = "empty";
        rule["endpoint"] = other.first;
        if (*other.second) {
            rule["bodyContains"] = other.second;
        }
        cloud_.AddFault(rule);
    }
    wired_.viewModel.GetCloudInfo();
    ASSERT_EQ(wired_.viewModel.model->items.size(), 1u);
    EXPECT_EQ(wired_.viewModel.model->items[0]->type, CloudBackUp);
    EXPECT_EQ(wired_.viewModel.model->backups.size(), 2u);
}
