// The portal service. It takes the token URL-encoded with no scheme word, and
// its URLs carry the trace id as a query.
#pragma once

#include <string>

#include "request/pc_http_request.h"

class PortalPCRequest : public PCHttpRequest
{
public:
    PortalPCRequest();

    void AddHeaders() override;
};

// The cookie the token-by-code request sends. Nothing in this client writes
// it, so that request carries an empty "Cookie" header.
const std::string& PortalCookieText();
