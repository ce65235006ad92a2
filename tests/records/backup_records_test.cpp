#include <map>
#include <string>

#include <gtest/gtest.h>

#include "record_test_support.h"
#include "request/records/backup_records.h"

namespace {

// A backup record with every checked key present, so that one key at a time
// can be taken out.
Json::Value CompleteBackupRecord()
{
    return JsonOf(R"({"device":{"deviceId":"d"},"status":1,"type":2,"size":3,"backupId":"b",)"
                  R"("backupDeviceId":"bd","startTime":4,"endTime":5,"extend":"e","appIdInfos":[]})");
}

} // namespace

TEST(BackupRecord, WithoutBackupDeviceIdStillReturnsZero)
{
    Json::Value reply = CompleteBackupRecord();
    reply.removeMember("backupDeviceId");
    BackupRecord record;
    EXPECT_EQ(record.FromJson(reply), 0);
    EXPECT_EQ(record.backupDeviceId, "");
}

TEST(BackupRecord, WithoutExtendReturnsMinusOne)
{
    Json::Value reply = CompleteBackupRecord();
    reply.removeMember("extend");
    BackupRecord record;
    EXPECT_EQ(record.FromJson(reply), -1);
    EXPECT_EQ(record.backupId, "b");
}

TEST(BackupRecord, WithoutDeviceHasAnAllDefaultDevice)
{
    const auto fresh = ReadReply<BackupRecord>(R"({"status":1,"backupId":"b"})");
    EXPECT_EQ(fresh->device.deviceId, "");
    EXPECT_EQ(fresh->device.deviceType, 0);
    EXPECT_EQ(fresh->device.terminalType, "");
    EXPECT_EQ(fresh->device.aliasName, "");
    EXPECT_EQ(fresh->device.devDisplayName, "");
    EXPECT_EQ(fresh->backupId, "b");

    BackupRecord reused;
    reused.device.deviceId = "earlier";
    reused.device.deviceType = 9;
    ReadRecord(reused, R"({"status":1})");
    EXPECT_EQ(reused.device.deviceId, "");
    EXPECT_EQ(reused.device.deviceType, 0);
}

