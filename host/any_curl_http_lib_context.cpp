// The direct query of the basic HTTP library, on the same transport as the
// request layer: the shared connection cache, verified TLS, the host's CA file
// unless the strategy names its own.
#include "platform/any_basic_http_lib_context.h"

#include <exception>

#include "host/basic_http_query.h"

int AnyCurlHttpLibContext::Request(std::string& response)
{
    try {
        return host::PerformBasicQuery(strategy_, response);
    } catch (const std::exception& error) {
        if (strategy_.GetLogFunction()) {
            strategy_.GetLogFunction()(error.what());
        }
    } catch (...) {
        if (strategy_.GetLogFunction()) {
            strategy_.GetLogFunction()("HTTP query failed");
        }
    }
    response.clear();
    return -1;
}
