#include "request/records/quota_records.h"

#include "request/records/record_fields.h"

using record_fields::AppendRecords;
using record_fields::AppendStrings;
using record_fields::CheckKeys;
using record_fields::RecordArray;

std::int32_t QuotaDetail::FromJson(const Json::Value& value)
{
    statistics = value["statistics"].asString();
    serviceType = value["serviceType"].asInt64();
    recordsQuotadSpace = value["recordsQuotadSpace"].asInt64();
    assetsQuotadSpace = value["assetsQuotadSpace"].asInt64();
    appId = value["appId"].asString();
    collection = value["collection"].asString();
    trashed = value["trashed"].asBool();
    parentId = value["parentId"].asString();
    return CheckKeys(value, {"statistics", "serviceType", "recordsQuotadSpace", "assetsQuotadSpace",
                             "appId", "collection", "trashed", "parentId"});
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
    retCode = value["retCode"].asInt();
    used = value["used"].asInt64();
    AppendRecords(value["quotaDetails"], quotaDetails);
    return CheckKeys(value, {"retCode", "used", "quotaDetails"});
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
    serviceType = value["serviceType"].asInt64();
    snapShotType = value["snapShotType"].asInt64();
    collection = value["collection"].asString();
    statisticsType = value["statisticsType"].asInt64();
    deviceId = value["deviceId"].asString();
    recordsCount = value["recordsCount"].asInt64();
    recordsQuotadSpace = value["recordsQuotadSpace"].asInt64();
    assetsQuotadSpace = value["assetsQuotadSpace"].asInt64();
    statistics = value["statistics"].asString();
    trashed = value["trashed"].asString();
    kind = value["kind"].asString();
    return CheckKeys(value, {"statistics", "serviceType", "recordsQuotadSpace", "assetsQuotadSpace",
                             "deviceId", "collection"});
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
    retCode = value["retCode"].asInt();
    used = value["used"].asInt64();
    AppendRecords(value["quotaDetails"], quotaDetails);
    return CheckKeys(value, {"retCode", "used", "quotaDetails"});
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
    retCode = value["retCode"].asInt();
    used = value["used"].asInt64();
    return CheckKeys(value, {"retCode", "used"});
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
    source = value["source"].asString();
    sumNum = value["sumNum"].asInt();
    return CheckKeys(value, {"source", "sumNum"});
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
    code = value["errorNo"].asInt();
    info = value["info"].asString();
    return CheckKeys(value, {"code", "info"});
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
    result = value["result"].asInt();
    info = value["info"].asString();
    return CheckKeys(value, {"result", "info"});
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
    errorNo = value["errorNo"].asInt();
    scenarioId = value["scenarioId"].asString();
    return CheckKeys(value, {"errorNo", "scenarioId"});
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
    category = value["category"].asString();
    dataVersion = value["dataVersion"].asString();
    domain = value["domain"].asString();
    maxBatchNumber = value["maxBatchNumber"].asInt();
    maxFileUploadSize = value["maxFileUploadSize"].asString();
    maxThumbnailSize = value["maxThumbnailSize"].asInt64();
    serverTime = value["serverTime"].asInt64();
    const Json::Value& statusValue = value["status"];
    for (const std::string& name : statusValue.getMemberNames()) {
        status[name] = statusValue[name].toStyledString();
    }
    return CheckKeys(value, {"category", "dataVersion", "domain", "maxBatchNumber", "maxFileUploadSize",
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
    maxBatchNumber = value["maxBatchNumber"].asInt();
    const Json::Value& statusValue = value["status"];
    v2cut = statusValue["v2cut"].asInt();
    AppendStrings(value["kinds"], kinds);
    dataVersion = value["dataVersion"].asString();
    return CheckKeys(value, {"status", "dataVersion"});
}

Json::Value GetPimDataVersionResponse::ToJson() const
{
    Json::Value value;
    value["maxBatchNumber"] = Json::Int64(maxBatchNumber);
    value["v2cut"] = Json::Int64(v2cut);
    value["dataVersion"] = dataVersion;
    return value;
}