TEST(BackupRecord, ReadsNestedApplicationsAndFiles)
{
    const auto record = ReadReply<QueryAllBackUpResponse>(
        R"({"result":0,"info":"ok","backupRecords":[{"device":{"deviceId":"dev","deviceType":1,)"
        R"("terminalType":"phone","aliasName":"Mine","devDisplayName":"Phone 8"},"status":3,"type":1,)"
        R"("size":7340032000,"backupId":"bk1","backupDeviceId":"bd1","startTime":1,"endTime":2,"extend":"{}",)"
        R"("appIdInfos":[{"appId":"sms","status":0,"size":99,"createTime":5,"apkType":2,"apkPath":"/a",)"
        R"("iconPath":"/i","apkUrl":"u","iconUrl":"iu","extend":"x","cursor":4,"fileInfos":[{"hash":"h",)"
        R"("fileName":"f.db","isApkOrIcon":1,"expand":"ex","mkFile":{"name":"n","sig":"s","size":"10",)"
        R"("url":"http://u","ts":"t","needRun":true,"extParams":{"k":1,"l":["a","b"],"skip":false}}}]}]}]})");
    EXPECT_EQ(record->result, 0);
    EXPECT_EQ(record->info, "ok");
    ASSERT_EQ(record->backupRecords.size(), 1u);
    const BackupRecord& backup = record->backupRecords[0];
    EXPECT_EQ(backup.device.deviceId, "dev");
    EXPECT_EQ(backup.device.deviceType, 1);
    EXPECT_EQ(backup.device.terminalType, "phone");
    EXPECT_EQ(backup.device.aliasName, "Mine");
    EXPECT_EQ(backup.device.devDisplayName, "Phone 8");
    EXPECT_EQ(backup.status, 3);
    EXPECT_EQ(backup.type, 1);
    EXPECT_EQ(backup.size, 7340032000LL);
    EXPECT_EQ(backup.backupId, "bk1");
    EXPECT_EQ(backup.backupDeviceId, "bd1");
    EXPECT_EQ(backup.startTime, 1);
    EXPECT_EQ(backup.endTime, 2);
    EXPECT_EQ(backup.extend, "{}");
    ASSERT_EQ(backup.appIdInfos.size(), 1u);
    const AppIdInfo& app = backup.appIdInfos[0];
    EXPECT_EQ(app.appId, "sms");
    EXPECT_EQ(app.size, 99);
    EXPECT_EQ(app.createTime, 5);
    EXPECT_EQ(app.apkType, 2);
    EXPECT_EQ(app.apkPath, "/a");
    EXPECT_EQ(app.iconPath, "/i");
    EXPECT_EQ(app.apkUrl, "u");
    EXPECT_EQ(app.iconUrl, "iu");
    EXPECT_EQ(app.extend, "x");
    EXPECT_EQ(app.cursor, 4);
    ASSERT_EQ(app.fileInfos.size(), 1u);
    const FileInfo& file = app.fileInfos[0];
    EXPECT_EQ(file.hash, "h");
    EXPECT_EQ(file.fileName, "f.db");
    EXPECT_EQ(file.isApkOrIcon, 1);
    EXPECT_EQ(file.expand, "ex");
    EXPECT_EQ(file.mkFile.name, "n");
    EXPECT_EQ(file.mkFile.sig, "s");
    EXPECT_EQ(file.mkFile.size, "10");
    EXPECT_EQ(file.mkFile.url, "http://u");
    EXPECT_EQ(file.mkFile.ts, "t");
    EXPECT_TRUE(file.mkFile.needRun);
    const std::map<std::string, std::string> params{{"k", "1"}, {"l", "a,b"}};
    EXPECT_EQ(file.mkFile.extParams, params);
}

TEST(QueryBackUpSmsAndCallLogRequest, NoDevicesWritesAnEmptyDeviceListArray)
{
    QueryBackUpSmsAndCallLogRequest request;
    request.cmd = 40;
    request.info = "QueryCount";
    request.type = "sms";
    EXPECT_EQ(request.ToJsonString(), R"({"cmd":40,"deviceList":[],"info":"QueryCount","type":"sms"})");
}

TEST(DeleteSmsAndCallLogRequest, EmptyTypeListIsWrittenAsAnEmptyArray)
{
    DeleteSmsAndCallLogRequest request;
    request.cmd = 41;
    request.info = "Delete";
    request.devId = "d1";
    request.deviceType = 2;
    EXPECT_EQ(request.ToJsonString(),
              R"({"cmd":41,"devId":"d1","deviceType":2,"info":"Delete","typeList":[]})");
}

TEST(DeleteSmsAndCallLogRequest, UsesDevIdNotDeviceId)
{
    const auto request = ReadReply<DeleteSmsAndCallLogRequest>(
        R"({"cmd":1,"info":"i","deviceId":"wrong","devId":"right","deviceType":2,"typeList":["sms","mms"]})");
    EXPECT_EQ(request->devId, "right");
    EXPECT_EQ(request->typeList, (std::vector<std::string>{"sms", "mms"}));
}

TEST(MkFile, ReadAndWrittenBackHasLostSig)
{
    MkFile file;
    ASSERT_EQ(file.FromJson(JsonOf(R"({"name":"n","sig":"signature","size":"1","url":"u","ts":"t",)"
                                   R"("extParams":{},"needRun":false})")),
              0);
    EXPECT_EQ(file.sig, "signature");
    const Json::Value written = file.ToJson();
    EXPECT_FALSE(written.isMember("sig"));
    MkFile reread;
    EXPECT_EQ(reread.FromJson(written), -1);
    EXPECT_EQ(reread.sig, "");
    EXPECT_EQ(reread.name, "n");
}

TEST(MkFile, ExtParamsAreClearedBeforeReading)
{
    MkFile file;
    file.extParams = {{"stale", "1"}};
    file.FromJson(JsonOf(R"({"extParams":{"fresh":2.5}})"));
    const std::map<std::string, std::string> expected{{"fresh", "2.500000"}};
    EXPECT_EQ(file.extParams, expected);
}

TEST(MkFile, WritesExtParamsAsAnObjectOfStrings)
{
    MkFile file;
    file.name = "n";
    file.extParams = {{"b", "2"}, {"a", "x,y"}};
    EXPECT_EQ(file.ToJsonString(),
              R"({"extParams":{"a":"x,y","b":"2"},"name":"n","needRun":false,"size":"","ts":"","url":""})");
}

TEST(QueryAllDevicesBackupRecordReqRequest, ReadsAppIdIntoCmd)
{
    QueryAllDevicesBackupRecordReqRequest request;
    EXPECT_EQ(request.FromJson(JsonOf(R"({"cmd":36,"appId":12,"info":"i","version":"V3"})")), 0);
    EXPECT_EQ(request.cmd, 12);
    EXPECT_EQ(request.FromJson(JsonOf(R"({"appId":12,"info":"i"})")), -1);
}

TEST(QueryAllDevicesBackupRecordReqRequest, WritesTheBodyOfTheListQuery)
{
    QueryAllDevicesBackupRecordReqRequest request;
    request.cmd = 36;
    request.info = "QueryAllDevicesBackupRecordReq";
    request.version = "V3";
    EXPECT_EQ(request.ToJsonString(), R"({"cmd":36,"info":"QueryAllDevicesBackupRecordReq","version":"V3"})");
}

TEST(QueryBackUpSmsAndCallLogResponse, ReadsCountsAndDevices)
{
    const auto reply = ReadReply<QueryBackUpSmsAndCallLogResponse>(
        R"({"result":0,"info":"ok","countRet":[{"device":{"deviceId":"d1"},"count":15},)"
        R"({"device":{"deviceId":"d2"},"count":0}],"deviceList":[{"deviceId":"d1"},{"deviceId":"d2"}]})");
    ASSERT_EQ(reply->countRet.size(), 2u);
    EXPECT_EQ(reply->countRet[0].device.deviceId, "d1");
    EXPECT_EQ(reply->countRet[0].count, 15);
    EXPECT_EQ(reply->countRet[1].device.deviceId, "d2");
    ASSERT_EQ(reply->deviceList.size(), 2u);
    EXPECT_EQ(reply->deviceList[1].deviceId, "d2");
}
