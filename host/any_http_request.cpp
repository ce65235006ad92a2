// AnyHttpRequest on libcurl. Every exchange goes through the process-wide
// share handle, so connections and TLS sessions are reused across
// threads while each exchange keeps its own headers.
#include "platform/any_http_request.h"

#include <memory>
#include <string>
#include <utility>

#include "host/curl_exchange.h"
#include "host/transport_settings.h"

// The exchange is kept in the form the transport takes, so that sending does
// not copy the headers and the body once more.
struct AnyHttpRequest::Exchange
{
    host::CurlExchangeSpec spec;
    // What Initialize asked for; the host configuration may override it.
    int timeoutSeconds = 0;
};

AnyHttpRequest::AnyHttpRequest(const std::string& url, AnyHttpRequestMethod method)
    : exchange_(std::make_unique<Exchange>())
{
    exchange_->spec.url = url;
    exchange_->spec.post = method == AnyHttpPost;
}

AnyHttpRequest::~AnyHttpRequest() = default;

void AnyHttpRequest::SetBaseUrl(const std::string& url)
{
    exchange_->spec.url = url;
}

void AnyHttpRequest::SetHttpVersion(int version)
{
    exchange_->spec.httpVersion = version;
}

void AnyHttpRequest::Initialize(AnyHttpRequestMethod method, const AnyHttpHeaderMap& headers,
                                const std::string& body, int timeoutSeconds, int, int, int)
{
    exchange_->spec.post = method == AnyHttpPost;
    exchange_->spec.headers = headers;
    exchange_->spec.body = body;
    exchange_->timeoutSeconds = timeoutSeconds;
}

CResponseInfo AnyHttpRequest::SendWebRequest(AnyHttpHeaderMap& responseHeaders)
{
    host::TransportSettings settings = host::CurrentTransportSettings();
    host::CurlExchangeSpec& spec = exchange_->spec;
    spec.timeoutSeconds =
        settings.timeoutSecondsOverride > 0 ? settings.timeoutSecondsOverride : exchange_->timeoutSeconds;
    spec.caFile = std::move(settings.caFile);
    return host::PerformCurlExchange(spec, responseHeaders);
}
