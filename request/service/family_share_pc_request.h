// The quota and family sharing service, and the data version service, which
// is addressed with the same headers at the cloud sync drive address.
#pragma once

#include "request/pc_http_request.h"

class FamilySharePCRequest : public PCHttpRequest
{
public:
    FamilySharePCRequest();

    void AddHeaders() override;
};

class PimDataVersionPCRequest : public PCHttpRequest
{
public:
    PimDataVersionPCRequest();

    void AddHeaders() override;
};

// The header set both classes send: the common headers, then a bearer token
// and the app version.
void AddFamilyShareHeaders(PCHttpRequest& request);
