// The one call through which the view model reaches any cloud service. The
// runner looks at the dynamic class of a catalogued request row, builds the
// matching service request on its stack, runs one exchange and returns the
// typed reply:
//
//   null            no reply body, the body "[]", or a failed send
//   record          the service's answer; its own result/retCode tells
//                   success (0) from the service's error
//   default record  a body that is not JSON, an unknown row class, or an
//                   error body without the record's keys
//
// No exception and no HTTP status ever leave these functions.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "foundation/advanced_enum.h"
#include "request/body_factories.h"
#include "request/pc_http_request.h"
#include "request/records/backup_records.h"
#include "request/records/nsp_records.h"
#include "request/records/quota_records.h"
#include "request/serializable_object.h"

class CloudPhotoV2PCHttpRequest;

template <class T>
std::shared_ptr<T> RunRequest(const AdvancedIntEnumType* requestType, std::shared_ptr<PostableData> postData,
                              std::shared_ptr<RequestExchange> exchange = nullptr,
                              const AnyHttpHeaderMap& customHeaders = AnyHttpHeaderMap());

// Every reply type a runner serves, with the method that the branches other
// than NSP and cloud photo send it with (those two always send 1). This is
// the one list: each entry is declared below and instantiated in
// run_request.cpp, so another T does not link.
#define SPACEMGM_RUN_REQUEST_REPLIES(REPLY)                                                                  \
    REPLY(GetPimDataVersionResponse, AnyHttpGet)                                                             \
    REPLY(NSPFoldersResponse, AnyHttpGet)                                                                    \
    REPLY(StatisticResponse, AnyHttpGet)                                                                     \
    REPLY(GetSpaceFromUrl, AnyHttpGet)                                                                       \
    REPLY(NSPFilesResponse, AnyHttpGet)                                                                      \
    REPLY(NSPResponse, AnyHttpGet)                                                                           \
    REPLY(GetQuotaUsedInfoResponseBk, AnyHttpPost)                                                           \
    REPLY(GetQuotaUsedInfoResponse, AnyHttpPost)                                                             \
    REPLY(QueryAllBackUpResponse, AnyHttpPost)                                                               \
    REPLY(QueryBackUpSmsAndCallLogResponse, AnyHttpPost)                                                     \
    REPLY(BaseRsp, AnyHttpPost)

#define SPACEMGM_DECLARE_RUN_REQUEST(T, sendMethod)                                                          \
    extern template std::shared_ptr<T> RunRequest<T>(                                                        \
        const AdvancedIntEnumType*, std::shared_ptr<PostableData>, std::shared_ptr<RequestExchange>,         \
        const AnyHttpHeaderMap&);

SPACEMGM_RUN_REQUEST_REPLIES(SPACEMGM_DECLARE_RUN_REQUEST)

#undef SPACEMGM_DECLARE_RUN_REQUEST

// The one field of a cloud photo reply the throttle stamp looks at. No reply
// record of this client derives from it, so the stamp never fires; it stays
// as the hook it was.
class BaseCloudPhotoResponse : public SerializableObject
{
public:
    int32_t FromJson(const Json::Value& value) override;
    Json::Value ToJson() const override;

    int32_t result = 0;
};

// After a cloud photo exchange: a reply with result 803 stamps the time into
// lastThrottleTime when the last stamp is older than retryAfterSeconds.
// Nothing waits on the stamp.
void StampThrottle(const std::shared_ptr<SerializableObject>& reply, int64_t nowSeconds);

// Argument set of the NSP quota query.
struct QuotaUsedQuery
{
    std::string q;
    std::string serviceType;
    std::string accessToken;
    std::string nspSvc = "nsp.user.getQuotaUsedInfo";
};

QuotaUsedQuery MakePhotoQuotaQuery(const std::string& accessToken);
QuotaUsedQuery MakeDriveQuotaQuery(const std::string& accessToken);
// Keeps the case of `deviceList`.
QuotaUsedQuery MakeDeviceQuotaQuery(const std::string& accessToken, const std::string& deviceList);

// "nsp_svc=..&accessToken=..&q=..&serviceType=..", every value URL-encoded.
std::string ToFormText(const QuotaUsedQuery& query);

// The about query of the cloud photo V2 service: sends `request` for the
// about row with `queryMap` as an unencoded query. Null for an empty reply,
// "[]" or a failed send.
std::shared_ptr<AboutResponse> SendAbout(CloudPhotoV2PCHttpRequest& request,
                                         const std::map<std::string, std::string>& queryMap,
                                         std::shared_ptr<PostableData> postData,
                                         const AnyHttpHeaderMap& customHeaders);

// The data version of the gallery ("" when the query failed); `statusMap`
// receives the reply's status entries.
std::string GetAboutInfo(std::map<std::string, std::string>& statusMap);

// The most recent maxFileUploadSize of a "v2.0" gallery. Kept for the host.
std::string GetMaxFileUploadSize();

// 1 when the gallery reports "v2cut" as exactly "0", 2 for data version
// "v2.0", otherwise 0. The status values are styled JSON text with a
// trailing newline, so the first case does not match a real reply; the
// comparison stays exact.
int32_t GetPimVersionMode();
