// Every request of every category meets each fault kind of spacemgm-cloud.
// What the module sees falls into four classes: no reply ("", "[]" and a cut
// connection all give a null record), a record read from the service's error
// body (a status), a default record (not JSON), and a record read up to its
// first mistyped field (wrong types). Each row says what the category shows
// and logs in each class. A category fails to a missing row unless one of its
// requests is not needed for the row (the cloud drive's about query, its
// recycle query, one of the notepad's two sources, a later page of counts).
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <unistd.h>

#include "host/host_config.h"
#include "host/logger_sink.h"
#include "space_fixture.h"

namespace {

using spacemgm_test::CloudEmulator;
using Lines = std::vector<std::string>;

struct Row
{
    int64_t space;
    std::string count;
    int64_t recycle;
};

struct Outcome
{
    std::optional<Row> row;
    Lines lines;
};

struct FaultTarget
{
    const char* name;
    const char* fixture; // "sample", "v2" or "browser-v1"
    CloudSpaceType type;
    std::string endpoint;
    const char* bodyContains;
    int nth; // the n-th matching request fails; 0: every one
    Outcome onNoReply;
    Outcome onStatus;
    Outcome onNotJson;
    Outcome onWrongTypes;
};

const char* const kKinds[] = {"status", "empty", "emptyArray", "notJson", "wrongTypes", "cut"};

const Outcome& ExpectedFor(const FaultTarget& target, const std::string& kind)
{
    if (kind == "status") {
        return target.onStatus;
    }
    if (kind == "notJson") {
        return target.onNotJson;
    }
    if (kind == "wrongTypes") {
        return target.onWrongTypes;
    }
    return target.onNoReply;
}

Outcome NoRow(Lines lines)
{
    return {std::nullopt, std::move(lines)};
}

Outcome WithRow(Row row, Lines lines)
{
    return {std::move(row), std::move(lines)};
}

// Log texts, spelled as the module writes them.
const std::string kVersionOk = "Getting pim data version successfully.";
const std::string kGalleryStart = "Getting Item Space: Gallery starts.";
const std::string kGalleryEnd = "Getting Item Space: Gallery ends.";
const std::string kDiskStart = "Getting Item Space: CloudDisk starts.";
const std::string kDiskEnd = "Getting Item Space: CloudDisk ends.";
const std::string kDiskUrlOk = "Getting space from url successfully.";
const std::string kDiskCut = "Cutted status.";
const std::string kDiskRecycleOk = "Getting quota used info of CloudDisk space successfully.";
const std::string kRecorderStart = "Getting Item Space: Recorder starts.";
const std::string kRecorderEnd = "Getting Item Space: Recorder ends.";
const std::string kFilesOk = "Getting NSPFilesResponse successfully.";
const std::string kFoldersOk = "Getting NSPFoldersResponse successfully.";
const std::string kBlockedStart = "Getting Item Space: HarassmentInterception starts.";
const std::string kBlockedEnd = "Getting Item Space: HarassmentInterception ends.";
const std::string kCountOk = "Querying BackUpSmsAndCallLog Response successfully.";
const std::string kCountResult500 = "Querying BackUpSmsAndCallLog->result is 500";
const std::string kContactStart = "Getting Item Space: Contact starts.";
const std::string kContactV1End = "Getting Item Space: Contact v1 Version end.";
const std::string kContactV2End = "Getting Item Space: Contact v2 Version end.";
const std::string kNotepadStart = "Getting Item Space: Notepad starts.";
const std::string kNotepadV1End = "Getting Item Space: Notepad V1 ends.";
const std::string kNotepadV2End = "Getting Item Space: Notepad V2 ends.";
const std::string kNotepadAttrOk = "Getting nsp attributes successfully.";
const std::string kNotepadCountOk = "Getting notepad v1 data success.";
const std::string kCalendarStart = "Getting Item Space: Calendar starts.";
const std::string kCalendarEnd = "Getting Item Space: Calendar v1 ends."; // both roads end so
const std::string kWlanStart = "Getting Item Space: Wlan starts.";
const std::string kWlanV1End = "Getting Item Space: Wlan v1 ends.";
const std::string kWlanV2End = "Getting Item Space: Wlan v2 ends.";
const std::string kBrowserStart = "Getting Item Space: Browser starts.";
const std::string kBrowserV1End = "Getting Item Space: Browser v1 ends.";
const std::string kBrowserV2End = "Getting Item Space: Browser v2 ends.";
const std::string kStatNull = "Getting statistic response failed,query PIMDS Failed Response is null";
const std::string kStatNoResult =
    "Getting statistic response failed,query PIMDS Failed Code: data->result is null";
const std::string kStat500 = "Getting statistic response failed,query PIMDS Failed Code: 500";
const std::string kStatOk = "Getting statistic response successfully.";
const std::string kV1Start = "v1 query backupData start.";
const std::string kV1Records = "v1 query backupData QueryAllDevicesBackupRecord Size:";
const std::string kV1Count = "v1 query backupData deviceIdCount Size:";
const std::string kV1Models = "v1 query backupData lstBackUpModel Size:";
const std::string kV3Start = "v3 query backupData start.";
const std::string kV3List = "v3 query backupData listDev Size:";
const std::string kV3Models = "v3 query backupData lstBackUpModel Size:";
const std::string kV3End = "v3 query backupData end.";

// The category rows of the sample account when nothing goes wrong.
const Row kDiskRow{26843545600, "", 1610612736};
const Row kContactRow{0, "812", 5};
const Row kNotepadRow{280212, "57", 2};
const Row kCalendarRow{0, "152", 0};
const Row kWlanRow{0, "23", 0};

const Lines kDiskAllWell = {kDiskStart, kDiskUrlOk, kDiskCut, kDiskRecycleOk, kDiskEnd};

std::vector<FaultTarget> Targets()
{
    const Outcome galleryNothing = NoRow({kGalleryStart, kGalleryEnd});
    const Outcome diskUntouched = WithRow(kDiskRow, kDiskAllWell);
    const Outcome diskNoUrl = NoRow({kDiskStart, kDiskEnd});
    const Outcome diskZeroUrl = NoRow({kDiskStart, kDiskUrlOk, kDiskEnd});
    const Outcome diskNoRecycle = WithRow({26843545600, "", 0}, {kDiskStart, kDiskUrlOk, kDiskCut, kDiskEnd});
    const Outcome diskZeroRecycle = WithRow({26843545600, "", 0}, kDiskAllWell);
    const Outcome recorderNoListing = NoRow({kRecorderStart, kRecorderEnd});
    const Outcome recorderNoFolders = NoRow({kRecorderStart, kFilesOk, kRecorderEnd});
    const Outcome blockedNoListing = NoRow({kBlockedStart, kBlockedEnd});
    const Outcome blockedNoFiles = NoRow({kBlockedStart, kFilesOk, kBlockedEnd});

    auto countFirst = [](const std::string& start, const std::string& end) {
        return std::vector<Outcome>{NoRow({start, end}), NoRow({start, kCountResult500, end})};
    };
    auto countSecond = [](const std::string& start, const std::string& end, const std::string& firstPage) {
        return std::vector<Outcome>{WithRow({0, firstPage, 0}, {start, kCountOk, end}),
                                    WithRow({0, firstPage, 0}, {start, kCountOk, kCountResult500, end})};
    };
    const auto smsFirst =
        countFirst("Getting Item Space: Message starts.", "Getting Item Space: Message ends.");
    const auto smsSecond =
        countSecond("Getting Item Space: Message starts.", "Getting Item Space: Message ends.", "2407");
    const auto callFirst = countFirst("Getting Item Space: Phone starts.", "Getting Item Space: Phone ends.");
    const auto callSecond =
        countSecond("Getting Item Space: Phone starts.", "Getting Item Space: Phone ends.", "683");

    // A version reply that is there but names no version is the old store;
    // only a missing reply is the version error.
    auto version = [](const char* name, CloudSpaceType type, const char* service, const std::string& start,
                      const std::string& error, Outcome onOldStore) {
        const std::string endpoint = std::string("/syncdrive/dataSync/v1/service/") + service + "/about";
        return FaultTarget{name,       "sample",   type,      endpoint, "", 0, NoRow({start, error}),
                           onOldStore, onOldStore, onOldStore};
    };
    auto versionTwo = [](const char* name, const char* fixture, CloudSpaceType type, const char* kinds,
                         const std::string& start, const std::string& end, const std::string& fail) {
        const Outcome nothing = NoRow({start, kVersionOk, end});
        return FaultTarget{
            name,    fixture, type,   "/family/rest.php", kinds, 0, NoRow({start, kVersionOk, fail, end}),
            nothing, nothing, nothing};
    };
    auto statistics = [](const char* name, CloudSpaceType type, const char* endpoint,
                         const std::string& start, const std::string& end) {
        return FaultTarget{name,
                           "sample",
                           type,
                           endpoint,
                           "",
                           0,
                           NoRow({start, kVersionOk, kStatNull, end}),
                           NoRow({start, kVersionOk, kStat500, end}),
                           NoRow({start, kVersionOk, kStatNoResult, end}),
                           NoRow({start, kVersionOk, kStatOk, end})};
    };

    const Outcome browserOldStoreEmpty = NoRow({kBrowserStart, kVersionOk, kBrowserV1End});
    const Outcome contactNull = NoRow(
        {kContactStart, kVersionOk, "QueryContactCount Query PIMDS Failed Response is null.", kContactV1End});
    const Outcome browserNull = NoRow(
        {kBrowserStart, kVersionOk, "QueryBrowserCount Query PIMDS Failed Response is null", kBrowserV1End});

    return {
        {"Gallery", "sample", Gallery, "/family/rest.php", "collection%3dphoto", 0, galleryNothing,
         NoRow({kGalleryStart, "galleryResponse->retCode = 500", kGalleryEnd}), galleryNothing,
         galleryNothing},

        {"CloudDiskAbout", "sample", CloudDisk, "/cloudphoto/cloudPhoto/v1/about", "", 0, diskUntouched,
         diskUntouched, diskUntouched, diskUntouched},
        {"CloudDiskUsed", "sample", CloudDisk, "/family/user/v1/quota/drive", "", 0, diskNoUrl,
         NoRow({kDiskStart, "getSpaceFromUrl->retCode = 500", kDiskEnd}), diskZeroUrl, diskZeroUrl},
        {"CloudDiskRecycle", "sample", CloudDisk, "/family/rest.php", "collection%3ddrive", 0, diskNoRecycle,
         WithRow({26843545600, "", 0},
                 {kDiskStart, kDiskUrlOk, kDiskCut, "recycleResponse->retCode = 500", kDiskEnd}),
         diskZeroRecycle, diskZeroRecycle},

        {"RecorderListing", "sample", Recorder, "/nsp", "queryFolder", 0, recorderNoListing,
         recorderNoListing, recorderNoListing, recorderNoListing},
        {"RecorderAttributes", "sample", Recorder, "/nsp", "getattr", 0, recorderNoFolders, recorderNoFolders,
         recorderNoFolders, NoRow({kRecorderStart, kFilesOk, kFoldersOk, kRecorderEnd})},

        {"HarassmentListing", "sample", HarassmentInterception, "/nsp", "queryFolder", 0, blockedNoListing,
         blockedNoListing, blockedNoListing, blockedNoListing},
        {"HarassmentFiles", "sample", HarassmentInterception, "/nsp", "nsp.vfs.queryFile&", 0, blockedNoFiles,
         blockedNoFiles, blockedNoFiles, blockedNoFiles},

        {"MessageFirstPage", "sample", Message, "/cbs/CloudBackup/ClientServlet", "CountByDeviceReq", 1,
         smsFirst[0], smsFirst[1], smsFirst[0], smsFirst[0]},
        {"MessageSecondPage", "sample", Message, "/cbs/CloudBackup/ClientServlet", "CountByDeviceReq", 2,
         smsSecond[0], smsSecond[1], smsSecond[0], smsSecond[0]},
        {"PhoneFirstPage", "sample", Phone, "/cbs/CloudBackup/ClientServlet", "CountByDeviceReq", 1,
         callFirst[0], callFirst[1], callFirst[0], callFirst[0]},
        {"PhoneSecondPage", "sample", Phone, "/cbs/CloudBackup/ClientServlet", "CountByDeviceReq", 2,
         callSecond[0], callSecond[1], callSecond[0], callSecond[0]},

        version("ContactVersion", Contact, "1000", kContactStart, "Getting Contact Version Error.",
                WithRow(kContactRow, {kContactStart, kVersionOk, kContactV1End})),
        {"ContactStatistics", "sample", Contact, "/pimds/Statistic/Contact", "", 0, contactNull,
         NoRow({kContactStart, kVersionOk,
                "QueryContactCount Query PIMDS Failed Code : 500, info:injected fault", kContactV1End}),
         contactNull, NoRow({kContactStart, kVersionOk, kContactV1End})},
        versionTwo("ContactQuota", "v2", Contact, "%5bcontact%5d", kContactStart, kContactV2End,
                   "Getting v2 pim data fail. kind is contact"),

        version("NotepadVersion", Notepad, "1001", kNotepadStart, "Getting Notepad Version Error.",
                WithRow(kNotepadRow,
                        {kNotepadStart, kVersionOk, kNotepadAttrOk, kNotepadCountOk, kNotepadV1End})),
        {"NotepadAttributes", "sample", Notepad, "/nsp", "getattr", 0,
         WithRow({0, "57", 2}, {kNotepadStart, kVersionOk, kNotepadCountOk, kNotepadV1End}),
         WithRow({0, "57", 2}, {kNotepadStart, kVersionOk, kNotepadCountOk, kNotepadV1End}),
         WithRow({0, "57", 2}, {kNotepadStart, kVersionOk, kNotepadCountOk, kNotepadV1End}),
         WithRow({0, "57", 2}, {kNotepadStart, kVersionOk, kNotepadCountOk, kNotepadV1End})},
        {"NotepadStatistics", "sample", Notepad, "/pimds/Statistic/Notepad", "", 0,
         WithRow({280212, "0", 0}, {kNotepadStart, kVersionOk, kNotepadAttrOk, kNotepadV1End}),
         WithRow({280212, "0", 0}, {kNotepadStart, kVersionOk, kNotepadAttrOk, kNotepadV1End}),
         WithRow({280212, "0", 0}, {kNotepadStart, kVersionOk, kNotepadAttrOk, kNotepadV1End}),
         WithRow({280212, "0", 0}, {kNotepadStart, kVersionOk, kNotepadAttrOk, kNotepadV1End})},
        versionTwo("NotepadQuota", "v2", Notepad, "%5bnote%5d", kNotepadStart, kNotepadV2End,
                   "Getting v2 pim data fail. kind is notepad"),

        version("CalendarVersion", Calendar, "1002", kCalendarStart, "Getting Calendar Version Error.",
                WithRow(kCalendarRow, {kCalendarStart, kVersionOk, kStatOk, kCalendarEnd})),
        statistics("CalendarStatistics", Calendar, "/pimds/Statistic/Calendar", kCalendarStart, kCalendarEnd),
        versionTwo("CalendarQuota", "v2", Calendar, "%5bcalendar%5d", kCalendarStart, kCalendarEnd,
                   "Getting v2 pim data fail. kind is calendar"),

        version("WlanVersion", Wlan, "1004", kWlanStart, "Getting Wlan Version Error.",
                WithRow(kWlanRow, {kWlanStart, kVersionOk, kStatOk, kWlanV1End})),
        statistics("WlanStatistics", Wlan, "/pimds/Statistic/Wlan", kWlanStart, kWlanV1End),
        versionTwo("WlanQuota", "v2", Wlan, "%5bwlan%5d", kWlanStart, kWlanV2End,
                   "Getting v2 pim data fail. kind is wlan"),

        // The sample browser lives on the new store: a version reply that
        // names none sends it to the old one, which holds nothing.
        version("BrowserVersion", Browser, "1005", kBrowserStart, "Getting Browser Version Error.",
                browserOldStoreEmpty),
        versionTwo("BrowserQuota", "sample", Browser, "%5bbookmark%2cinfoflow%5d", kBrowserStart,
                   kBrowserV2End, "Getting v2 pim data fail. kind is browser."),
        {"BrowserStatistics", "browser-v1", Browser, "/pimds/Statistic/Browser", "", 0, browserNull,
         NoRow({kBrowserStart, kVersionOk,
                "QueryBrowserCount Query PIMDS Failed Code : 500, info: injected fault", kBrowserV1End}),
         browserNull, NoRow({kBrowserStart, kVersionOk, kBrowserV1End})},

        {"BackupRecordsV1", "sample", CloudBackUp, "/cbs/CloudBackup/ClientServlet",
         "QueryAllDevicesBackupRecordReq", 0, NoRow({kV1Start, kV1Count, kV1Models, kV1Start}),
         NoRow({kV1Start, kV1Count, kV1Models, kV1Start}), NoRow({kV1Start, kV1Count, kV1Models, kV1Start}),
         NoRow({kV1Start, kV1Count, kV1Models, kV1Start})},
        {"BackupQuotaV1", "sample", CloudBackUp, "/family/rest.php", "deviceId%20in", 0,
         NoRow({kV1Start, kV1Records, kV1Count, kV1Models, kV1Start}),
         NoRow({kV1Start, kV1Records, kV1Count, kV1Models, kV1Start}),
         NoRow({kV1Start, kV1Records, kV1Count, kV1Models, kV1Start}),
         NoRow({kV1Start, kV1Records, kV1Count, kV1Models, kV1Start})},
        {"BackupQuotaV3", "v2", CloudBackUp, "/family/rest.php", "deviceId%20in", 0,
         NoRow({kV3Start, kV3List, kV3Models, kV3End}), NoRow({kV3Start, kV3List, kV3Models, kV3End}),
         NoRow({kV3Start, kV3List, kV3Models, kV3End}), NoRow({kV3Start, kV3List, kV3Models, kV3End})},
    };
}

// The sample account with the browser on the old store: bookmarks,
// information flow, a "browser" entry that does not count and one source
// the module does not know, which does.
std::string WriteBrowserV1Fixture(const std::string& folder)
{
    std::ifstream in(CloudEmulator::FixturePath("sample"));
    Json::Value fixture;
    Json::CharReaderBuilder reader;
    std::string errors;
    Json::parseFromStream(reader, in, &fixture, &errors);
    Json::Value& browser = fixture["pim"]["browser"];
    browser["dataVersion"] = "v1.0";
    browser.removeMember("records");
    const std::pair<const char*, int> sources[] = {
        {"bookmark", 300}, {"infoflow", 40}, {"browser", 9}, {"reading", 7}};
    for (const auto& source : sources) {
        Json::Value entry;
        entry["source"] = source.first;
        entry["sumNum"] = source.second;
        browser["statistics"].append(entry);
    }
    fixture["name"] = "browser-v1";
    const std::string path = folder + "/browser-v1.json";
    std::ofstream(path) << fixture.toStyledString();
    return path;
}

class FaultMatrix : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        char pattern[] = "/tmp/space-faults-XXXXXX";
        folder_ = mkdtemp(pattern);
        browserFixture_ = WriteBrowserV1Fixture(folder_);
    }
    static void TearDownTestSuite()
    {
        std::remove(browserFixture_.c_str());
        ::rmdir(folder_.c_str());
    }

    CloudEmulator& Cloud(const std::string& fixture)
    {
        auto& slot = clouds_[fixture];
        if (!slot) {
            CloudEmulator::Options options;
            options.fixture = fixture == "browser-v1" ? browserFixture_ : fixture;
            slot = std::make_unique<CloudEmulator>(options);
        }
        return *slot;
    }

    std::map<std::string, std::unique_ptr<CloudEmulator>> clouds_;
    static std::string folder_;
    static std::string browserFixture_;
};

