#include <map>
#include <string>

#include <gtest/gtest.h>

#include "record_test_support.h"
#include "request/records/quota_records.h"

TEST(GetQuotaUsedInfoResponse, AbsentQuotaDetailsGivesEmptyListAndMinusOne)
{
    GetQuotaUsedInfoResponse record;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"retCode":0,"used":123456789012})")), -1);
    EXPECT_TRUE(record.quotaDetails.empty());
    EXPECT_EQ(record.retCode, 0);
    EXPECT_EQ(record.used, 123456789012LL);
}

TEST(GetQuotaUsedInfoResponse, ReadsEveryRowInOrder)
{
    const auto record = ReadReply<GetQuotaUsedInfoResponse>(
        R"({"retCode":0,"used":30,"quotaDetails":[)"
        R"({"statistics":"s","serviceType":10880002,"recordsQuotadSpace":10,"assetsQuotadSpace":20,)"
        R"("appId":"app","collection":"photo","trashed":true,"parentId":"root"},{"collection":"drive"}]})");
    EXPECT_EQ(record->used, 30);
    ASSERT_EQ(record->quotaDetails.size(), 2u);
    const QuotaDetail& first = record->quotaDetails[0];
    EXPECT_EQ(first.statistics, "s");
    EXPECT_EQ(first.serviceType, 10880002);
    EXPECT_EQ(first.recordsQuotadSpace, 10);
    EXPECT_EQ(first.assetsQuotadSpace, 20);
    EXPECT_EQ(first.appId, "app");
    EXPECT_EQ(first.collection, "photo");
    EXPECT_TRUE(first.trashed);
    EXPECT_EQ(first.parentId, "root");
    EXPECT_EQ(record->quotaDetails[1].collection, "drive");
    EXPECT_FALSE(record->quotaDetails[1].trashed);
}

TEST(QuotaDetailBk, ChecksOnlyItsSixKeys)
{
    QuotaDetailBk record;
    const char* checkedOnly =
        R"({"statistics":"s","serviceType":1,"recordsQuotadSpace":2,"assetsQuotadSpace":3,)"
        R"("deviceId":"d","collection":"c"})";
    EXPECT_EQ(record.FromJson(JsonOf(checkedOnly)), 0);
    EXPECT_EQ(record.FromJson(JsonOf(R"({"statistics":"s","serviceType":1,"recordsQuotadSpace":2,)"
                                     R"("assetsQuotadSpace":3,"deviceId":"d"})")),
              -1);
}

TEST(QuotaDetailBk, ReadsTrashedAsTextAndTheOtherCounts)
{
    const auto record = ReadReply<QuotaDetailBk>(
        R"({"serviceType":2000,"snapShotType":1,"collection":"private","statisticsType":3,"deviceId":"dev",)"
        R"("recordsCount":9,"recordsQuotadSpace":10,"assetsQuotadSpace":11,"statistics":"st","trashed":"no",)"
        R"("kind":"sms"})");
    EXPECT_EQ(record->serviceType, 2000);
    EXPECT_EQ(record->snapShotType, 1);
    EXPECT_EQ(record->collection, "private");
    EXPECT_EQ(record->statisticsType, 3);
    EXPECT_EQ(record->deviceId, "dev");
    EXPECT_EQ(record->recordsCount, 9);
    EXPECT_EQ(record->recordsQuotadSpace, 10);
    EXPECT_EQ(record->assetsQuotadSpace, 11);
    EXPECT_EQ(record->statistics, "st");
    EXPECT_EQ(record->trashed, "no");
    EXPECT_EQ(record->kind, "sms");
}

TEST(StatisticResponse, EmptyObjectLeavesBothPointersNull)
{
    StatisticResponse record;
    EXPECT_EQ(record.FromJson(JsonOf("{}")), 0);
    EXPECT_EQ(record.result, nullptr);
    EXPECT_EQ(record.data, nullptr);
}

TEST(StatisticResponse, ResultWithCodeAndNoInfoIsReadAndItsMinusOneIgnored)
{
    ResultObject alone;
    EXPECT_EQ(alone.FromJson(JsonOf(R"({"code":1})")), -1);

    StatisticResponse record;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"result":{"code":1}})")), 0);
    ASSERT_NE(record.result, nullptr);
    EXPECT_EQ(record.result->code, 0);
    EXPECT_EQ(record.result->info, "");
    EXPECT_EQ(record.data, nullptr);
}

TEST(StatisticResponse, ReadsTheCountsOfData)
{
    const auto record = ReadReply<StatisticResponse>(
        R"({"result":{"errorNo":0,"info":"ok"},"data":[{"source":"wlan","sumNum":12},{"source":"cal","sumNum":3}]})");
    ASSERT_NE(record->result, nullptr);
    EXPECT_EQ(record->result->info, "ok");
    ASSERT_NE(record->data, nullptr);
    ASSERT_EQ(record->data->size(), 2u);
    EXPECT_EQ((*record->data)[0].source, "wlan");
    EXPECT_EQ((*record->data)[0].sumNum, 12);
    EXPECT_EQ((*record->data)[1].sumNum, 3);
}

