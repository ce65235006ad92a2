// The basic service: device and configuration queries. It sends an empty
// trace id header and an empty "version" header; two rows add one header each.
#pragma once

#include "request/pc_http_request.h"

class BasicPCRequest : public PCHttpRequest
{
public:
    BasicPCRequest();

    void AddHeaders() override;

    // The request row; the runner copies it in before sending.
    BasicType basicType;
};