std::string FaultMatrix::folder_;
std::string FaultMatrix::browserFixture_;

std::shared_ptr<CloudSpaceItem> RunCategory(space_test::WiredViewModel& wired, CloudSpaceType type)
{
    if (type == CloudBackUp) {
        return wired.viewModel.GetBackUpData()->item;
    }
    std::vector<std::shared_ptr<CloudSpaceItem>> items;
    auto item = wired.viewModel.GetItemSpace(type, items);
    EXPECT_EQ(items.size(), item ? 1u : 0u);
    return item;
}

} // namespace

TEST_F(FaultMatrix, EveryRequestOfEveryCategoryMeetsEveryFaultKind)
{
    for (const FaultTarget& target : Targets()) {
        CloudEmulator& cloud = Cloud(target.fixture);
        host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
        for (const std::string kind : kKinds) {
            SCOPED_TRACE(std::string(target.name) + " meets " + kind);
            cloud.ClearFaults();
            Json::Value rule;
            rule["kind"] = kind;
            rule["endpoint"] = target.endpoint;
            if (*target.bodyContains) {
                rule["bodyContains"] = target.bodyContains;
            }
            if (kind == "status") {
                rule["status"] = 500;
            }
            if (target.nth > 1) {
                rule["everyNth"] = target.nth;
            }
            if (target.nth > 0) {
                rule["limit"] = 1;
            }
            cloud.AddFault(rule);

            space_test::WiredViewModel wired;
            Logger::ScopedMemorySink sink;
            const auto item = RunCategory(wired, target.type);

            const Outcome& expected = ExpectedFor(target, kind);
            if (expected.row) {
                ASSERT_NE(item, nullptr);
                EXPECT_EQ(item->type, target.type);
                EXPECT_EQ(item->space, expected.row->space);
                EXPECT_EQ(item->count, expected.row->count);
                EXPECT_EQ(item->recycle, expected.row->recycle);
            } else {
                EXPECT_EQ(item, nullptr);
            }
            Lines lines;
            for (const Logger::Record& record : sink.Records()) {
                if (record.module == 7) {
                    lines.push_back(record.message);
                }
            }
            EXPECT_EQ(lines, expected.lines);

            const Json::Value hits = cloud.Hits()["rules"];
            ASSERT_EQ(hits.size(), 1u);
            EXPECT_EQ(hits[0]["hits"].asInt(), 1) << "the fault must have met exactly one request";
        }
    }
}

// Without faults, the old browser store counts bookmarks, information flow
// and the unknown source, and skips "browser".
TEST_F(FaultMatrix, BrowserOnTheOldStoreCountsEverySourceButBrowser)
{
    CloudEmulator& cloud = Cloud("browser-v1");
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    space_test::WiredViewModel wired;
    const auto item = RunCategory(wired, Browser);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->count, "347");
    EXPECT_EQ(item->bookmarkCount, 300);
    EXPECT_EQ(item->infoflowCount, 40);
    EXPECT_EQ(item->space, 0);
}
