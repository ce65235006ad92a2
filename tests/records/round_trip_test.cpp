// ToJson then FromJson for every record. Each row fills a record, pins the
// exact text it writes (which fixes its Out keys), reads that text into a
// fresh record of the same class and writes it again. For most records the
// second text equals the first; the rows of records whose directions differ
// name what is lost on the way.

#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "record_test_support.h"
#include "request/records/backup_records.h"
#include "request/records/nsp_records.h"
#include "request/records/quota_records.h"

namespace {

struct RoundTripRow
{
    const char* name;
    std::function<std::shared_ptr<SerializableObject>()> filled;
    std::function<std::shared_ptr<SerializableObject>()> fresh;
    std::string written;
    std::int32_t readResult;
    std::string rewritten; // empty: same as `written`
};

template <typename Record>
RoundTripRow Row(const char* name, std::function<void(Record&)> fill, std::string written,
                 std::int32_t readResult = 0, std::string rewritten = "")
{
    return RoundTripRow{
        name,
        [fill] {
            auto record = std::make_shared<Record>();
            fill(*record);
            return std::static_pointer_cast<SerializableObject>(record);
        },
        [] { return std::static_pointer_cast<SerializableObject>(std::make_shared<Record>()); },
        std::move(written),
        readResult,
        std::move(rewritten)};
}

void PrintTo(const RoundTripRow& row, std::ostream* out)
{
    *out << row.name;
}

class RoundTrip : public ::testing::TestWithParam<RoundTripRow>
{
};

TEST_P(RoundTrip, WritesReadsAndWritesAgain)
{
    const RoundTripRow& row = GetParam();
    const auto original = row.filled();
    const std::string text = original->ToJsonString();
    EXPECT_EQ(text, row.written);
    EXPECT_EQ(text.find('\n'), std::string::npos);
    EXPECT_EQ(text.find("  "), std::string::npos);

    const auto reread = row.fresh();
    EXPECT_EQ(reread->FromJson(original->ToJson()), row.readResult);
    EXPECT_EQ(reread->ToJsonString(), row.rewritten.empty() ? row.written : row.rewritten);
}

void FillDevice(BackUpDevice& device, const char* id)
{
    device.deviceId = id;
    device.deviceType = 2;
    device.terminalType = "phone";
    device.aliasName = "alias";
    device.devDisplayName = "shown";
}

const char* kDeviceText = R"({"aliasName":"alias","devDisplayName":"shown","deviceId":"d1","deviceType":2,)"
                          R"("terminalType":"phone"})";

void FillMkFile(MkFile& file)
{
    file.name = "n";
    file.sig = "sig";
    file.size = "10";
    file.url = "u";
    file.ts = "t";
    file.extParams = {{"k", "v"}};
    file.needRun = true;
}

const char* kMkFileText =
    R"({"extParams":{"k":"v"},"name":"n","needRun":true,"size":"10","ts":"t","url":"u"})";

void FillFileInfo(FileInfo& file)
{
    file.hash = "h";
    file.fileName = "f";
    FillMkFile(file.mkFile);
    file.isApkOrIcon = 1;
    file.expand = "x";
}

const std::string kFileInfoText =
    std::string(R"({"expand":"x","fileName":"f","hash":"h","isApkOrIcon":1,"mkFile":)") + kMkFileText + "}";

void FillAppIdInfo(AppIdInfo& app)
{
    app.appId = "a";
    app.status = 1;
    app.size = 5000000000;
    app.createTime = 2;
    app.apkType = 3;
    app.apkPath = "p";
    app.iconPath = "i";
    app.apkUrl = "au";
    app.iconUrl = "iu";
    app.extend = "e";
    app.fileInfos.emplace_back();
    FillFileInfo(app.fileInfos.back());
    app.cursor = 4;
}

const std::string kAppIdInfoText = std::string(R"({"apkPath":"p","apkType":3,"apkUrl":"au","appId":"a",)") +
                                   R"("createTime":2,"cursor":4,"extend":"e","fileInfos":[)" + kFileInfoText +
                                   R"(],"iconPath":"i","iconUrl":"iu","size":5000000000,"status":1})";

void FillBackupRecord(BackupRecord& backup)
{
    FillDevice(backup.device, "d1");
    backup.status = 1;
    backup.type = 2;
    backup.size = 7000000000;
    backup.backupId = "b";
    backup.backupDeviceId = "bd";
    backup.startTime = 3;
    backup.endTime = 4;
    backup.extend = "e";
    backup.appIdInfos.emplace_back();
    FillAppIdInfo(backup.appIdInfos.back());
}

const std::string kBackupRecordText =
    std::string(R"({"appIdInfos":[)") + kAppIdInfoText +
    R"(],"backupDeviceId":"bd","backupId":"b","device":)" + kDeviceText +
    R"(,"endTime":4,"extend":"e","size":7000000000,"startTime":3,"status":1,)"
    R"("type":2})";

void FillQuotaDetail(QuotaDetail& detail)
{
    detail.statistics = "s";
    detail.serviceType = 10880002;
    detail.recordsQuotadSpace = 1;
    detail.assetsQuotadSpace = 6000000000;
    detail.appId = "app";
    detail.collection = "photo";
    detail.trashed = true;
    detail.parentId = "p";
}

const char* kQuotaDetailText =
    R"({"appId":"app","assetsQuotadSpace":6000000000,"collection":"photo",)"
    R"("parentId":"p","recordsQuotadSpace":1,"serviceType":10880002,"statistics":"s",)"
    R"("trashed":true})";

void FillQuotaDetailBk(QuotaDetailBk& detail)
{
    detail.serviceType = 2000;
    detail.snapShotType = 1;
    detail.collection = "private";
    detail.statisticsType = 2;
    detail.deviceId = "d";
    detail.recordsCount = 3;
    detail.recordsQuotadSpace = 4;
    detail.assetsQuotadSpace = 5;
    detail.statistics = "s";
    detail.trashed = "false";
    detail.kind = "k";
}

const char* kQuotaDetailBkText = R"({"assetsQuotadSpace":5,"collection":"private","deviceId":"d","kind":"k",)"
                                 R"("recordsCount":3,"recordsQuotadSpace":4,"serviceType":2000,)"
                                 R"("snapShotType":1,"statistics":"s","statisticsType":2,"trashed":"false"})";

void FillFolderOrFile(FolderOrFilesInfo& info, const char* name)
{
    info.accessTime = "1";
    info.createTime = "2";
    info.modifyTime = "3";
    info.name = name;
    info.type = "file";
    info.size = "4";
    info.sslUrl = "https://s";
}

const char* kFolderOrFileText = R"({"accessTime":"1","createTime":"2","modifyTime":"3","name":"f",)"
                                R"("size":"4","sslUrl":"https://s","type":"file"})";

void FillError(NspErrorInfo& error)
{
    error.errCode = 31000;
    error.errMsg = "m";
    error.name = "/x";
}

const char* kErrorText = R"({"errCode":31000,"errMsg":"m","name":"/x"})";

void FillFields(FieldsInfo& info)
{
    info.name = "/Photo";
    info.type = "folder";
    info.space = "100";
    info.size = "90";
    info.fileCount = 3;
}

const char* kFieldsText = R"({"fileCount":3,"name":"/Photo","size":"90","space":"100","type":"folder"})";

std::vector<RoundTripRow> QuotaRows()
{
    return {
        Row<QuotaDetail>("QuotaDetail", FillQuotaDetail, kQuotaDetailText),
        Row<GetQuotaUsedInfoResponse>(
            "GetQuotaUsedInfoResponse",
            [](GetQuotaUsedInfoResponse& r) {
                r.retCode = 0;
                r.used = 8000000000;
                r.quotaDetails.emplace_back();
                FillQuotaDetail(r.quotaDetails.back());
            },
            std::string(R"({"quotaDetails":[)") + kQuotaDetailText + R"(],"retCode":0,"used":8000000000})"),
        Row<QuotaDetailBk>("QuotaDetailBk", FillQuotaDetailBk, kQuotaDetailBkText),
        Row<GetQuotaUsedInfoResponseBk>(
            "GetQuotaUsedInfoResponseBk",
            [](GetQuotaUsedInfoResponseBk& r) {
                r.retCode = 1;
                r.used = 2;
                r.quotaDetails.emplace_back();
                FillQuotaDetailBk(r.quotaDetails.back());
            },
            std::string(R"({"quotaDetails":[)") + kQuotaDetailBkText + R"(],"retCode":1,"used":2})"),
        Row<GetSpaceFromUrl>(
            "GetSpaceFromUrl",
            [](GetSpaceFromUrl& r) {
                r.retCode = 0;
                r.used = 9000000000;
            },
            R"({"retCode":0,"used":9000000000})"),
        Row<DataObject>(
            "DataObject",
            [](DataObject& r) {
                r.source = "wlan";
                r.sumNum = 12;
            },
            R"({"source":"wlan","sumNum":12})"),
        // The code goes out as "code" and comes back from "errorNo": lost.
        Row<ResultObject>(
            "ResultObjectLosesItsCode",
            [](ResultObject& r) {
                r.code = 5;
                r.info = "i";
            },
            R"({"code":5,"info":"i"})", 0, R"({"code":0,"info":"i"})"),
        Row<StatisticResponse>(
            "StatisticResponseLosesTheResultCode",
            [](StatisticResponse& r) {
                r.result = std::make_shared<ResultObject>();
                r.result->code = 3;
                r.result->info = "ok";
                r.data = std::make_shared<std::vector<DataObject>>(1);
                r.data->front().source = "cal";
                r.data->front().sumNum = 2;
            },
            R"({"data":[{"source":"cal","sumNum":2}],"result":{"code":3,"info":"ok"}})", 0,
            R"({"data":[{"source":"cal","sumNum":2}],"result":{"code":0,"info":"ok"}})"),
        Row<BaseRsp>(
            "BaseRsp",
            [](BaseRsp& r) {
                r.result = -3;
                r.info = "denied";
            },
            R"({"info":"denied","result":-3})"),
        Row<BaseResult>(
            "BaseResult",
            [](BaseResult& r) {
                r.errorNo = 401;
                r.scenarioId = "sc";
            },
            R"({"errorNo":401,"scenarioId":"sc"})"),
        // "status" is not written, so it is lost and its check fails.
        Row<AboutResponse>(
            "AboutResponseLosesItsStatus",
            [](AboutResponse& r) {
                r.category = "c";
                r.dataVersion = "v2.0";
                r.domain = "d";
                r.maxBatchNumber = 100;
                r.maxFileUploadSize = "5368709120";
                r.maxThumbnailSize = 1048576;
                r.serverTime = 1700000000000;
                r.status = {{"v2cut", "0\n"}};
            },
            R"({"category":"c","dataVersion":"v2.0","domain":"d","maxBatchNumber":100,)"
            R"("maxFileUploadSize":"5368709120","maxThumbnailSize":1048576,"serverTime":1700000000000})",
            -1),
        // v2cut goes out at the top level and is read from "status": lost;
        // kinds are never written.
        Row<GetPimDataVersionResponse>(
            "GetPimDataVersionResponseLosesV2cut",
            [](GetPimDataVersionResponse& r) {
                r.kinds = {"contact"};
                r.maxBatchNumber = 50;
                r.v2cut = 1;
                r.dataVersion = "v2.0";
            },
            R"({"dataVersion":"v2.0","maxBatchNumber":50,"v2cut":1})", -1,
            R"({"dataVersion":"v2.0","maxBatchNumber":50,"v2cut":0})"),
    };
}

std::vector<RoundTripRow> BackupRows()
{
    return {
        Row<BackUpDevice>(
            "BackUpDevice", [](BackUpDevice& r) { FillDevice(r, "d1"); }, kDeviceText),
        // "sig" is read and never written back: not visible in either text,
        // and the check of "sig" fails on the way back.
        Row<MkFile>("MkFileLosesSig", FillMkFile, kMkFileText, -1),
        Row<FileInfo>("FileInfo", FillFileInfo, kFileInfoText),
        Row<AppIdInfo>("AppIdInfo", FillAppIdInfo, kAppIdInfoText),
        Row<BackupRecord>("BackupRecord", FillBackupRecord, kBackupRecordText),
        // cmd goes out as "cmd" and is read from "appId": lost.
        Row<QueryAllDevicesBackupRecordReqRequest>(
            "QueryAllDevicesBackupRecordReqRequestLosesCmd",
            [](QueryAllDevicesBackupRecordReqRequest& r) {
                r.cmd = 36;
                r.info = "QueryAllDevicesBackupRecordReq";
                r.version = "V3";
            },
            R"({"cmd":36,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})", 0,
            R"({"cmd":0,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})"),
        Row<QueryAllBackUpResponse>(
            "QueryAllBackUpResponse",
            [](QueryAllBackUpResponse& r) {
                r.result = 0;
                r.info = "ok";
                r.backupRecords.emplace_back();
                FillBackupRecord(r.backupRecords.back());
            },
            std::string(R"({"backupRecords":[)") + kBackupRecordText + R"(],"info":"ok","result":0})"),
        Row<BackUpDeleteRequest>(
            "BackUpDeleteRequest",
            [](BackUpDeleteRequest& r) {
                r.cmd = 27;
                r.info = "DeleteDeviceBackupRecordReq";
                r.deviceId = "d1";
                r.deviceType = 2;
            },
            R"({"cmd":27,"deviceId":"d1","deviceType":2,"info":"DeleteDeviceBackupRecordReq"})"),
        Row<DeleteSmsAndCallLogRequest>(
            "DeleteSmsAndCallLogRequest",
            [](DeleteSmsAndCallLogRequest& r) {
                r.cmd = 41;
                r.info = "del";
                r.devId = "d1";
                r.deviceType = 2;
                r.typeList = {"sms", "mms"};
            },
            R"({"cmd":41,"devId":"d1","deviceType":2,"info":"del","typeList":["sms","mms"]})"),
        Row<QueryBackUpSmsAndCallLogRequest>(
            "QueryBackUpSmsAndCallLogRequest",
            [](QueryBackUpSmsAndCallLogRequest& r) {
                r.cmd = 40;
                r.info = "count";
                r.type = "sms";
                r.deviceList.emplace_back();
                FillDevice(r.deviceList.back(), "d1");
            },
            std::string(R"({"cmd":40,"deviceList":[)") + kDeviceText + R"(],"info":"count","type":"sms"})"),
        Row<BackUpSmsAndCallLogRecord>(
            "BackUpSmsAndCallLogRecord",
            [](BackUpSmsAndCallLogRecord& r) {
                FillDevice(r.device, "d1");
                r.count = 15;
            },
            std::string(R"({"count":15,"device":)") + kDeviceText + "}"),
        Row<QueryBackUpSmsAndCallLogResponse>(
            "QueryBackUpSmsAndCallLogResponse",
            [](QueryBackUpSmsAndCallLogResponse& r) {
                r.result = 0;
                r.info = "ok";
                r.countRet.emplace_back();
                FillDevice(r.countRet.back().device, "d1");
                r.countRet.back().count = 15;
                r.deviceList.emplace_back();
                FillDevice(r.deviceList.back(), "d1");
            },
            std::string(R"({"countRet":[{"count":15,"device":)") + kDeviceText + R"(}],"deviceList":[)" +
                kDeviceText + R"(],"info":"ok","result":0})"),
    };
}

std::vector<RoundTripRow> NspRows()
{
    return {
        Row<NspFiles>(
            "NspFiles",
            [](NspFiles& r) {
                r = NspFiles("tok", {"/a"}, "c");
                r.nsp_svc = NspFiles::kServiceName;
            },
            R"({"_cursor":"c","access_token":"tok","nsp_svc":"nsp.vfs.queryFile","paths":"[\"/a\"]"})"),
        Row<NspFolders>(
            "NspFolders",
            [](NspFolders& r) {
                r = NspFolders("tok", {"/a", "/b"}, "");
                r.nsp_svc = NspFolders::kServiceName;
            },
            R"({"_cursor":"","access_token":"tok","nsp_svc":"nsp.vfs.queryFolder",)"
            R"("paths":"[\"/a\",\"/b\"]"})"),
        Row<NspDelFiles>(
            "NspDelFiles",
            [](NspDelFiles& r) {
                r = NspDelFiles("tok", {"/a"});
                r.nsp_svc = NspDelFiles::kServiceName;
                r.reserve = true;
            },
            R"({"access_token":"tok","files":"[\"/a\"]","nsp_svc":"nsp.vfs.rmfile","reserve":true})"),
        // "fields" and "files" come back as the styled text of the strings
        // that were written: quoted, escaped and with a newline.
        Row<NspGetAttr>(
            "NspGetAttrRestylesItsLists",
            [](NspGetAttr& r) {
                r = NspGetAttr("tok", {"/a"}, {"size"});
                r.nsp_svc = NspGetAttr::kServiceName;
            },
            R"({"access_token":"tok","fields":"[\"size\"]","files":"[\"/a\"]","nsp_svc":"nsp.vfs.getattr"})",
            0,
            R"({"access_token":"tok","fields":"\"[\\\"size\\\"]\"\n","files":"\"[\\\"/a\\\"]\"\n",)"
            R"("nsp_svc":"nsp.vfs.getattr"})"),
        Row<FolderOrFilesInfo>(
            "FolderOrFilesInfo", [](FolderOrFilesInfo& r) { FillFolderOrFile(r, "f"); }, kFolderOrFileText),
        Row<FieldsInfo>("FieldsInfo", FillFields, kFieldsText),
        Row<NspErrorInfo>("NspErrorInfo", FillError, kErrorText),
        Row<NSPResponse>(
            "NSPResponse",
            [](NSPResponse& r) {
                r.successList.emplace_back();
                FillFolderOrFile(r.successList.back(), "f");
                r.failList.emplace_back();
                FillError(r.failList.back());
            },
            std::string(R"({"failList":[)") + kErrorText + R"(],"successList":[)" + kFolderOrFileText + "]}"),
        Row<NSPFilesResponse>(
            "NSPFilesResponse",
            [](NSPFilesResponse& r) {
                r.cursor = "next";
                r.fileList = std::make_shared<std::vector<std::shared_ptr<FolderOrFilesInfo>>>();
                r.fileList->push_back(std::make_shared<FolderOrFilesInfo>());
                FillFolderOrFile(*r.fileList->back(), "f");
                r.failList = std::make_shared<std::vector<std::shared_ptr<NspErrorInfo>>>();
                r.failList->push_back(std::make_shared<NspErrorInfo>());
                FillError(*r.failList->back());
            },
            std::string(R"({"cursor":"next","failList":[)") + kErrorText + R"(],"fileList":[)" +
                kFolderOrFileText + "]}"),
        Row<NSPFoldersResponse>(
            "NSPFoldersResponse",
            [](NSPFoldersResponse& r) {
                r.successList = std::make_shared<std::vector<std::shared_ptr<FieldsInfo>>>();
                r.successList->push_back(std::make_shared<FieldsInfo>());
                FillFields(*r.successList->back());
                r.failList = std::make_shared<std::vector<std::shared_ptr<NspErrorInfo>>>();
            },
            std::string(R"({"failList":[],"successList":[)") + kFieldsText + "]}"),
        // Every field survives, but the check of "clientIp" always fails.
        Row<UpLoadFiles>(
            "UpLoadFiles",
            [](UpLoadFiles& r) {
                r.cmd = UpLoadFiles::kCommand;
                r.host = "upload.example";
                r.mapUrlHeaders = {{"Content-Type", "image/jpeg"}};
                r.mapUrlParams = {{"uploadId", "u1"}};
                r.method = "PUT";
                r.objectId = "o";
            },
            R"({"cmd":"bapi.cloudphoto.getUploadUrl","host":"upload.example",)"
            R"("mapUrlHeaders":{"Content-Type":"image/jpeg"},"mapUrlParams":{"uploadId":"u1"},)"
            R"("method":"PUT","objectId":"o"})",
            -1),
        Row<QueryAlbumInfo>(
            "QueryAlbumInfo",
            [](QueryAlbumInfo& r) {
                r.cmd = QueryAlbumInfo::kCommand;
                r.albumType = {"0"};
                r.albumId = "al";
                r.maxNum = 100;
                r.cursor = "c";
            },
            R"({"albumId":"al","albumType":["0"],"cmd":"cloudphoto.album.query","cursor":"c",)"
            R"("maxNum":100})"),
    };
}

