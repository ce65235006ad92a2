// One HTTP exchange on libcurl, over the process-wide connection cache. The
// headers go out exactly as given: libcurl's own Accept and Expect (and its
// form Content-Type for a body) are switched off, a header with an empty value
// is sent empty, and only Host and Content-Length are added, as the protocol
// needs them.
#pragma once

#include <string>

#include "platform/any_http_request.h"

namespace host {

struct CurlExchangeSpec
{
    std::string url;
    bool post = true;
    AnyHttpHeaderMap headers;
    std::string body;
    // 0 means no limit.
    long timeoutSeconds = 0;
    // 2 negotiates HTTP/2 over TLS; plain http then stays on 1.1.
    int httpVersion = 1;
    // Empty keeps the system's CA store.
    std::string caFile;
};

// Throws std::runtime_error when no response arrived. The message names the
// failing step, never a header value.
CResponseInfo PerformCurlExchange(const CurlExchangeSpec& spec, AnyHttpHeaderMap& responseHeaders);

} // namespace host
