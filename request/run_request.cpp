#include "request/run_request.h"

#include <ctime>
#include <mutex>

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"
#include "request/service/basic_pc_request.h"
#include "request/service/cloud_backup_request.h"
#include "request/service/cloud_photo_pc_request.h"
#include "request/service/cloud_photo_v2_pc_http_request.h"
#include "request/service/family_share_pc_request.h"
#include "request/service/nsp_pc_request.h"
#include "request/service/pimds_pc_request.h"
#include "request/service/portal_pc_request.h"

namespace {

// The method of the plain branches for a reply type, from the list of
// replies in run_request.h.
template <class T> struct RunRequestMethod;

#define SPACEMGM_RUN_REQUEST_METHOD(T, sendMethod)                                                           \
    template <> struct RunRequestMethod<T>                                                                   \
    {                                                                                                        \
        static constexpr AnyHttpRequestMethod value = sendMethod;                                            \
    };

SPACEMGM_RUN_REQUEST_REPLIES(SPACEMGM_RUN_REQUEST_METHOD)

#undef SPACEMGM_RUN_REQUEST_METHOD

bool IsNspRow(const NspRequestType& row, int32_t id)
{
    const NspRequestType* known = FindEnumRow<NspRequestType>(id);
    return known != nullptr && row == *known;
}

// Rows 1 and 6 start again from the bare service address; the others keep
// the one the constructor set. NSP rows have no path, so all end there.
template <class T>
std::shared_ptr<T> SendNsp(const NspRequestType& row, std::shared_ptr<PostableData> postData,
                           std::shared_ptr<RequestExchange> exchange)
{
    NSPPCRequest request;
    if (IsNspRow(row, 1) || IsNspRow(row, 6)) {
        request.ResetUrl(WideToUtf8(GlobalParamWrapper::GetInstance()->GetNspUrl()));
    }
    return request.SendTyped<T>(row, AnyHttpPost, std::move(postData), std::move(exchange), false);
}

template <class T>
std::shared_ptr<T> SendCloudPhoto(const CloudPhotoInterfaceType& row, std::shared_ptr<PostableData> postData,
                                  std::shared_ptr<RequestExchange> exchange,
                                  const AnyHttpHeaderMap& customHeaders)
{
    CloudPhotoPCRequest request;
    if (&customHeaders != &request.customHeaders) {
        request.customHeaders = customHeaders;
    }
    auto result = request.SendTyped<T>(row, AnyHttpPost, std::move(postData), std::move(exchange), false);
    StampThrottle(result, static_cast<int64_t>(std::time(nullptr)));
    return result;
}

template <class Request, class T>
std::shared_ptr<T> SendPlain(const AdvancedIntEnumType& row, std::shared_ptr<PostableData> postData,
                             std::shared_ptr<RequestExchange> exchange, bool appendTraceId)
{
    Request request;
    return request.template SendTyped<T>(row, RunRequestMethod<T>::value, std::move(postData),
                                         std::move(exchange), appendTraceId);
}

std::mutex maxFileUploadSizeMutex;
std::string maxFileUploadSize;

} // namespace

template <class T>
std::shared_ptr<T> RunRequest(const AdvancedIntEnumType* requestType, std::shared_ptr<PostableData> postData,
                              std::shared_ptr<RequestExchange> exchange,
                              const AnyHttpHeaderMap& customHeaders)
{
    std::shared_ptr<T> result;
    try {
        if (auto nsp = dynamic_cast<const NspRequestType*>(requestType)) {
            result = SendNsp<T>(*nsp, std::move(postData), std::move(exchange));
        } else if (auto basic = dynamic_cast<const BasicType*>(requestType)) {
            BasicPCRequest request;
            request.basicType = *basic;
            result = request.SendTyped<T>(*basic, RunRequestMethod<T>::value, std::move(postData),
                                          std::move(exchange), false);
        } else if (auto portal = dynamic_cast<const PortalInferfaceType*>(requestType)) {
            result = SendPlain<PortalPCRequest, T>(*portal, std::move(postData), std::move(exchange), true);
        } else if (auto photo = dynamic_cast<const CloudPhotoInterfaceType*>(requestType)) {
            result = SendCloudPhoto<T>(*photo, std::move(postData), std::move(exchange), customHeaders);
        } else if (auto cbs = dynamic_cast<const CbsType*>(requestType)) {
            result = SendPlain<CloudBackUpRequest, T>(*cbs, std::move(postData), std::move(exchange), false);
        } else if (auto pimds = dynamic_cast<const PimdsType*>(requestType)) {
            result = SendPlain<PIMDSPCRequest, T>(*pimds, std::move(postData), std::move(exchange), false);
        } else if (auto family = dynamic_cast<const FamilyShareType*>(requestType)) {
            result =
                SendPlain<FamilySharePCRequest, T>(*family, std::move(postData), std::move(exchange), false);
        } else if (auto version = dynamic_cast<const PimDataVerionType*>(requestType)) {
            result = SendPlain<PimDataVersionPCRequest, T>(*version, std::move(postData), std::move(exchange),
                                                           false);
        } else {
            // An unknown row is not an error: the caller sees a default record.
            result = std::make_shared<T>();
        }
    } catch (...) {
        // Nothing escapes a runner; what was received so far stands.
    }
    return result;
}

