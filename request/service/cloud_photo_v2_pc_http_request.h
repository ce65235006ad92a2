// The gallery service, second interface. It stands beside PCHttpRequest
// rather than on it: it has the same fields, its own header builder (a bearer
// token, no fallbacks in the send step) and a send step that reads every
// reply's result, not only a 200's. The about query is its one user.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "foundation/advanced_enum.h"
#include "platform/any_http_request.h"
#include "request/postable_data.h"

class CloudPhotoV2PCHttpRequest : public AnyHttpRequest
{
public:
    CloudPhotoV2PCHttpRequest();
    ~CloudPhotoV2PCHttpRequest() override;

    virtual CResponseInfo EmptyResponse();
    // Upload preparation for the rows that have one, then the body as text:
    // a record's JSON, a copy of finished text, or an empty string.
    virtual void MarshalBody();

    // Merges the common headers (keeping what is set), writes this service's
    // headers, then lets the caller's headers overwrite.
    void BuildHeaders(const AnyHttpHeaderMap& customHeaders);

    // The send step without the Authorization and AuthType fallbacks.
    std::string SendRaw(int32_t& status, std::string& errorText, std::shared_ptr<PostableData> body);

    std::string contentMd5;
    AdvancedIntEnumType requestType;
    AnyHttpHeaderMap requestHeaders;
    std::string traceId;
    std::shared_ptr<PostableData> postData;
    int32_t timeout = 30;
    std::string url;
    AnyHttpRequestMethod method = AnyHttpGet;
};
