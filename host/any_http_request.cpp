// AnyHttpRequest on libcurl. One easy handle per exchange, all of them on the
// process-wide share handle, so connections and TLS sessions are reused across
// threads while each exchange keeps its own headers.
#include "platform/any_http_request.h"

#include <memory>
#include <string>

#include "host/curl_exchange.h"
#include "host/transport_settings.h"

struct AnyHttpRequest::Exchange
{
    std::string url;
    AnyHttpRequestMethod method = AnyHttpPost;
    AnyHttpHeaderMap headers;
    std::string body;
    int timeoutSeconds = 0;
    int httpVersion = 1;
};


AnyHttpRequest::AnyHttpRequest(const std::string& url, AnyHttpRequestMethod method)
    : exchange_(std::make_unique<Exchange>())
{
    exchange_->url = url;
    exchange_->method = method;
}

AnyHttpRequest::~AnyHttpRequest() = default;

void AnyHttpRequest::SetBaseUrl(const std::string& url)
{
    exchange_->url = url;
}

void AnyHttpRequest::SetHttpVersion(int version)
{
    exchange_->httpVersion = version;
}

void AnyHttpRequest::Initialize(AnyHttpRequestMethod method, const AnyHttpHeaderMap& headers,
                                const std::string& body, int timeoutSeconds, int, int, int)
{
    exchange_->method = method;
    exchange_->headers = headers;
    exchange_->body = body;
    exchange_->timeoutSeconds = timeoutSeconds;
}

CResponseInfo AnyHttpRequest::SendWebRequest(AnyHttpHeaderMap& responseHeaders)
{
    const host::TransportSettings settings = host::CurrentTransportSettings();
    host::CurlExchangeSpec spec;
    spec.url = exchange_->url;
    spec.post = exchange_->method == AnyHttpPost;
    spec.headers = exchange_->headers;
    spec.body = exchange_->body;
    spec.timeoutSeconds =
        settings.timeoutSecondsOverride > 0 ? settings.timeoutSecondsOverride : exchange_->timeoutSeconds;
    spec.httpVersion = exchange_->httpVersion;
    spec.caFile = settings.caFile;
    return host::PerformCurlExchange(spec, responseHeaders);
}
