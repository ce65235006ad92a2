#pragma once

// Records of what the services say about space: quota used per service, item
// counts of the PIM statistics service, and the data version of the sync
// services. Every field defaults to 0, false or empty.

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "request/serializable_object.h"

// One row of the quota-used reply. "Quotad" is the service's spelling.
class QuotaDetail : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string statistics;
    std::int64_t serviceType = 0;
    std::int64_t recordsQuotadSpace = 0;
    std::int64_t assetsQuotadSpace = 0;
    std::string appId;
    std::string collection;
    bool trashed = false;
    std::string parentId;
};

class GetQuotaUsedInfoResponse : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t retCode = 0;
    std::int64_t used = 0;
    std::vector<QuotaDetail> quotaDetails;
};

// The same row as the backup quota query sees it. Here "trashed" is text, so
// a JSON boolean arrives as "true" or "false".
class QuotaDetailBk : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int64_t serviceType = 0;
    std::int64_t snapShotType = 0;
    std::string collection;
    std::int64_t statisticsType = 0;
    std::string deviceId;
    std::int64_t recordsCount = 0;
    std::int64_t recordsQuotadSpace = 0;
    std::int64_t assetsQuotadSpace = 0;
    std::string statistics;
    std::string trashed;
    std::string kind;
};

class GetQuotaUsedInfoResponseBk : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t retCode = 0;
    std::int64_t used = 0;
    std::vector<QuotaDetailBk> quotaDetails;
};

// Reply of the drive quota request.
class GetSpaceFromUrl : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t retCode = 0;
    std::int64_t used = 0;
};

// One category count of the PIM statistics reply.
class DataObject : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string source;
    std::int32_t sumNum = 0;
};

// The service's result. Its directions do not agree: the code is read from
// "errorNo" but written, and checked, as "code". A reply that carries "code"
// therefore leaves `code` at 0.
class ResultObject : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t code = 0;
    std::string info;
};

// Reply of the statistics rows. Either part may be missing from a reply, and
// then its pointer stays null: readers test both. FromJson checks nothing and
// returns 0.
class StatisticResponse : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::shared_ptr<ResultObject> result;
    std::shared_ptr<std::vector<DataObject>> data;
};

// The plain result of a CBS style request.
class BaseRsp : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t result = 0;
    std::string info;
};

// Read from every successful reply by the send step, then dropped.
class BaseResult : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::int32_t errorNo = 0;
    std::string scenarioId;
};

// Reply of the about query of the cloud photo V2 service. Each `status` entry
// holds the styled JSON text of its member (a number 0 is "0\n", a string
// keeps its quotes). The map is not written back by ToJson.
class AboutResponse : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::string category;
    std::string dataVersion;
    std::string domain;
    std::int32_t maxBatchNumber = 0;
    std::string maxFileUploadSize;
    std::int64_t maxThumbnailSize = 0;
    std::int64_t serverTime = 0;
    std::map<std::string, std::string> status;
};

// Reply of the PIM data version rows. `v2cut` is read from inside "status"
// and written at the top level; `kinds` is read and never written. Both
// numbers hold what asInt gave.
class GetPimDataVersionResponse : public SerializableObject
{
public:
    std::int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    std::vector<std::string> kinds;
    std::int64_t maxBatchNumber = 0;
    std::int64_t v2cut = 0;
    std::string dataVersion;
};