#define SPACEMGM_RUN_REQUEST_INSTANCE(T, sendMethod)                                                         \
    template std::shared_ptr<T> RunRequest<T>(const AdvancedIntEnumType*, std::shared_ptr<PostableData>,     \
                                              std::shared_ptr<RequestExchange>, const AnyHttpHeaderMap&);

SPACEMGM_RUN_REQUEST_REPLIES(SPACEMGM_RUN_REQUEST_INSTANCE)

#undef SPACEMGM_RUN_REQUEST_INSTANCE

int32_t BaseCloudPhotoResponse::FromJson(const Json::Value& value)
{
    result = value["result"].asInt();
    return value.isMember("result") ? 0 : -1;
}

Json::Value BaseCloudPhotoResponse::ToJson() const
{
    Json::Value value;
    value["result"] = result;
    return value;
}

void StampThrottle(const std::shared_ptr<SerializableObject>& reply, int64_t nowSeconds)
{
    const auto photoReply = std::dynamic_pointer_cast<BaseCloudPhotoResponse>(reply);
    if (!photoReply || photoReply->result != 803) {
        return;
    }
    if (nowSeconds - lastThrottleTime.load() > retryAfterSeconds.load()) {
        lastThrottleTime.store(nowSeconds);
    }
}

namespace {

QuotaUsedQuery LowerCasedQuery(const std::string& accessToken, const char* filter, const char* serviceType)
{
    QuotaUsedQuery query;
    query.accessToken = accessToken;
    query.q = filter;
    query.serviceType = serviceType;
    query.q = ToLowerCopy(query.q);
    return query;
}

} // namespace

QuotaUsedQuery MakePhotoQuotaQuery(const std::string& accessToken)
{
    return LowerCasedQuery(accessToken, "collection=photo and (trashed=true or trashed=false)", "10880002");
}

QuotaUsedQuery MakeDriveQuotaQuery(const std::string& accessToken)
{
    return LowerCasedQuery(accessToken, "collection=drive and (trashed=true)", "10781986");
}

QuotaUsedQuery MakeDeviceQuotaQuery(const std::string& accessToken, const std::string& deviceList)
{
    QuotaUsedQuery query;
    query.accessToken = accessToken;
    query.q = "collection=private and deviceId in " + deviceList;
    query.serviceType = "2000";
    return query;
}

std::string ToFormText(const QuotaUsedQuery& query)
{
    return "nsp_svc=" + UrlEncode(query.nspSvc) + "&" + "accessToken=" + UrlEncode(query.accessToken) + "&" +
           "q=" + UrlEncode(query.q) + "&" + "serviceType=" + UrlEncode(query.serviceType);
}

std::shared_ptr<AboutResponse> SendAbout(CloudPhotoV2PCHttpRequest& request,
                                         const std::map<std::string, std::string>& queryMap,
                                         std::shared_ptr<PostableData> postData,
                                         const AnyHttpHeaderMap& customHeaders)
{
    std::shared_ptr<AboutResponse> result;
    try {
        const CloudPhotoV2InterfaceType* aboutRow = FindEnumRow<CloudPhotoV2InterfaceType>(0);
        if (aboutRow == nullptr) {
            return nullptr;
        }
        request.requestType = *aboutRow;
        request.postData = std::move(postData);
        request.traceId = GetRequestTraceId(request.requestType);
        request.url += GetInterfacePathOf(request.requestType);
        if (!queryMap.empty()) {
            std::string query;
            for (const auto& [key, value] : queryMap) {
                query += (query.empty() ? "" : "&") + key + "=" + value;
            }
            request.url += "?" + query;
        }
        request.timeout = RequestTimeoutFor(request.url);
        request.requestHeaders["Keep-alive"] = "false";
        request.BuildHeaders(customHeaders);
        int32_t status = -1;
        std::string errorText;
        const std::string reply = request.SendRaw(status, errorText, request.postData);
        if (pc_http_detail::IsEmptyReply(reply)) {
            return nullptr;
        }
        result = std::make_shared<AboutResponse>();
        ReadRecord(*result, reply);
    } catch (...) {
        // The about query fails as quietly as every other exchange.
    }
    return result;
}

std::string GetAboutInfo(std::map<std::string, std::string>& statusMap)
{
    statusMap.clear();
    const std::map<std::string, std::string> queryMap{
        {"fields", "dataVersion,status,maxBatchNumber,maxFileUploadSize,maxThumbnailSize"}};
    std::shared_ptr<AboutResponse> about;
    try {
        CloudPhotoV2PCHttpRequest request;
        about = SendAbout(request, queryMap, nullptr, AnyHttpHeaderMap());
    } catch (...) {
        about = nullptr;
    }
    if (!about) {
        return std::string();
    }
    statusMap = about->status;
    if (about->dataVersion == "v2.0") {
        std::lock_guard<std::mutex> lock(maxFileUploadSizeMutex);
        maxFileUploadSize = about->maxFileUploadSize;
    }
    return about->dataVersion;
}

std::string GetMaxFileUploadSize()
{
    std::lock_guard<std::mutex> lock(maxFileUploadSizeMutex);
    return maxFileUploadSize;
}

int32_t GetPimVersionMode()
{
    std::map<std::string, std::string> statusMap;
    const std::string dataVersion = GetAboutInfo(statusMap);
    if (dataVersion.empty()) {
        return 0;
    }
    const auto v2cut = statusMap.find("v2cut");
    if (v2cut != statusMap.end() && v2cut->second == "0") {
        return 1;
    }
    if (dataVersion == "v2.0") {
        return 2;
    }
    return 0;
}
