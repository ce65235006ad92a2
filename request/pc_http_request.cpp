#include "request/pc_http_request.h"

#include <mutex>

#include "foundation/utilities.h"
#include "platform/global_param_wrapper.h"
#include "platform/user_auth_service.h"
#include "request/postable_string.h"
#include "request/records/quota_records.h"

std::atomic<int32_t> retryAfterSeconds{1800};
std::atomic<int64_t> lastThrottleTime{0};

const char* const kClientApplicationId = "com.zephra.cloud.pc";

namespace {

const char kQuotaPath[] = "/user/v1/getQuotaInfo?attrs=quota.summary&attrs=quota.details";

std::mutex commonHeadersMutex;
AnyHttpHeaderMap commonHeaders;

void FillCommonHeadersOnce()
{
    if (!commonHeaders.empty()) {
        return;
    }
    const std::string uuid = WideToUtf8(GlobalParamWrapper::GetInstance()->GetSystemUUid());
    commonHeaders["User-Agent"] = "NuvoraPC/11.2.4.301";
    commonHeaders["x-zp-source-agent"] = "NuvoraPC";
    commonHeaders["Accept-Language"] = "zh-CN";
    commonHeaders["x-zp-device-id"] = uuid;
    commonHeaders["x-zp-deviceUUID"] = uuid;
    commonHeaders["x-zp-device-type"] = "6";
    commonHeaders["x-zp-terminal"] = "PC";
    commonHeaders["x-zp-device-name"] = UrlEncode(GetDeviceModel());
    commonHeaders["x-zp-auth-version"] = "1";
}

// The session joins the map the first time it is known and is never
// replaced: a later sign-in as someone else keeps the first user id.
void AddSessionOnce()
{
    UserAuthService* session = UserAuthService::GetInstance();
    const std::wstring userId = session->GetCurrentUserID();
    if (!userId.empty() && commonHeaders.count("userId") == 0) {
        commonHeaders["userId"] = WideToUtf8(userId);
    }
    const std::wstring country = session->GetCurrentCountryCode();
    if (!country.empty() && commonHeaders.count("x-zp-country-code") == 0) {
        commonHeaders["x-zp-country-code"] = ToLowerCopy(WideToUtf8(country));
    }
}

} // namespace

AnyHttpHeaderMap GetCommonHeaders()
{
    std::lock_guard<std::mutex> lock(commonHeadersMutex);
    FillCommonHeadersOnce();
    AddSessionOnce();
    return commonHeaders;
}

std::string BuildAuthorization(const std::string& appId)
{
    const std::string uuid = GetDeviceUuid();
    const std::string token = UrlEncode(WideToUtf8(UserAuthService::GetInstance()->GetCurrentAT()));
    const std::string application = appId.empty() ? std::string(kClientApplicationId) : appId;
    const std::string joined = "6:" + uuid + ":" + application + "::" + token;
    return Base64Encode(joined.data(), static_cast<int>(joined.size()));
}

int32_t RequestTimeoutFor(const std::string& url)
{
    const std::string quotaPath(kQuotaPath);
    const size_t last = FindLastOf(url.c_str(), url.size(), quotaPath.c_str(), quotaPath.size());
    return last == url.size() - quotaPath.size() ? 30000 : 100;
}

void AcceptRetryAfter(const std::string& headerValue)
{
    const std::vector<std::string> tokens = SplitList(headerValue);
    if (tokens.empty()) {
        return;
    }
    uint32_t seconds = 0;
    if (ParseDigits(tokens.front(), seconds)) {
        retryAfterSeconds.store(static_cast<int32_t>(seconds));
    }
}

void RememberCloudPhotoRetryAfter(const std::string& requestUrl, const AnyHttpHeaderMap& responseHeaders)
{
    // Only the cloud photo service's Retry-After is remembered; the test is
    // against the first interface's address, which the second one shares.
    const std::string photoUrl = WideToUtf8(GlobalParamWrapper::GetInstance()->GetCloudPhotoUrl());
    const auto retryAfter = responseHeaders.find("Retry-After");
    if (Contains(requestUrl, photoUrl) && retryAfter != responseHeaders.end()) {
        AcceptRetryAfter(retryAfter->second);
    }
}

