// The gallery service, second interface. It stands beside PCHttpRequest
// rather than on it: it has the same fields, its own header builder (a bearer
// token, no fallbacks in the send step) and a send step that reads every
// reply's result, not only a 200's. The about query is its one user.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/any_http_request.h"
#include "request/http_request_fields.h"
#include "request/postable_data.h"

class CloudPhotoV2PCHttpRequest : public AnyHttpRequest, public HttpRequestFields
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
};
