#include "host/basic_http_query.h"

#include "host/curl_exchange.h"
#include "host/transport_settings.h"

namespace host {

int PerformBasicQuery(const AnyBasicHttpLibStrategy& strategy, std::string& response)
{
    const TransportSettings settings = CurrentTransportSettings();
    CurlExchangeSpec spec;
    spec.url = strategy.GetUrl();
    spec.post = strategy.GetHttpRequestMethod() == 1;
    spec.headers = AnyHttpHeaderMap(strategy.GetHeaders().begin(), strategy.GetHeaders().end());
    spec.body = strategy.GetBody();
    spec.timeoutSeconds = settings.timeoutSecondsOverride > 0 ? settings.timeoutSecondsOverride : 30;
    spec.caFile = strategy.GetCertPath().empty() ? settings.caFile : strategy.GetCertPath();
    AnyHttpHeaderMap ignored;
    const CResponseInfo reply = PerformCurlExchange(spec, ignored);
    response = reply.body;
    return reply.status;
}

} // namespace host