namespace pc_http_detail {

void ReadBaseResult(const std::string& body)
{
    BaseResult discarded;
    ReadRecord(discarded, body);
}

bool ReadBaseResult(const std::string& body, Json::Value& parsed)
{
    if (!ParseJson(body, parsed)) {
        return false;
    }
    BaseResult discarded;
    ReadParsedRecord(discarded, parsed);
    return true;
}

void ReadParsedRecord(SerializableObject& record, const Json::Value& value)
{
    try {
        record.FromJson(value);
    } catch (...) {
        // A field of the wrong type ends the reading; the record keeps what
        // it had read, as ReadRecord leaves it.
    }
}

bool IsEmptyReply(const std::string& reply)
{
    return reply.empty() || reply == "[]";
}

std::string BodyText(const std::shared_ptr<PostableData>& body)
{
    if (auto finished = std::dynamic_pointer_cast<PostableString>(body)) {
        return finished->text;
    }
    return std::string();
}

void Transfer(AnyHttpRequest& transport, const HttpRequestFields& fields, const std::string& bodyText,
              CResponseInfo& response)
{
    transport.SetBaseUrl(fields.url);
    transport.Initialize(fields.method, fields.requestHeaders, bodyText, fields.timeout, 3, 0, 0);
    AnyHttpHeaderMap responseHeaders;
    response = transport.SendWebRequest(responseHeaders);
    RememberCloudPhotoRetryAfter(fields.url, responseHeaders);
}

} // namespace pc_http_detail

PCHttpRequest::PCHttpRequest(const std::string& baseUrl)
    : AnyHttpRequest(baseUrl, AnyHttpPost), HttpRequestFields(baseUrl)
{
}

PCHttpRequest::~PCHttpRequest() = default;

CResponseInfo PCHttpRequest::EmptyResponse()
{
    return CResponseInfo{0, std::string()};
}

void PCHttpRequest::AddHeaders()
{
    // Merged under the map's mutex straight from the shared map: the same
    // entries GetCommonHeaders would copy out, without the copy.
    std::lock_guard<std::mutex> lock(commonHeadersMutex);
    FillCommonHeadersOnce();
    AddSessionOnce();
    for (const auto& [name, value] : commonHeaders) {
        requestHeaders.emplace(name, value);
    }
}

void PCHttpRequest::AddConnectionOptions()
{
    requestHeaders["Keep-alive"] = "false";
}

void PCHttpRequest::PrepareBody() {}

void PCHttpRequest::MarshalBody()
{
    PrepareBody();
    if (!postData || std::dynamic_pointer_cast<PostableString>(postData)) {
        return;
    }
    if (auto record = std::dynamic_pointer_cast<SerializableObject>(postData)) {
        postData = std::make_shared<PostableString>(record->ToJsonString());
    }
}

std::string PCHttpRequest::GetInterfacePath(const AdvancedIntEnumType& type)
{
    return GetInterfacePathOf(type);
}

void PCHttpRequest::ResetUrl(const std::string& newUrl)
{
    url = newUrl;
    timeout = 30;
}

void PCHttpRequest::SetTraceAndPath(const AdvancedIntEnumType& type, bool appendTraceId)
{
    traceId = GetRequestTraceId(type);
    url += GetInterfacePath(type);
    if (appendTraceId) {
        url += "?traceId=" + traceId;
    }
}

std::string PCHttpRequest::SendRaw(int32_t& status, std::string& errorText,
                                   std::shared_ptr<PostableData> body)
{
    errorText.clear();
    status = -1;
    replyParsed = false;
    CResponseInfo response;
    const std::string bodyText = pc_http_detail::BodyText(body);
    try {
        if (requestHeaders.count("AuthType") == 0) {
            const std::string appId(kClientApplicationId);
            requestHeaders["AuthType"] = Base64Encode(appId.data(), static_cast<int>(appId.size()));
        }
        if (requestHeaders.count("Authorization") == 0) {
            requestHeaders["Authorization"] = BuildAuthorization(std::string());
        }
        pc_http_detail::Transfer(*this, *this, bodyText, response);
        status = response.status;
        if (status == 200) {
            replyParsed = pc_http_detail::ReadBaseResult(response.body, parsedReply);
        }
    } catch (...) {
        // A failed send is an empty reply; the caller gets a null record.
    }
    return response.body;
}
