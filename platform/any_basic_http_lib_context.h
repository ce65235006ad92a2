// Performs the request that an AnyBasicHttpLibStrategy describes.
#pragma once

#include <string>

#include "platform/any_basic_http_lib_strategy.h"

class AnyCurlHttpLibContext
{
public:
    explicit AnyCurlHttpLibContext(AnyBasicHttpLibStrategy& strategy) : strategy_(strategy) {}

    // Fills `response` with the reply body. Returns the HTTP status, or -1 when
    // no reply was received; in that case one line goes to the strategy's log
    // function. Never throws.
    int Request(std::string& response);

private:
    AnyBasicHttpLibStrategy& strategy_;
};