std::string RowName(const ::testing::TestParamInfo<RoundTripRow>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(QuotaRecords, RoundTrip, ::testing::ValuesIn(QuotaRows()), RowName);
INSTANTIATE_TEST_SUITE_P(BackupRecords, RoundTrip, ::testing::ValuesIn(BackupRows()), RowName);
INSTANTIATE_TEST_SUITE_P(NspRecords, RoundTrip, ::testing::ValuesIn(NspRows()), RowName);

TEST(RoundTripOfMkFile, SigIsEmptyAfterTheWayBack)
{
    MkFile original;
    FillMkFile(original);
    MkFile reread;
    reread.FromJson(original.ToJson());
    EXPECT_EQ(reread.sig, "");
    EXPECT_EQ(reread.extParams, original.extParams);
    EXPECT_EQ(reread.needRun, original.needRun);
}

TEST(RoundTripOfAboutResponse, StatusIsEmptyAfterTheWayBack)
{
    AboutResponse original;
    original.status = {{"v2cut", "0\n"}};
    AboutResponse reread;
    reread.FromJson(original.ToJson());
    EXPECT_TRUE(reread.status.empty());
}

TEST(RoundTripOfGetPimDataVersionResponse, KindsAreEmptyAfterTheWayBack)
{
    GetPimDataVersionResponse original;
    original.kinds = {"contact", "note"};
    GetPimDataVersionResponse reread;
    reread.FromJson(original.ToJson());
    EXPECT_TRUE(reread.kinds.empty());
}

} // namespace