TEST(StatisticResponse, WritesNullForAbsentParts)
{
    StatisticResponse record;
    EXPECT_EQ(record.ToJsonString(), R"({"data":null,"result":null})");
}

TEST(ResultObject, CodeKeyIsCheckedButNeverRead)
{
    ResultObject record;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"code":1,"info":"x"})")), 0);
    EXPECT_EQ(record.code, 0);
    EXPECT_EQ(record.info, "x");
}

TEST(ResultObject, ErrorNoIsReadButFailsTheCheck)
{
    ResultObject record;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"errorNo":1,"info":"x"})")), -1);
    EXPECT_EQ(record.code, 1);
}

TEST(ResultObject, WritesTheCodeUnderCode)
{
    ResultObject record;
    record.code = 5;
    record.info = "i";
    EXPECT_EQ(record.ToJsonString(), R"({"code":5,"info":"i"})");
}

TEST(BaseResult, ReadsErrorNoAndScenarioId)
{
    BaseResult record;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"errorNo":401,"scenarioId":"sc"})")), 0);
    EXPECT_EQ(record.errorNo, 401);
    EXPECT_EQ(record.scenarioId, "sc");
}

TEST(GetPimDataVersionResponse, StatusAsStringStopsAfterMaxBatchNumber)
{
    const auto record = ReadReply<GetPimDataVersionResponse>(
        R"({"maxBatchNumber":100,"status":"v2cut","kinds":["contact"],"dataVersion":"v2.0"})");
    EXPECT_EQ(record->maxBatchNumber, 100);
    EXPECT_EQ(record->v2cut, 0);
    EXPECT_TRUE(record->kinds.empty());
    EXPECT_EQ(record->dataVersion, "");
}

TEST(GetPimDataVersionResponse, ReadsV2cutFromInsideStatus)
{
    GetPimDataVersionResponse record;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"maxBatchNumber":50,"status":{"v2cut":1},"kinds":["note","todo"],)"
                                     R"("dataVersion":"v1.0","v2cut":9})")),
              0);
    EXPECT_EQ(record.maxBatchNumber, 50);
    EXPECT_EQ(record.v2cut, 1);
    EXPECT_EQ(record.kinds, (std::vector<std::string>{"note", "todo"}));
    EXPECT_EQ(record.dataVersion, "v1.0");
}

TEST(GetPimDataVersionResponse, AbsentStatusGivesZeroV2cutAndMinusOne)
{
    GetPimDataVersionResponse record;
    record.v2cut = 4;
    EXPECT_EQ(record.FromJson(JsonOf(R"({"dataVersion":"v2.0"})")), -1);
    EXPECT_EQ(record.v2cut, 0);
    EXPECT_EQ(record.dataVersion, "v2.0");
}

TEST(GetPimDataVersionResponse, WritesV2cutAtTopLevelAndNoKinds)
{
    GetPimDataVersionResponse record;
    record.kinds = {"contact"};
    record.maxBatchNumber = 7;
    record.v2cut = 1;
    record.dataVersion = "v2.0";
    EXPECT_EQ(record.ToJsonString(), R"({"dataVersion":"v2.0","maxBatchNumber":7,"v2cut":1})");
}

TEST(AboutResponse, ToJsonHasNoStatusEvenWhenTheMapIsFull)
{
    AboutResponse record;
    record.dataVersion = "v2.0";
    record.status = {{"v2cut", "0\n"}, {"state", "\"on\"\n"}};
    const Json::Value value = record.ToJson();
    EXPECT_FALSE(value.isMember("status"));
    EXPECT_EQ(record.ToJsonString().find("status"), std::string::npos);
}

TEST(AboutResponse, StatusHoldsTheStyledTextOfEachMember)
{
    const auto record = ReadReply<AboutResponse>(
        R"({"category":"c","dataVersion":"v2.0","domain":"d","maxBatchNumber":100,"maxFileUploadSize":"5368709120",)"
        R"("maxThumbnailSize":1048576,"serverTime":1700000000000,"status":{"v2cut":0,"state":"on"}})");
    EXPECT_EQ(record->category, "c");
    EXPECT_EQ(record->dataVersion, "v2.0");
    EXPECT_EQ(record->domain, "d");
    EXPECT_EQ(record->maxBatchNumber, 100);
    EXPECT_EQ(record->maxFileUploadSize, "5368709120");
    EXPECT_EQ(record->maxThumbnailSize, 1048576);
    EXPECT_EQ(record->serverTime, 1700000000000LL);
    const std::map<std::string, std::string> expected{{"state", "\"on\"\n"}, {"v2cut", "0\n"}};
    EXPECT_EQ(record->status, expected);
}

TEST(AboutResponse, NumericUploadSizeArrivesAsItsText)
{
    const auto record = ReadReply<AboutResponse>(R"({"maxFileUploadSize":5368709120})");
    EXPECT_EQ(record->maxFileUploadSize, "5368709120");
}
