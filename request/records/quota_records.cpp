#include "request/records/quota_records.h"

#include "request/records/record_fields.h"

using record_fields::AppendRecords;
using record_fields::AppendStrings;
using record_fields::JsonFields;
using record_fields::ReadBool;
using record_fields::RecordArray;

std::int32_t QuotaDetail::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    statistics = in["statistics"].asString();
    serviceType = in["serviceType"].asInt64();
    recordsQuotadSpace = in["recordsQuotadSpace"].asInt64();
    assetsQuotadSpace = in["assetsQuotadSpace"].asInt64();
    appId = in["appId"].asString();
    collection = in["collection"].asString();
    trashed = ReadBool(in["trashed"]);
    parentId = in["parentId"].asString();
    return in.Check({"statistics", "serviceType", "recordsQuotadSpace", "assetsQuotadSpace", "appId",
                     "collection", "trashed", "parentId"});
}

Json::Value QuotaDetail::ToJson() const
{
    Json::Value value;
    value["statistics"] = statistics;
    value["serviceType"] = Json::Int64(serviceType);
    value["recordsQuotadSpace"] = Json::Int64(recordsQuotadSpace);
    value["assetsQuotadSpace"] = Json::Int64(assetsQuotadSpace);
    value["appId"] = appId;
    value["collection"] = collection;
    value["trashed"] = trashed;
    value["parentId"] = parentId;
    return value;
}

std::int32_t GetQuotaUsedInfoResponse::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    retCode = in["retCode"].asInt();
    used = in["used"].asInt64();
    AppendRecords(in["quotaDetails"], quotaDetails);
    return in.Check({"retCode", "used", "quotaDetails"});
}

Json::Value GetQuotaUsedInfoResponse::ToJson() const
{
    Json::Value value;
    value["retCode"] = retCode;
    value["used"] = Json::Int64(used);
    value["quotaDetails"] = RecordArray(quotaDetails);
    return value;
}

std::int32_t QuotaDetailBk::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    serviceType = in["serviceType"].asInt64();
    snapShotType = in["snapShotType"].asInt64();
    collection = in["collection"].asString();
    statisticsType = in["statisticsType"].asInt64();
    deviceId = in["deviceId"].asString();
    recordsCount = in["recordsCount"].asInt64();
    recordsQuotadSpace = in["recordsQuotadSpace"].asInt64();
    assetsQuotadSpace = in["assetsQuotadSpace"].asInt64();
    statistics = in["statistics"].asString();
    trashed = in["trashed"].asString();
    kind = in["kind"].asString();
    return in.Check(
        {"statistics", "serviceType", "recordsQuotadSpace", "assetsQuotadSpace", "deviceId", "collection"});
}

Json::Value QuotaDetailBk::ToJson() const
{
    Json::Value value;
    value["serviceType"] = Json::Int64(serviceType);
    value["snapShotType"] = Json::Int64(snapShotType);
    value["collection"] = collection;
    value["statisticsType"] = Json::Int64(statisticsType);
    value["deviceId"] = deviceId;
    value["recordsCount"] = Json::Int64(recordsCount);
    value["recordsQuotadSpace"] = Json::Int64(recordsQuotadSpace);
    value["assetsQuotadSpace"] = Json::Int64(assetsQuotadSpace);
    value["statistics"] = statistics;
    value["trashed"] = trashed;
    value["kind"] = kind;
    return value;
}

std::int32_t GetQuotaUsedInfoResponseBk::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    retCode = in["retCode"].asInt();
    used = in["used"].asInt64();
    AppendRecords(in["quotaDetails"], quotaDetails);
    return in.Check({"retCode", "used", "quotaDetails"});
}

Json::Value GetQuotaUsedInfoResponseBk::ToJson() const
{
    Json::Value value;
    value["retCode"] = retCode;
    value["used"] = Json::Int64(used);
    value["quotaDetails"] = RecordArray(quotaDetails);
    return value;
}

std::int32_t GetSpaceFromUrl::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    retCode = in["retCode"].asInt();
    used = in["used"].asInt64();
    return in.Check({"retCode", "used"});
}

