// The statistics service of synchronised personal data (PIMDS).
#pragma once

#include "request/pc_http_request.h"

class PIMDSPCRequest : public PCHttpRequest
{
public:
    PIMDSPCRequest();

    void AddHeaders() override;
};
