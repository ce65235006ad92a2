#pragma once
// The fields of one exchange, in the order the exchange fills them. Both
// request classes hold them: PCHttpRequest, and the gallery's second
// interface, which stands beside it with its own headers and send step.
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "foundation/advanced_enum.h"
#include "platform/any_http_request.h"
#include "request/postable_data.h"

struct HttpRequestFields
{
    explicit HttpRequestFields(std::string baseUrl) : url(std::move(baseUrl)) {}

    // Filled only by the gallery's upload preparation; copied out to the
    // caller's exchange record after the send.
    std::string contentMd5;
    // The catalogued request; a fresh object takes a new id from the
    // enumeration counter until the send copies the real row in.
    AdvancedIntEnumType requestType;
    AnyHttpHeaderMap requestHeaders;
    std::string traceId;
    std::shared_ptr<PostableData> postData;
    AnyHttpRequestMethod method = AnyHttpGet;
    int32_t timeout = 30;
    // The base URL at first, then grown by path and query.
    std::string url;
};