Json::Value GetSpaceFromUrl::ToJson() const
{
    Json::Value value;
    value["retCode"] = retCode;
    value["used"] = Json::Int64(used);
    return value;
}

std::int32_t DataObject::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    source = in["source"].asString();
    sumNum = in["sumNum"].asInt();
    return in.Check({"source", "sumNum"});
}

Json::Value DataObject::ToJson() const
{
    Json::Value value;
    value["source"] = source;
    value["sumNum"] = sumNum;
    return value;
}

std::int32_t ResultObject::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    code = in["errorNo"].asInt();
    info = in["info"].asString();
    return in.Check({"code", "info"});
}

Json::Value ResultObject::ToJson() const
{
    Json::Value value;
    value["code"] = code;
    value["info"] = info;
    return value;
}

std::int32_t StatisticResponse::FromJson(const Json::Value& value)
{
    if (value.isMember("result")) {
        result = std::make_shared<ResultObject>();
        result->FromJson(value["result"]);
    }
    if (value.isMember("data")) {
        data = std::make_shared<std::vector<DataObject>>();
        AppendRecords(value["data"], *data);
    }
    return 0;
}

Json::Value StatisticResponse::ToJson() const
{
    Json::Value value;
    value["result"] = result ? result->ToJson() : Json::Value();
    value["data"] = data ? RecordArray(*data) : Json::Value();
    return value;
}

std::int32_t BaseRsp::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    result = in["result"].asInt();
    info = in["info"].asString();
    return in.Check({"result", "info"});
}

Json::Value BaseRsp::ToJson() const
{
    Json::Value value;
    value["result"] = result;
    value["info"] = info;
    return value;
}

std::int32_t BaseResult::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    errorNo = in["errorNo"].asInt();
    scenarioId = in["scenarioId"].asString();
    return in.Check({"errorNo", "scenarioId"});
}

Json::Value BaseResult::ToJson() const
{
    Json::Value value;
    value["errorNo"] = errorNo;
    value["scenarioId"] = scenarioId;
    return value;
}

std::int32_t AboutResponse::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    category = in["category"].asString();
    dataVersion = in["dataVersion"].asString();
    domain = in["domain"].asString();
    maxBatchNumber = in["maxBatchNumber"].asInt();
    maxFileUploadSize = in["maxFileUploadSize"].asString();
    maxThumbnailSize = in["maxThumbnailSize"].asInt64();
    serverTime = in["serverTime"].asInt64();
    const Json::Value& statusValue = in["status"];
    for (const std::string& name : statusValue.getMemberNames()) {
        status[name] = statusValue[name].toStyledString();
    }
    return in.Check({"category", "dataVersion", "domain", "maxBatchNumber", "maxFileUploadSize",
                     "maxThumbnailSize", "serverTime", "status"});
}

Json::Value AboutResponse::ToJson() const
{
    // "status" holds styled text that no request ever sends back, so it is
    // deliberately not written.
    Json::Value value;
    value["category"] = category;
    value["dataVersion"] = dataVersion;
    value["domain"] = domain;
    value["maxBatchNumber"] = maxBatchNumber;
    value["maxFileUploadSize"] = maxFileUploadSize;
    value["maxThumbnailSize"] = Json::Int64(maxThumbnailSize);
    value["serverTime"] = Json::Int64(serverTime);
    return value;
}

std::int32_t GetPimDataVersionResponse::FromJson(const Json::Value& value)
{
    const JsonFields in(value);
    maxBatchNumber = in["maxBatchNumber"].asInt();
    const Json::Value& statusValue = in["status"];
    v2cut = statusValue["v2cut"].asInt();
    AppendStrings(in["kinds"], kinds);
    dataVersion = in["dataVersion"].asString();
    return in.Check({"status", "dataVersion"});
}

Json::Value GetPimDataVersionResponse::ToJson() const
{
    Json::Value value;
    value["maxBatchNumber"] = Json::Int64(maxBatchNumber);
    value["v2cut"] = Json::Int64(v2cut);
    value["dataVersion"] = dataVersion;
    return value;
}
