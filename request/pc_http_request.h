// One HTTP exchange with a cloud service: which catalogued request it is,
// which URL, which headers, which body. Service classes derive from it and
// add only their address, their headers and their body preparation.
//
// The exchange is sent exactly once. There is no retry, no token refresh and
// no branch on the status: a caller learns of failure only from the shape of
// what comes back (null, default or error record), never from an exception.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

#include "foundation/advanced_enum.h"
#include "platform/any_http_request.h"
#include "request/http_request_fields.h"
#include "request/serializable_object.h"

// Receives what a caller may want to know about an exchange after the send.
struct RequestExchange
{
    std::string traceId;
    std::string contentMd5;
};

// Last Retry-After value accepted from the cloud photo service, in seconds.
// Written by any worker thread; nothing waits on it.
extern std::atomic<int32_t> retryAfterSeconds;
// Seconds since the epoch of the last throttle stamp (see run_request.h).
extern std::atomic<int64_t> lastThrottleTime;

// The application id the services know this client by.
extern const char* const kClientApplicationId;

// The headers every request starts from. Filled once; the user id and the
// country join the first time they are known and are never replaced. Returns
// a copy taken under the map's mutex, so a reader never races those additions.
AnyHttpHeaderMap GetCommonHeaders();

// Base64 of "6:<uuid>:<appId>::<url-encoded token>". An empty `appId` means
// the client's own application id.
std::string BuildAuthorization(const std::string& appId);

class PCHttpRequest : public AnyHttpRequest, public HttpRequestFields
{
public:
    explicit PCHttpRequest(const std::string& baseUrl);
    ~PCHttpRequest() override;

    virtual CResponseInfo EmptyResponse();
    virtual void AddHeaders();
    virtual void AddConnectionOptions();
    virtual void PrepareBody();
    virtual void MarshalBody();
    virtual std::string GetInterfacePath(const AdvancedIntEnumType& type);
    virtual void ResetUrl(const std::string& newUrl);

    // Runs one exchange for a catalogued request and decodes the reply into a
    // T. Null for an empty reply, the reply "[]" or a failed send.
    template <class T>
    std::shared_ptr<T> SendTyped(const AdvancedIntEnumType& type, AnyHttpRequestMethod sendMethod,
                                 std::shared_ptr<PostableData> body,
                                 std::shared_ptr<RequestExchange> exchange, bool appendTraceId);

    template <class T> std::shared_ptr<T> ExecuteRequest(int32_t& status);

    // The only step that touches the transport. Returns the reply body, empty
    // when the send failed; `status` stays -1 then. `errorText` is cleared and
    // written by nothing.
    std::string SendRaw(int32_t& status, std::string& errorText, std::shared_ptr<PostableData> body);

protected:
    void SetTraceAndPath(const AdvancedIntEnumType& type, bool appendTraceId);

private:
    // The tree SendRaw built while reading a 200 reply into its BaseResult.
    // ExecuteRequest decodes its record from it rather than parsing the same
    // text a second time; without it (another status, or text that is not
    // JSON) the record parses the reply itself.
    Json::Value parsedReply;
    bool replyParsed = false;
};

// The timeout of an exchange for `url`: 100 seconds, or 30000 when the URL
// passes the quota test. The test compares the position of the last character
// of the URL that occurs anywhere in the quota path with length(url) -
// length(path); it is almost never true, so the quota query too runs with
// 100. It is kept exactly so.
int32_t RequestTimeoutFor(const std::string& url);

// Reads a Retry-After header value the way the cloud photo service's throttle
// expects; updates retryAfterSeconds only when the first token is all digits.
void AcceptRetryAfter(const std::string& headerValue);

// Takes the reply's "Retry-After" into `retryAfterSeconds` when the request
// went to the cloud photo service; other services never touch it.
void RememberCloudPhotoRetryAfter(const std::string& requestUrl, const AnyHttpHeaderMap& responseHeaders);

// Helpers shared by the exchange and the V2 about request.
namespace pc_http_detail {

// Parses a 200 reply into a BaseResult and drops it, as the send step always
// did; nothing depends on what it finds.
void ReadBaseResult(const std::string& body);

// The same read, keeping the parsed tree in `parsed`. False when the body is
// not JSON; `parsed` is then unspecified.
bool ReadBaseResult(const std::string& body, Json::Value& parsed);

// What ReadRecord does once its text has parsed: the record reads `value`,
// and a wrong type ends the reading where it happened.
void ReadParsedRecord(SerializableObject& record, const Json::Value& value);

bool IsEmptyReply(const std::string& reply);

// The text a send puts on the wire: a finished body's own text; any other
// body, and none, send nothing.
std::string BodyText(const std::shared_ptr<PostableData>& body);

// The transport step of both request classes: points `transport` at the
// fields' URL, sends once, and takes the cloud photo service's Retry-After
// from the reply. What the transport throws passes through, and `response`
// is then left as it was.
void Transfer(AnyHttpRequest& transport, const HttpRequestFields& fields, const std::string& bodyText,
              CResponseInfo& response);

} // namespace pc_http_detail

template <class T>
std::shared_ptr<T> PCHttpRequest::SendTyped(const AdvancedIntEnumType& type, AnyHttpRequestMethod sendMethod,
                                            std::shared_ptr<PostableData> body,
                                            std::shared_ptr<RequestExchange> exchange, bool appendTraceId)
{
    std::shared_ptr<T> result;
    method = sendMethod;
    requestType.id = type.id;
    requestType.attributes = type.attributes;
    SetTraceAndPath(requestType, appendTraceId);
    postData = std::move(body);
    int32_t status = -1;
    result = ExecuteRequest<T>(status);
    if (exchange) {
        exchange->traceId = traceId;
        exchange->contentMd5 = contentMd5;
    }
    return result;
}

template <class T> std::shared_ptr<T> PCHttpRequest::ExecuteRequest(int32_t& status)
{
    std::shared_ptr<T> result;
    status = -1;
    timeout = 100;
    try {
        timeout = RequestTimeoutFor(url);
        AddConnectionOptions();
        AddHeaders();
        if (method == AnyHttpPost) {
            MarshalBody();
        }
        std::string errorText;
        const std::string reply = SendRaw(status, errorText, postData);
        if (pc_http_detail::IsEmptyReply(reply)) {
            return nullptr;
        }
        result = std::make_shared<T>();
        if (replyParsed) {
            pc_http_detail::ReadParsedRecord(*result, parsedReply);
        } else {
            ReadRecord(*result, reply);
        }
    } catch (...) {
        // A record that throws while reading itself (a wrong JSON type) stays
        // as far as it was filled; the caller judges it by its fields.
    }
    return result;
}
